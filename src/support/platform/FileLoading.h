// Reads whole files, and identifies a file by its canonical path. Implemented by
// FileLoading_posix.cpp and FileLoading_windows.cpp.
#pragma once

#include <cstddef>
#include <string>

namespace kexa_3_3
{

// Why a file could not be loaded.
enum class FileProblem
{
    none,
    not_found,
    no_permission,
    is_folder,
    too_large,
    unreadable
};

// Largest size that is loaded, in bytes (inclusive). Without a limit an endless device would use up
// all memory.
inline constexpr std::size_t largest_file = std::size_t{1} << 30;

// Reads all bytes of a file, or of a pipe up to its end. Returns FileProblem::none on success.
//
// name:  absolute, or relative to the current directory. On Linux it is converted to UTF-8, and
//        each lone surrogate U+DC80 to U+DCFF to the byte 0x80 to 0xFF. A host can thus name a file
//        whose name is not well-formed UTF-8.
// bytes: receives the content; unspecified after a failure.
[[nodiscard]] FileProblem loadFile(const std::wstring& name, std::string& bytes);

// Returns the absolute path of a file without links, "." and "..", which is equal for all names of
// one file. Returns the name unchanged if no such file exists.
[[nodiscard]] std::wstring canonicalPath(const std::wstring& name);

} // namespace kexa_3_3
