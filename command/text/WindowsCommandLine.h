// Splitting the command line of a Windows process, which is one text, into arguments.
#ifndef KEXA_COMMAND_TEXT_WINDOWS_COMMAND_LINE_H
#define KEXA_COMMAND_TEXT_WINDOWS_COMMAND_LINE_H

#include <string>
#include <string_view>
#include <vector>

namespace kexa
{
inline namespace v1
{
namespace detail
{

// What two quotes side by side in a quoted part do, besides standing for one quote.
enum class PairOfQuotes
{
    stays_quoted, // Visual C++ since 2008, the Universal C Runtime
    ends_quoted   // msvcrt.dll, which MinGW programs may use, and older runtimes
};

// Splits as Microsoft's C runtime does ("Parsing C command-line arguments"):
// - Spaces and tabs outside of quotes separate arguments.
// - The first argument, the program's name, takes backslashes as they are; its quotes only keep
//   blanks together.
// - Elsewhere an even number of backslashes before a quote stands for half as many, and the quote
//   begins or ends a quoted part; an odd number stands for half as many, rounded down, and a quote.
//   Other backslashes stand for themselves.
// - In a quoted part two quotes stand for one. The end of the line ends a quoted part.
// An empty line gives one empty argument: there is always a program's name.
[[nodiscard]] std::vector<std::wstring> splitWindowsCommandLine(std::wstring_view line,
                                                                PairOfQuotes pairOfQuotes);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
