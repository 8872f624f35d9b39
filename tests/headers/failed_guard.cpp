// Fails a guard in a host without exceptions, which ends the program. With an argument, wide text
// was written to standard error before, and the C library refuses narrow text there from then on.
#include <cstdio>
#include <cwchar>

#include <kexa/kexa.h>

int main(int count, char**)
{
    if (count > 1)
    {
        std::fputws(L"wide text\n", stderr);
    }
    const vexkit2::variant_t number(5);
    static_cast<void>(number.get<bool>());
    std::fputs("the failed guard returned\n", stderr);
    return 0;
}
