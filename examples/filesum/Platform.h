// What differs between systems.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

namespace filesum
{

struct CloseFile
{
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

using FilePointer = std::unique_ptr<std::FILE, CloseFile>;

// A path as the parser gave it: on Linux, the lone surrogates that stand for bytes become these
// bytes again.
std::filesystem::path pathOf(const std::wstring& text);

// The name with "/" between its parts: on Linux the bytes as they are, on Windows UTF-8.
std::string nameOf(const std::filesystem::path& path);

// Opens a file for reading or (made anew) for writing, in binary. Null and errno on failure.
FilePointer openForReading(const std::filesystem::path& path);
FilePointer openForWriting(const std::filesystem::path& path);

// Whether the entry leads to somewhere else: a symbolic link, on Windows also a junction.
bool isLink(const std::filesystem::path& path);

bool isTerminal(std::FILE* stream);

} // namespace filesum
