#include "filesum/Pattern.h"

#include <algorithm>
#include <cstddef>

#include "common/Text.h"

namespace filesum
{

bool matches(std::string_view name, std::string_view pattern)
{
    // On a mismatch the last "*" takes one more character. Earlier ones never need to change.
    constexpr std::size_t none = std::string_view::npos;
    std::size_t star = none;
    std::size_t starEnd = 0; // in name: end of the part that the last "*" takes
    std::size_t at = 0;
    std::size_t next = 0; // in pattern
    const auto character = [name](std::size_t position)
    {
        return std::max<std::size_t>(example::decodeAt(name, position).length, 1);
    };
    while (at < name.size())
    {
        if (next < pattern.size() && pattern[next] == '*')
        {
            star = next++;
            starEnd = at;
        }
        else if (next < pattern.size() && pattern[next] == '?')
        {
            at += character(at);
            ++next;
        }
        else if (next < pattern.size() && pattern[next] == name[at])
        {
            ++at;
            ++next;
        }
        else if (star != none)
        {
            starEnd += character(starEnd);
            at = starEnd;
            next = star + 1;
        }
        else
        {
            return false;
        }
    }
    return pattern.find_first_not_of('*', next) == none;
}

} // namespace filesum
