#include "TerminalWidth.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include "../Inline.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE std::size_t terminalColumns() noexcept
{
    winsize size = {};
    return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

} // namespace detail
} // namespace v1
} // namespace kexa
