#include "WindowsCommandLine.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "../Inline.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_LOCAL bool isCommandLineBlank(wchar_t character) noexcept
{
    return character == L' ' || character == L'\t';
}

// Takes the program's name off the front of a line.
KEXA_COMMAND_LOCAL std::wstring takeProgramName(std::wstring_view& line)
{
    std::wstring name;
    bool quoted = false;
    while (!line.empty() && (quoted || !isCommandLineBlank(line.front())))
    {
        if (line.front() == L'"')
        {
            quoted = !quoted;
        }
        else
        {
            name.push_back(line.front());
        }
        line.remove_prefix(1);
    }
    return name;
}

// Takes one argument off the front of a line, which begins with one.
KEXA_COMMAND_LOCAL std::wstring takeWindowsArgument(std::wstring_view& line,
                                                    PairOfQuotes pairOfQuotes)
{
    std::wstring argument;
    bool quoted = false;
    while (!line.empty() && (quoted || !isCommandLineBlank(line.front())))
    {
        const std::size_t backslashes = std::min(line.find_first_not_of(L'\\'), line.size());
        line.remove_prefix(backslashes);
        if (line.empty() || line.front() != L'"')
        {
            argument.append(backslashes, L'\\');
            if (backslashes == 0)
            {
                argument.push_back(line.front());
                line.remove_prefix(1);
            }
            continue;
        }
        line.remove_prefix(1);
        argument.append(backslashes / 2, L'\\');
        if (backslashes % 2 != 0)
        {
            argument.push_back(L'"');
        }
        else if (quoted && !line.empty() && line.front() == L'"')
        {
            argument.push_back(L'"');
            line.remove_prefix(1);
            quoted = pairOfQuotes == PairOfQuotes::stays_quoted;
        }
        else
        {
            quoted = !quoted;
        }
    }
    return argument;
}

KEXA_COMMAND_INLINE std::vector<std::wstring> splitWindowsCommandLine(std::wstring_view line,
                                                                      PairOfQuotes pairOfQuotes)
{
    std::vector<std::wstring> arguments;
    arguments.push_back(takeProgramName(line));
    for (;;)
    {
        const std::size_t blanks = std::min(line.find_first_not_of(L" \t"), line.size());
        line.remove_prefix(blanks);
        if (line.empty())
        {
            return arguments;
        }
        arguments.push_back(takeWindowsArgument(line, pairOfQuotes));
    }
}

} // namespace detail
} // namespace v1
} // namespace kexa
