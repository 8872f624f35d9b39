#include <algorithm>
#include <cassert>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/platform/FileLoading.h"
#include "support/text/Utf8.h"

namespace kexa_3_3
{

namespace
{

// Owns an open file; below 0 if it could not be opened.
class Descriptor
{
public:
    explicit Descriptor(int number) noexcept : m_number(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
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

// Converts a name to the bytes of a path, as described at loadFile().
std::string pathOf(std::wstring_view name)
{
    constexpr wchar_t first_byte = 0xDC80;
    constexpr wchar_t last_byte = 0xDCFF;
    std::string path;
    while (!name.empty())
    {
        const auto lone = std::find_if(
            name.begin(), name.end(),
            [](wchar_t character) { return character >= first_byte && character <= last_byte; });
        const auto length = static_cast<std::size_t>(lone - name.begin());
        path += utf8FromWide(name.substr(0, length));
        name.remove_prefix(length);
        if (!name.empty())
        {
            path.push_back(static_cast<char>(name.front() - 0xDC00));
            name.remove_prefix(1);
        }
    }
    return path;
}

FileProblem problemOf(int error) noexcept
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

// expected: the size of the file as far as it is known, at most largest_file.
FileProblem readAll(int descriptor, std::size_t expected, std::string& bytes)
{
    assert(expected <= largest_file);
    constexpr std::size_t least_room = 65536;
    std::size_t length = 0;
    // One byte more than expected: the read that finds the end of the file needs room, too.
    bytes.resize(std::max(expected + 1, least_room));
    for (;;)
    {
        if (length == bytes.size())
        {
            bytes.resize(std::min(2 * length, largest_file + 1));
        }
        assert(length < bytes.size());
        const ssize_t count = ::read(descriptor, bytes.data() + length, bytes.size() - length);
        if (count < 0)
        {
            if (errno == EINTR)
            {
                continue;
            }
            return problemOf(errno);
        }
        if (count == 0)
        {
            bytes.resize(length);
            return FileProblem::none;
        }
        length += static_cast<std::size_t>(count);
        if (length > largest_file)
        {
            return FileProblem::too_large;
        }
    }
}

} // namespace

FileProblem loadFile(const std::wstring& name, std::string& bytes)
{
    const std::string path = pathOf(name);
    if (path.find('\0') != std::string::npos)
    {
        return FileProblem::not_found; // open() would end the name at the zero
    }
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): POSIX has no other open.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
    if (file.number() < 0)
    {
        return problemOf(errno);
    }
    struct stat status = {};
    if (::fstat(file.number(), &status) != 0)
    {
        return problemOf(errno); // GCOVR_EXCL_LINE: not known to fail for an open file
    }
    if (S_ISDIR(status.st_mode))
    {
        return FileProblem::is_folder;
    }
    const auto size = static_cast<std::size_t>(std::max<off_t>(status.st_size, 0));
    if (size > largest_file)
    {
        return FileProblem::too_large;
    }
    return readAll(file.number(), size, bytes);
}

std::wstring canonicalPath(const std::wstring& name)
{
    const std::string path = pathOf(name);
    if (path.find('\0') != std::string::npos)
    {
        return name; // realpath() would end the name at the zero
    }
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr),
                                                               &std::free);
    if (resolved == nullptr)
    {
        return name;
    }
    // One character for each byte. Decoded as UTF-8, paths that differ only in ill-formed bytes
    // could become equal.
    std::wstring text;
    for (const char byte : std::string_view(resolved.get()))
    {
        text.push_back(static_cast<wchar_t>(static_cast<unsigned char>(byte)));
    }
    return text;
}

} // namespace kexa_3_3
