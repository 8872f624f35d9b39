// Splitting a command line into arguments as a shell's user expects.
#ifndef KEXA_COMMAND_TEXT_LINE_SPLITTING_H
#define KEXA_COMMAND_TEXT_LINE_SPLITTING_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kexa
{
inline namespace v1
{
namespace detail
{

struct SplitLine
{
    std::vector<std::string> arguments;           // unspecified where a quote is not closed
    std::optional<std::size_t> unterminatedQuote; // the byte index of that quote in the line
};

// Splits as a POSIX shell does, on all systems:
// - White space (space, \t, \n, \v, \f, \r) separates arguments.
// - Between single quotes every character stands for itself.
// - Between double quotes a backslash takes the meaning off the next character where that is one of
//   \ " $ ` and is removed together with a line feed; before any other character it stays.
// - Elsewhere a backslash takes the meaning off any next character, and is removed together with a
//   line feed. At the end of the line it stands for itself.
// - Quotes may begin and end inside an argument; "" and '' are empty arguments.
// Nothing is expanded: $, `, *, ~, # and the like are characters as any other.
[[nodiscard]] SplitLine splitLine(std::string_view line);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
