#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <algorithm>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "filesum/Platform.h"

namespace filesum
{

namespace
{

std::wstring wide(std::string_view text)
{
    const int size = static_cast<int>(text.size());
    std::wstring result(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)),
        L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, result.data(),
                        static_cast<int>(result.size()));
    return result;
}

} // namespace

std::filesystem::path pathOf(std::string_view name)
{
    return std::filesystem::path(wide(name));
}

std::string nameOf(const std::filesystem::path& path)
{
    const std::wstring name = path.generic_wstring();
    const int size = static_cast<int>(name.size());
    std::string text(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, name.data(), size,
                                                                  nullptr, 0, nullptr, nullptr)),
                     '\0');
    WideCharToMultiByte(CP_UTF8, 0, name.data(), size, text.data(), static_cast<int>(text.size()),
                        nullptr, nullptr);
    return text;
}

FilePointer openForReading(const std::filesystem::path& path)
{
    return FilePointer(_wfopen(path.c_str(), L"rb"));
}

FilePointer openForWriting(const std::filesystem::path& path)
{
    return FilePointer(_wfopen(path.c_str(), L"wb"));
}

bool isLink(const std::filesystem::path& path)
{
    // Other reparse points are files, for example those of cloud folders.
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
    {
        return false;
    }
    FindClose(search);
    return (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           (found.dwReserved0 == IO_REPARSE_TAG_SYMLINK ||
            found.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT);
}

bool isTerminal(std::FILE* stream)
{
    return _isatty(_fileno(stream)) != 0;
}

void write(std::FILE* stream, std::string_view text)
{
    const HANDLE handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
    DWORD mode = 0;
    if (GetConsoleMode(handle, &mode) == 0)
    {
        std::fwrite(text.data(), 1, text.size(), stream);
        std::fflush(stream);
        return;
    }
    const std::wstring units = wide(text);
    constexpr std::size_t most = 8192; // units in one call; consoles refuse very long texts
    for (std::size_t begin = 0; begin < units.size(); begin += most)
    {
        DWORD written = 0;
        WriteConsoleW(handle, units.data() + begin,
                      static_cast<DWORD>(std::min(most, units.size() - begin)), &written, nullptr);
    }
}

void useBinaryStreams()
{
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

} // namespace filesum
