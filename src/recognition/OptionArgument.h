// Splitting an argument into an option's name and value. Knows no options.
#pragma once

#include <array>
#include <cstddef>
#include <locale>
#include <string_view>

#include "support/Text.h"

namespace kexa_3_3
{

// What may stand before an option's name: the hyphen of keyboards, and the dashes by which word
// processors replace it (figure, en, em dash, horizontal bar, swung dash).
inline constexpr std::array<wchar_t, 6> hyphen_characters = {0x002D, 0x2012, 0x2013,
                                                             0x2014, 0x2015, 0x2053};

// 1 where the character at the position is a hyphen character, else 0.
[[nodiscard]] std::size_t hyphenPrefixLength(std::wstring_view text, std::size_t position) noexcept;

// Decides what is white space by the global locale at the time it is made.
class WhiteSpace
{
public:
    WhiteSpace();
    // Whether the character is white space or "=". Letters stand above both in the basic set.
    [[nodiscard]] bool endsName(wchar_t character) const
    {
        const bool mayEnd = character <= L'=' || m_facet != nullptr;
        return mayEnd && (character == L'=' || contains(character));
    }

    [[nodiscard]] bool contains(wchar_t character) const
    {
        return m_facet == nullptr ? isClassicSpace(character)
                                  : m_facet->is(std::ctype_base::space, character);
    }

private:
    std::locale m_locale;
    const std::ctype<wchar_t>* m_facet; // null for the classic locale
};

struct OptionArgument
{
    std::wstring_view name;
    std::wstring_view value; // empty where the argument has no value part
    bool hasValue = false;
};

// Skips up to two hyphen characters, then ends the name at the first "=" or white space. The value
// is all that follows the "=", or all that follows the run of white space.
[[nodiscard]] OptionArgument splitOptionArgument(std::wstring_view argument,
                                                 const WhiteSpace& whiteSpace);

} // namespace kexa_3_3
