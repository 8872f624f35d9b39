// Option files, read as the library reads them, but with the lines at which arguments stand, and
// with every byte.
#ifndef KEXA_COMMAND_TEXT_OPTION_FILE_READING_H
#define KEXA_COMMAND_TEXT_OPTION_FILE_READING_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kexa
{
inline namespace v1
{
namespace detail
{

struct OptionFileArgument
{
    std::string text;
    std::size_t line; // the first one is 1
};

// Splits the content of an option file: each line gives one argument at most.
//
// A byte order mark at the front of the content is dropped. A line ends with \n or the content. Its
// leading white space (the classic six characters) and its trailing \r are no part of the argument;
// other trailing blanks are. Lines that are empty then, and those that begin with ; or #, give
// none. There is no quoting.
//
// The library sees U+FFFD where bytes are no UTF-8; here they stay.
[[nodiscard]] std::vector<OptionFileArgument> splitOptionFile(std::string_view content);

struct OptionFile
{
    std::vector<OptionFileArgument> arguments;
    std::string error; // the message of the library where the file cannot be read, else empty
};

// Reads an option file.
//
// name: as the user wrote it, relative to the current directory, or absolute; UTF-8 on Windows,
// else
//       bytes as they are. The message holds it so.
[[nodiscard]] OptionFile readOptionFile(const std::string& name);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
