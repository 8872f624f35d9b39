#include "parser/ArgumentLines.h"

#include <algorithm>

#include "support/text/Text.h"
#include "support/text/Utf8.h"

namespace kexa_3_3
{

namespace
{

// Removes lines from the front of the text up to one that holds an argument. Returns whether there
// is one. Works for every encoding: the characters looked for have one unit in each.
template <class Character>
bool takeArgument(std::basic_string_view<Character>& text,
                  std::basic_string_view<Character>& argument)
{
    while (!text.empty())
    {
        const std::size_t end = std::min(text.find(Character{'\n'}), text.size());
        argument = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        const auto first = std::find_if(
            argument.begin(), argument.end(),
            [](Character character) { return !isClassicSpace(static_cast<wchar_t>(character)); });
        argument.remove_prefix(static_cast<std::size_t>(first - argument.begin()));
        while (!argument.empty() && argument.back() == Character{'\r'})
        {
            argument.remove_suffix(1);
        }
        if (!argument.empty() && argument.front() != Character{';'} &&
            argument.front() != Character{'#'})
        {
            return true;
        }
    }
    return false;
}

} // namespace

bool WideLines::next(std::wstring_view& argument)
{
    return takeArgument(m_rest, argument);
}

bool Utf8Lines::next(std::wstring_view& argument)
{
    std::string_view line;
    if (!takeArgument(m_rest, line))
    {
        return false;
    }
    m_latest = 1 - m_latest;
    argument = wideFromUtf8(line, m_decoded[m_latest]);
    return true;
}

} // namespace kexa_3_3
