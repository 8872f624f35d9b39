#include "TerminalWidth.h"

#include "../Inline.h"
#include "Windows.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE std::size_t terminalColumns() noexcept
{
    CONSOLE_SCREEN_BUFFER_INFO information = {};
    if (::GetConsoleScreenBufferInfo(::GetStdHandle(STD_OUTPUT_HANDLE), &information) == FALSE)
    {
        return 0;
    }
    // The window, not the buffer behind it, which may be wider.
    const int columns = information.srWindow.Right - information.srWindow.Left + 1;
    return columns > 0 ? static_cast<std::size_t>(columns) : 0;
}

} // namespace detail
} // namespace v1
} // namespace kexa
