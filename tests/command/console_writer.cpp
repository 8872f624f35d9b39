// A program that writes a text to the console that it is started on, and exits with the columns of
// that console's window as its code.
#include "platform/StandardStreams.h"
#include "platform/TerminalWidth.h"
#include "platform/Windows.h"

using namespace kexa::detail;

int main()
{
    // Whatever standard output was inherited.
    const HANDLE console =
        ::CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                      nullptr, OPEN_EXISTING, 0, nullptr);
    ::SetStdHandle(STD_OUTPUT_HANDLE, console);
    if (!writeText(StandardStream::output, "gr\xC3\xB6\xC3\x9F\x65 \xE6\x97\xA5\xE6\x9C\xAC"))
    {
        return 0;
    }
    return static_cast<int>(terminalColumns());
}
