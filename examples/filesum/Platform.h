// The functions that differ between systems.
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

// Converts a text of the parser to a path. On Linux lone surrogates become the bytes that they
// stand for.
std::filesystem::path pathOf(const std::wstring& text);

// Returns the name with "/" between its parts: unchanged on Linux, as UTF-8 on Windows.
std::string nameOf(const std::filesystem::path& path);

// Open a binary file for reading, or for writing from an empty file. Return null and set errno on
// failure.
FilePointer openForReading(const std::filesystem::path& path);
FilePointer openForWriting(const std::filesystem::path& path);

// Returns whether the entry is a symbolic link, or on Windows a junction.
bool isLink(const std::filesystem::path& path);

bool isTerminal(std::FILE* stream);

} // namespace filesum
