// A program that does nothing, linked with and without the library to measure loading.
int main()
{
    return 0;
}
