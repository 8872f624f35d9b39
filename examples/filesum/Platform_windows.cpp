#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <io.h>
#include <windows.h>

#include "common/Text.h"
#include "filesum/Platform.h"

namespace filesum
{

std::filesystem::path pathOf(const std::wstring& text)
{
    return std::filesystem::path(text);
}

std::string nameOf(const std::filesystem::path& path)
{
    return example::toBytes(path.generic_wstring());
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

} // namespace filesum
