#include "recognition/OptionArgument.h"

namespace kexa_3_3
{

WhiteSpace::WhiteSpace()
    : m_facet(m_locale == std::locale::classic() ? nullptr
                                                 : &std::use_facet<std::ctype<wchar_t>>(m_locale))
{
}

namespace
{

// Returns the beginning of the text, up to the first character that ends a name.
template <class EndsName>
HashedText beginningOf(std::wstring_view text, EndsName endsName)
{
    TextHash hash;
    std::size_t length = 0;
    for (; length < text.size() && !endsName(text[length]); ++length)
    {
        hash.add(text[length]);
    }
    return HashedText({text.data(), length}, hash);
}

} // namespace

HashedText WhiteSpace::nameIn(std::wstring_view text) const
{
    if (m_facet == nullptr)
    {
        // One comparison excludes letters, which never end a name.
        return beginningOf(
            text, [](wchar_t character)
            { return character <= L'=' && (character == L'=' || isClassicSpace(character)); });
    }
    return beginningOf(text, [this](wchar_t character)
                       { return character == L'=' || contains(character); });
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
