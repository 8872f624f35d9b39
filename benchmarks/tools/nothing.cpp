// A program that does nothing. Linked with and without the library.
int main()
{
    return 0;
}
