// What single characters mean on a command line.
#ifndef KEXA_COMMAND_PRIVATE_CHARACTERS_H
#define KEXA_COMMAND_PRIVATE_CHARACTERS_H

#include <cstddef>
#include <cwctype>
#include <string_view>

namespace kexa
{
inline namespace v1
{
namespace detail
{

// The characters that may stand before an option's name: the hyphen of keyboards, and the dashes by
// which word processors replace it.
constexpr bool isHyphenCharacter(wchar_t character)
{
    return character == 0x2D || (character >= 0x2012 && character <= 0x2015) || character == 0x2053;
}

// White space as the library sees it when it looks for the end of an option's name.
inline bool isBlank(wchar_t character)
{
    return character < 0x80 ? character == L' ' || (character >= L'\t' && character <= L'\r')
                            : std::iswspace(static_cast<std::wint_t>(character)) != 0;
}

constexpr bool isDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

// How many of the at most two hyphens in front of an option's name there are.
constexpr std::size_t countHyphens(std::wstring_view argument)
{
    std::size_t count = 0;
    while (count < 2 && count < argument.size() && isHyphenCharacter(argument[count]))
    {
        ++count;
    }
    return count;
}

// Whether an argument is written as an option.
constexpr bool looksLikeOption(std::wstring_view argument)
{
    return argument.size() >= 2 && isHyphenCharacter(argument.front());
}

// Whether an argument is written as a negative number: "-5", "-.5".
constexpr bool looksNegative(std::wstring_view argument)
{
    return argument.size() >= 2 && argument[0] == L'-' &&
           (isDigit(argument[1]) ||
            (argument[1] == L'.' && argument.size() >= 3 && isDigit(argument[2])));
}

// A character that no argument of a user holds (a lone surrogate that stands for no byte). It marks
// what the layer gives to the parser and takes out of messages again: names of positional
// arguments, which cannot be typed, and the place of an empty text, which the parser takes for no
// value.
inline constexpr wchar_t mark = 0xD800;

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
