#include <algorithm>
#include <cassert>
#include <string_view>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "support/platform/FileLoading.h"

namespace kexa_3_3
{

namespace
{

// Owns an open file; INVALID_HANDLE_VALUE if it could not be opened.
class Handle
{
public:
    explicit Handle(HANDLE handle) noexcept : m_handle(handle) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle()
    {
        if (valid())
        {
            ::CloseHandle(m_handle);
        }
    }
    [[nodiscard]] bool valid() const noexcept { return m_handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE get() const noexcept { return m_handle; }

private:
    HANDLE m_handle;
};

// Returns the text that a Windows call writes into a buffer; empty if the call fails. Such calls
// return the length of the text, the size that they need if the buffer is too small, or 0 on
// failure.
template <class Query>
std::wstring textOf(Query query)
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

std::wstring fullPath(const std::wstring& name)
{
    return textOf([&name](wchar_t* buffer, DWORD room)
                  { return ::GetFullPathNameW(name.c_str(), room, buffer, nullptr); });
}

// Adds the prefix that a path of MAX_PATH characters or more needs. Windows does not interpret
// prefixed paths, so the full path is used.
std::wstring openablePath(const std::wstring& name)
{
    const std::wstring path = fullPath(name);
    if (path.size() < MAX_PATH || path.compare(0, 4, L"\\\\?\\") == 0 ||
        path.compare(0, 4, L"\\\\.\\") == 0)
    {
        return name;
    }
    return path.compare(0, 2, L"\\\\") == 0 ? L"\\\\?\\UNC\\" + path.substr(2) : L"\\\\?\\" + path;
}

HANDLE openFile(const std::wstring& name, DWORD access)
{
    // Backup semantics open folders as well. Without them a folder gives the error of a forbidden
    // file.
    return ::CreateFileW(openablePath(name).c_str(), access,
                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                         OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

FileProblem problemOf(DWORD error) noexcept
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

// expected: the size of the file as far as it is known, at most largest_file.
FileProblem readAll(HANDLE file, std::size_t expected, std::string& bytes)
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
        DWORD count = 0;
        if (::ReadFile(file, bytes.data() + length, static_cast<DWORD>(bytes.size() - length),
                       &count, nullptr) == FALSE)
        {
            const DWORD error = ::GetLastError();
            if (error != ERROR_BROKEN_PIPE) // the end of a pipe whose writer has closed it
            {
                return problemOf(error);
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

} // namespace

FileProblem loadFile(const std::wstring& name, std::string& bytes)
{
    if (name.find(L'\0') != std::wstring::npos)
    {
        return FileProblem::not_found; // CreateFileW would end the name at the zero
    }
    const Handle file(openFile(name, GENERIC_READ));
    if (!file.valid())
    {
        return problemOf(::GetLastError());
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
        size.QuadPart = 0; // a device or a pipe has no size
    }
    if (static_cast<ULONGLONG>(size.QuadPart) > largest_file)
    {
        return FileProblem::too_large;
    }
    return readAll(file.get(), static_cast<std::size_t>(size.QuadPart), bytes);
}

std::wstring canonicalPath(const std::wstring& name)
{
    if (name.find(L'\0') != std::wstring::npos)
    {
        return name; // CreateFileW would end the name at the zero
    }
    const Handle file(openFile(name, 0));
    if (!file.valid())
    {
        return name;
    }
    const std::wstring path = textOf(
        [&file](wchar_t* buffer, DWORD room)
        { return ::GetFinalPathNameByHandleW(file.get(), buffer, room, FILE_NAME_NORMALIZED); });
    // Some third-party file systems do not support final paths.
    return path.empty() ? fullPath(name) : path;
}

} // namespace kexa_3_3
