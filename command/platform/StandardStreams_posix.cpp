#include "StandardStreams.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>

#include <poll.h>
#include <unistd.h>

#include "../Inline.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Waits until a descriptor that does not block takes more. Returns false where it never will.
KEXA_COMMAND_LOCAL bool waitForRoom(int descriptor) noexcept
{
    pollfd waiting = {descriptor, POLLOUT, 0};
    return ::poll(&waiting, 1, -1) >= 0 || errno == EINTR;
}

KEXA_COMMAND_INLINE bool writeText(StandardStream stream, std::string_view text)
{
    // Not through the C stream: one that the host has written wide text to takes no other.
    const bool toOutput = stream == StandardStream::output;
    std::fflush(toOutput ? stdout : stderr);
    const int descriptor = toOutput ? STDOUT_FILENO : STDERR_FILENO;
    while (!text.empty())
    {
        const std::size_t length = std::min<std::size_t>(text.size(), SSIZE_MAX);
        const ssize_t written = ::write(descriptor, text.data(), length);
        if (written >= 0)
        {
            text.remove_prefix(static_cast<std::size_t>(written));
        }
        else if (errno == EAGAIN)
        {
            if (!waitForRoom(descriptor))
            {
                return false;
            }
        }
        else if (errno != EINTR)
        {
            return false;
        }
    }
    return true;
}

} // namespace detail
} // namespace v1
} // namespace kexa
