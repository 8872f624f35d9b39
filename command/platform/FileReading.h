// Reading a file whole, and telling files apart.
#ifndef KEXA_COMMAND_PLATFORM_FILE_READING_H
#define KEXA_COMMAND_PLATFORM_FILE_READING_H

#include <cstddef>
#include <string>

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Why a file could not be read.
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
// path:  relative to the current directory, or absolute; UTF-8 on Windows, else bytes as they are.
//        One that holds a zero character names no file.
// bytes: receives the content; unspecified where the result is not FileProblem::none.
[[nodiscard]] FileProblem readFile(const std::string& path, std::string& bytes);

// Returns a text that is equal for two paths of one file: its absolute path without links and dots.
// The path itself where there is no such file.
[[nodiscard]] std::string fileIdentity(const std::string& path);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
