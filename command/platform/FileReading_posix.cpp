#include "FileReading.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "../Inline.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_LOCAL FileProblem fileProblemOf(int error) noexcept
{
    switch (error)
    {
    case ENOENT:
    case ENOTDIR:
        return FileProblem::not_found;
    case EACCES:
    case EPERM:
        return FileProblem::no_permission;
    default:
        return FileProblem::unreadable;
    }
}

// An open file; closed with the object.
class FileDescriptor
{
public:
    explicit FileDescriptor(int number) noexcept : m_number(number) {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor()
    {
        if (m_number >= 0)
        {
            ::close(m_number);
        }
    }
    [[nodiscard]] int number() const noexcept { return m_number; }

private:
    int m_number;
};

KEXA_COMMAND_LOCAL FileProblem readToEnd(int descriptor, std::size_t expected, std::string& bytes)
{
    constexpr std::size_t least_room = 16384;
    std::size_t length = 0;
    bytes.resize(std::max(expected + 1, least_room)); // one more, to see the end without growing
    for (;;)
    {
        if (length == bytes.size())
        {
            bytes.resize(std::min(2 * length, largest_file + 1));
        }
        const ssize_t count = ::read(descriptor, bytes.data() + length, bytes.size() - length);
        if (count < 0 && errno != EINTR)
        {
            return fileProblemOf(errno);
        }
        if (count == 0)
        {
            bytes.resize(length);
            return FileProblem::none;
        }
        length += count > 0 ? static_cast<std::size_t>(count) : 0;
        if (length > largest_file)
        {
            return FileProblem::too_large;
        }
    }
}

KEXA_COMMAND_INLINE FileProblem readFile(const std::string& path, std::string& bytes)
{
    if (path.find('\0') != std::string::npos)
    {
        return FileProblem::not_found; // the system would look for a shorter name
    }
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
    struct stat status = {};
    if (file.number() < 0 || ::fstat(file.number(), &status) != 0)
    {
        return fileProblemOf(errno);
    }
    if (S_ISDIR(status.st_mode))
    {
        return FileProblem::is_folder;
    }
    const auto size = static_cast<std::size_t>(std::max<off_t>(status.st_size, 0));
    return size > largest_file ? FileProblem::too_large : readToEnd(file.number(), size, bytes);
}

KEXA_COMMAND_INLINE std::string fileIdentity(const std::string& path)
{
    if (path.find('\0') != std::string::npos)
    {
        return path;
    }
    char* const resolved = ::realpath(path.c_str(), nullptr);
    std::string identity = resolved == nullptr ? path : resolved;
    std::free(resolved);
    return identity;
}

} // namespace detail
} // namespace v1
} // namespace kexa
