#include "filesum/Pattern.h"

#include <cstddef>

namespace filesum
{

namespace
{

// Returns the length of the character at `position`: of well-formed UTF-8, else 1. The position is
// less than the size of the text.
std::size_t lengthAt(std::string_view text, std::size_t position)
{
    const auto byteAt = [text, position](std::size_t index) -> unsigned
    {
        return static_cast<unsigned char>(text[position + index]);
    };
    const unsigned lead = byteAt(0);
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() - position < length)
    {
        return 1;
    }
    // The second byte rules out longer forms than needed, surrogates and more than U+10FFFF.
    const unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    bool wellFormed = byteAt(1) >= lowest && byteAt(1) <= highest;
    for (std::size_t index = 2; index < length; ++index)
    {
        wellFormed = wellFormed && (byteAt(index) & 0xC0) == 0x80;
    }
    return wellFormed ? length : 1;
}

} // namespace

bool matches(std::string_view name, std::string_view pattern)
{
    // On a mismatch the last "*" takes one more character. Earlier ones never need to change.
    constexpr std::size_t none = std::string_view::npos;
    std::size_t star = none;
    std::size_t starEnd = 0; // in name: end of the part that the last "*" takes
    std::size_t at = 0;
    std::size_t next = 0; // in pattern
    while (at < name.size())
    {
        if (next < pattern.size() && pattern[next] == '*')
        {
            star = next++;
            starEnd = at;
        }
        else if (next < pattern.size() && pattern[next] == '?')
        {
            at += lengthAt(name, at);
            ++next;
        }
        else if (next < pattern.size() && pattern[next] == name[at])
        {
            ++at;
            ++next;
        }
        else if (star != none)
        {
            starEnd += lengthAt(name, starEnd);
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
