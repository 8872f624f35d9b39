#include <unistd.h>

#include "filesum/Platform.h"

namespace filesum
{

std::filesystem::path pathOf(std::string_view name)
{
    return std::filesystem::path(name);
}

std::string nameOf(const std::filesystem::path& path)
{
    return path.generic_string();
}

FilePointer openForReading(const std::filesystem::path& path)
{
    return FilePointer(std::fopen(path.c_str(), "rb"));
}

FilePointer openForWriting(const std::filesystem::path& path)
{
    return FilePointer(std::fopen(path.c_str(), "wb"));
}

bool isLink(const std::filesystem::path& path)
{
    std::error_code error;
    return std::filesystem::is_symlink(path, error);
}

bool isTerminal(std::FILE* stream)
{
    return ::isatty(::fileno(stream)) != 0;
}

void write(std::FILE* stream, std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stream);
    std::fflush(stream);
}

void useBinaryStreams() {}

} // namespace filesum
