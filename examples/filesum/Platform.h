// The functions that differ between systems.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace filesum
{

struct CloseFile
{
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

using FilePointer = std::unique_ptr<std::FILE, CloseFile>;

// Converts between a path and its name with "/" between its parts: the bytes themselves on Linux,
// UTF-8 on Windows, where bytes that are not UTF-8 become U+FFFD.
std::filesystem::path pathOf(std::string_view name);
std::string nameOf(const std::filesystem::path& path);

// Open a binary file for reading, or for writing from an empty file. Return null and set errno on
// failure.
FilePointer openForReading(const std::filesystem::path& path);
FilePointer openForWriting(const std::filesystem::path& path);

// Returns whether the entry is a symbolic link, or on Windows a junction.
bool isLink(const std::filesystem::path& path);

bool isTerminal(std::FILE* stream);

// Writes UTF-8 immediately, also to a Windows console.
void write(std::FILE* stream, std::string_view text);

// Line feeds of the standard streams are not converted to CR LF on Windows.
void useBinaryStreams();

} // namespace filesum
