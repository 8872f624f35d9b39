#include "recognition/OptionArgument.h"

namespace kexa_3_3
{

WhiteSpace::WhiteSpace()
    : m_facet(m_locale == std::locale::classic() ? nullptr
                                                 : &std::use_facet<std::ctype<wchar_t>>(m_locale))
{
}

HashedText WhiteSpace::nameIn(std::wstring_view text) const
{
    TextHash hash;
    const auto isPart = [this](wchar_t character)
    { return character != L'=' && !contains(character); };
    std::size_t length = 0;
    for (; length < text.size() && isPart(text[length]); ++length)
    {
        hash.add(text[length]);
    }
    return HashedText(text.substr(0, length), hash);
}

OptionArgument splitOptionArgument(std::wstring_view argument, const WhiteSpace& whiteSpace)
{
    std::wstring_view rest = argument;
    rest.remove_prefix(countHyphens(argument));
    const HashedText name = whiteSpace.nameIn(rest);
    rest.remove_prefix(name.text().size());
    OptionArgument split = {name, {}, !rest.empty()};
    if (split.hasValue)
    {
        const bool behindSpace = rest.front() != L'=';
        rest.remove_prefix(1);
        while (behindSpace && !rest.empty() && whiteSpace.contains(rest.front()))
        {
            rest.remove_prefix(1);
        }
        split.value = rest;
    }
    return split;
}

} // namespace kexa_3_3
