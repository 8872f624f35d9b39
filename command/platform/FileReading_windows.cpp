#include "FileReading.h"

#include <algorithm>

#include "../Inline.h"
#include "../text/Encoding.h"
#include "Windows.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_LOCAL FileProblem fileProblemOf(DWORD error) noexcept
{
    switch (error)
    {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_DIRECTORY:
    case ERROR_FILENAME_EXCED_RANGE:
        return FileProblem::not_found;
    case ERROR_ACCESS_DENIED:
        return FileProblem::no_permission;
    default:
        return FileProblem::unreadable;
    }
}

// The text that a Windows call writes into a buffer. Such calls return its length, or the room that
// they need where the buffer is too small, or 0.
template <class Query>
std::wstring textOfQuery(Query query)
{
    std::wstring text(MAX_PATH, L'\0');
    for (;;)
    {
        const DWORD length = query(text.data(), static_cast<DWORD>(text.size()));
        const bool fits = length < text.size();
        text.resize(fits ? length : length + 1);
        if (fits)
        {
            return text;
        }
    }
}

KEXA_COMMAND_LOCAL std::wstring fullPathOf(const std::wstring& path)
{
    return textOfQuery([&path](wchar_t* buffer, DWORD room)
                       { return ::GetFullPathNameW(path.c_str(), room, buffer, nullptr); });
}

// Paths beyond MAX_PATH are opened under a prefix that switches all interpretation off.
KEXA_COMMAND_LOCAL std::wstring openablePath(const std::wstring& path)
{
    const std::wstring full = fullPathOf(path);
    if (full.size() < MAX_PATH || full.compare(0, 4, L"\\\\?\\") == 0 ||
        full.compare(0, 4, L"\\\\.\\") == 0)
    {
        return path;
    }
    return full.compare(0, 2, L"\\\\") == 0 ? L"\\\\?\\UNC\\" + full.substr(2) : L"\\\\?\\" + full;
}

// An open file; closed with the object.
class FileHandle
{
public:
    FileHandle(const std::wstring& path, DWORD access)
        // Backup semantics open folders as well, so that they can be told from what is forbidden.
        : m_handle(::CreateFileW(openablePath(path).c_str(), access,
                                 FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                 OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr))
    {
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    ~FileHandle()
    {
        if (isOpen())
        {
            ::CloseHandle(m_handle);
        }
    }
    [[nodiscard]] bool isOpen() const noexcept { return m_handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE get() const noexcept { return m_handle; }

private:
    HANDLE m_handle;
};

KEXA_COMMAND_LOCAL FileProblem readToEnd(HANDLE file, std::size_t expected, std::string& bytes)
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
        DWORD count = 0;
        if (::ReadFile(file, bytes.data() + length, static_cast<DWORD>(bytes.size() - length),
                       &count, nullptr) == FALSE)
        {
            const DWORD error = ::GetLastError();
            if (error != ERROR_BROKEN_PIPE) // the end of a pipe
            {
                return fileProblemOf(error);
            }
            count = 0;
        }
        if (count == 0)
        {
            bytes.resize(length);
            return FileProblem::none;
        }
        length += count;
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
    const FileHandle file(widen(path), GENERIC_READ);
    if (!file.isOpen())
    {
        return fileProblemOf(::GetLastError());
    }
    BY_HANDLE_FILE_INFORMATION information = {};
    if (::GetFileInformationByHandle(file.get(), &information) != FALSE &&
        (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
    {
        return FileProblem::is_folder;
    }
    LARGE_INTEGER size = {};
    if (::GetFileSizeEx(file.get(), &size) == FALSE)
    {
        size.QuadPart = 0; // a device or a pipe
    }
    return static_cast<ULONGLONG>(size.QuadPart) > largest_file
               ? FileProblem::too_large
               : readToEnd(file.get(), static_cast<std::size_t>(size.QuadPart), bytes);
}

KEXA_COMMAND_INLINE std::string fileIdentity(const std::string& path)
{
    if (path.find('\0') != std::string::npos)
    {
        return path;
    }
    const std::wstring widePath = widen(path);
    const FileHandle file(widePath, 0);
    if (!file.isOpen())
    {
        return path;
    }
    const std::wstring final = textOfQuery(
        [&file](wchar_t* buffer, DWORD room)
        { return ::GetFinalPathNameByHandleW(file.get(), buffer, room, FILE_NAME_NORMALIZED); });
    // Some file systems of other makers have no final path.
    return narrow(final.empty() ? fullPathOf(widePath) : final);
}

} // namespace detail
} // namespace v1
} // namespace kexa
