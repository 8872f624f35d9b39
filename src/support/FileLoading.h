// Loading a file whole, and telling files apart.
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

// Files above 1 GiB are refused: an endless device must not take all memory.
inline constexpr std::size_t largest_file = std::size_t{1} << 30;

// Reads all bytes of a file, or of a pipe up to its end.
//
// name:  relative to the current directory, or absolute. On Linux it is taken as UTF-8, a lone
//        surrogate U+DC80 to U+DCFF standing for the byte 0x80 to 0xFF, so that a host can name
//        files whose names are not well-formed UTF-8.
// bytes: receives the content; unspecified where the answer is not FileProblem::none.
//
// One of these for each platform, as of the next.
[[nodiscard]] FileProblem loadFile(const std::wstring& name, std::string& bytes);

// A text that is the same for two names of one file: the absolute path without links and dots. The
// name itself where there is no such file.
[[nodiscard]] std::wstring canonicalPath(const std::wstring& name);

} // namespace kexa_3_3
