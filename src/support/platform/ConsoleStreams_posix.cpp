#include <cerrno>
#include <string>

#include <poll.h>
#include <unistd.h>

#include "support/platform/ConsoleStreams.h"
#include "support/text/Utf8.h"

namespace kexa_3_3::internal
{

bool writeConsole(ConsoleTarget target, std::wstring_view text)
{
    const int descriptor = target == ConsoleTarget::output ? STDOUT_FILENO : STDERR_FILENO;
    const std::string bytes = utf8FromWide(text);
    std::size_t written = 0;
    while (written < bytes.size())
    {
        const ssize_t count = ::write(descriptor, bytes.data() + written, bytes.size() - written);
        if (count > 0)
        {
            written += static_cast<std::size_t>(count);
        }
        else if (count < 0 && errno == EAGAIN)
        {
            // The descriptor is non-blocking and full: block until it can be written again.
            pollfd waiting = {descriptor, POLLOUT, 0};
            static_cast<void>(::poll(&waiting, 1, -1));
        }
        else if (count == 0 || errno != EINTR)
        {
            return false;
        }
    }
    return true;
}

} // namespace kexa_3_3::internal
