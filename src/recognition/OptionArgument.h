// Splitting an argument into an option's name and value. Knows no options.
#pragma once

#include <cstddef>
#include <locale>
#include <string_view>

#include "support/HashedText.h"
#include "support/Text.h"
#include "support/TwoCharacters.h"

namespace kexa_3_3
{

// What may stand before an option's name: the hyphen of keyboards, and the dashes by which word
// processors replace it (figure, en, em dash, horizontal bar; swung dash).
[[nodiscard]] constexpr bool isHyphen(wchar_t character) noexcept
{
    constexpr wchar_t figure_dash = 0x2012;
    if (character < figure_dash) // as next to all are
    {
        return character == 0x002D;
    }
    return character <= 0x2015 || character == 0x2053;
}

// 1 where the character at the position is a hyphen character, else 0.
[[nodiscard]] constexpr std::size_t hyphenPrefixLength(std::wstring_view text,
                                                       std::size_t position) noexcept
{
    return position < text.size() && isHyphen(text[position]) ? 1 : 0;
}

// How many hyphen characters stand in front of an option's name: two at most.
[[nodiscard]] inline std::size_t countHyphens(std::wstring_view argument) noexcept
{
    constexpr std::wstring_view usual = L"--";
    if (argument.size() >= usual.size() &&
        twoCharacters(argument.data()) == twoCharacters(usual.data())) [[likely]]
    {
        return usual.size();
    }
    const std::size_t first = hyphenPrefixLength(argument, 0);
    return first == 0 ? 0 : first + hyphenPrefixLength(argument, first);
}

// Decides what is white space by the global locale at the time it is made.
class WhiteSpace
{
public:
    WhiteSpace();

    // What stands before the first character that is white space or "=", or the whole text.
    [[nodiscard]] HashedText nameIn(std::wstring_view text) const
    {
        if (m_facet != nullptr) [[unlikely]]
        {
            return nameByFacet(text);
        }
        const auto endsName = [](wchar_t character)
        {
            return character == L'=' || isClassicSpace(character);
        };
        const wchar_t* next = text.data();
        TextHash hash;
        bool endsInSingle = false; // whether a last character of the name follows the pairs
        for (std::size_t pairs = text.size() / 2;; --pairs, next += 2)
        {
            if (pairs == 0)
            {
                endsInSingle = text.size() % 2 != 0 && !endsName(*next);
                break;
            }
            // Letters stand above all that ends a name, in the basic set.
            if (anyMayBeBelow<L'=' + 1>(twoCharacters(next)))
            {
                if (endsName(next[0]))
                {
                    break;
                }
                if (endsName(next[1]))
                {
                    endsInSingle = true;
                    break;
                }
            }
            hash.addTwo(next);
        }
        if (endsInSingle)
        {
            hash.addLast(*next);
            ++next;
        }
        return HashedText({text.data(), static_cast<std::size_t>(next - text.data())}, hash);
    }

    [[nodiscard]] bool contains(wchar_t character) const
    {
        return m_facet == nullptr ? isClassicSpace(character)
                                  : m_facet->is(std::ctype_base::space, character);
    }

private:
    [[nodiscard]] HashedText nameByFacet(std::wstring_view text) const;

    std::locale m_locale;
    const std::ctype<wchar_t>* m_facet; // null for the classic locale
};

struct OptionArgument
{
    HashedText name;
    std::wstring_view value; // empty where the argument has no value part
    bool hasValue = false;
};

// Skips up to two hyphen characters, then ends the name at the first "=" or white space. The value
// is all that follows the "=", or all that follows the run of white space.
//
// split: receives the parts, which lie in the argument.
inline void splitOptionArgument(std::wstring_view argument, const WhiteSpace& whiteSpace,
                                OptionArgument& split)
{
    std::wstring_view rest = argument;
    rest.remove_prefix(countHyphens(argument));
    split.name = whiteSpace.nameIn(rest);
    rest.remove_prefix(split.name.size());
    split.hasValue = !rest.empty();
    if (split.hasValue)
    {
        const bool behindSpace = rest.front() != L'=';
        rest.remove_prefix(1);
        while (behindSpace && !rest.empty() && whiteSpace.contains(rest.front()))
        {
            rest.remove_prefix(1);
        }
    }
    split.value = rest;
}

} // namespace kexa_3_3
