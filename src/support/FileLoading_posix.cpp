#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/FileLoading.h"
#include "support/Utf8.h"

namespace kexa_3_3
{

namespace
{

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

FileProblem readAll(int descriptor, std::size_t expected, std::string& bytes)
{
    constexpr std::size_t least_room = 65536;
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
            return problemOf(errno);
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

} // namespace

FileProblem loadFile(const std::wstring& name, std::string& bytes)
{
    const std::string path = pathOf(name);
    if (path.find('\0') != std::string::npos)
    {
        return FileProblem::not_found; // the system would look for a shorter name
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
        return problemOf(errno); // GCOVR_EXCL_LINE: not of an open file, as far as systems tell
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
        return name; // no file; the system would look for a shorter name
    }
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr),
                                                               &std::free);
    if (resolved == nullptr)
    {
        return name;
    }
    // Byte by byte: names that differ only in ill-formed bytes stay apart.
    std::wstring text;
    for (const char byte : std::string_view(resolved.get()))
    {
        text.push_back(static_cast<wchar_t>(static_cast<unsigned char>(byte)));
    }
    return text;
}

} // namespace kexa_3_3
