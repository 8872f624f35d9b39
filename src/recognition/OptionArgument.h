// Splitting an argument into an option's name and value. Independent of the options declared.
#pragma once

#include <cstddef>
#include <locale>
#include <string_view>

#include "support/text/HashedText.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

// Returns whether the character may stand before an option's name. The hyphen may, and so may the
// dashes by which word processors replace it: figure, en, em and swung dash, horizontal bar.
[[nodiscard]] constexpr bool isHyphen(wchar_t character) noexcept
{
    constexpr wchar_t figure_dash = 0x2012;
    if (character < figure_dash) // as nearly all are
    {
        return character == 0x002D;
    }
    return character <= 0x2015 || character == 0x2053;
}

// Returns 1 if the character at the position is a hyphen character, else 0.
[[nodiscard]] constexpr std::size_t hyphenPrefixLength(std::wstring_view text,
                                                       std::size_t position) noexcept
{
    return position < text.size() && isHyphen(text[position]) ? 1 : 0;
}

// Returns how many hyphen characters stand in front of an option's name: at most two.
[[nodiscard]] constexpr std::size_t countHyphens(std::wstring_view argument) noexcept
{
    const std::size_t first = hyphenPrefixLength(argument, 0);
    return first == 0 ? 0 : first + hyphenPrefixLength(argument, first);
}

// The white space of the global locale at the time of construction.
class WhiteSpace
{
public:
    WhiteSpace();

    [[nodiscard]] bool contains(wchar_t character) const
    {
        return m_facet == nullptr ? isClassicSpace(character)
                                  : m_facet->is(std::ctype_base::space, character);
    }

    // Returns the text before the first "=" or white space, or the whole text.
    [[nodiscard]] HashedText nameIn(std::wstring_view text) const;

private:
    std::locale m_locale;
    const std::ctype<wchar_t>* m_facet; // null for the classic locale
};

struct OptionArgument
{
    HashedText name;
    std::wstring_view value; // empty if the argument has no value part
    bool hasValue = false;
};

// Skips up to two hyphen characters, then ends the name at the first "=" or white space. The value
// is all that follows the "=", or all that follows the run of white space. The parts lie in the
// argument.
[[nodiscard]] OptionArgument splitOptionArgument(std::wstring_view argument,
                                                 const WhiteSpace& whiteSpace);

} // namespace kexa_3_3
