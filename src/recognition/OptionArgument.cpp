#include "recognition/OptionArgument.h"

#include <algorithm>

namespace kexa_3_3
{

std::size_t hyphenPrefixLength(std::wstring_view text, std::size_t position) noexcept
{
    if (position >= text.size())
    {
        return 0;
    }
    const bool hyphen = std::find(hyphen_characters.begin(), hyphen_characters.end(),
                                  text[position]) != hyphen_characters.end();
    return hyphen ? 1 : 0;
}

WhiteSpace::WhiteSpace()
    : m_facet(m_locale == std::locale::classic() ? nullptr
                                                 : &std::use_facet<std::ctype<wchar_t>>(m_locale))
{
}

OptionArgument splitOptionArgument(std::wstring_view argument, const WhiteSpace& whiteSpace)
{
    std::size_t begin = hyphenPrefixLength(argument, 0);
    begin += hyphenPrefixLength(argument, begin);
    const std::wstring_view rest = argument.substr(begin);
    const auto end =
        std::find_if(rest.begin(), rest.end(),
                     [&whiteSpace](wchar_t character) { return whiteSpace.endsName(character); });
    OptionArgument split;
    const auto length = static_cast<std::size_t>(end - rest.begin());
    split.name = rest.substr(0, length);
    if (end == rest.end())
    {
        return split;
    }
    split.hasValue = true;
    auto value = end + 1;
    if (*end != L'=')
    {
        value = std::find_if(value, rest.end(),
                             [&whiteSpace](wchar_t character)
                             { return !whiteSpace.contains(character); });
    }
    split.value = rest.substr(static_cast<std::size_t>(value - rest.begin()));
    return split;
}

} // namespace kexa_3_3
