#include "recognition/OptionArgument.h"

namespace kexa_3_3
{

namespace
{

bool isClassicNameEnd(wchar_t character) noexcept
{
    return character == L'=' || isClassicSpace(character);
}

} // namespace

WhiteSpace::WhiteSpace()
    : m_facet(m_locale == std::locale::classic() ? nullptr
                                                 : &std::use_facet<std::ctype<wchar_t>>(m_locale))
{
}

HashedText WhiteSpace::nameIn(std::wstring_view text) const
{
    TextHash hash;
    std::size_t length = 0;
    // Letters and digits of the classic locale stand above all that ends a name.
    while (length < text.size() &&
           (m_facet == nullptr ? text[length] > L'=' || !isClassicNameEnd(text[length])
                               : text[length] != L'=' && !contains(text[length])))
    {
        hash.add(text[length]);
        ++length;
    }
    return HashedText({text.data(), length}, hash);
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
