#include "recognition/OptionArgument.h"

#include <algorithm>

#include "support/Text.h"

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

bool WhiteSpace::contains(wchar_t character) const
{
    return m_facet == nullptr ? isClassicSpace(character)
                              : m_facet->is(std::ctype_base::space, character);
}

OptionArgument splitOptionArgument(std::wstring_view argument, const WhiteSpace& whiteSpace)
{
    std::size_t begin = hyphenPrefixLength(argument, 0);
    begin += hyphenPrefixLength(argument, begin);
    OptionArgument split;
    split.name = argument.substr(begin);
    for (std::size_t position = begin; position < argument.size(); ++position)
    {
        const wchar_t character = argument[position];
        if (character > L'=' && character < 0x80 && whiteSpace.isClassic())
        {
            continue; // most characters of names
        }
        const bool equals = character == L'=';
        if (!equals && !whiteSpace.contains(character))
        {
            continue;
        }
        split.name = argument.substr(begin, position - begin);
        split.hasValue = true;
        ++position;
        while (!equals && position < argument.size() && whiteSpace.contains(argument[position]))
        {
            ++position;
        }
        split.value = argument.substr(position);
        break;
    }
    return split;
}

} // namespace kexa_3_3
