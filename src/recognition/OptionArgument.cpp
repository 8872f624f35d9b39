#include "recognition/OptionArgument.h"

namespace kexa_3_3
{

WhiteSpace::WhiteSpace()
    : m_facet(m_locale == std::locale::classic() ? nullptr
                                                 : &std::use_facet<std::ctype<wchar_t>>(m_locale))
{
}

HashedText WhiteSpace::nameByFacet(std::wstring_view text) const
{
    TextHash hash;
    const wchar_t* const behind = text.data() + text.size();
    const wchar_t* const end =
        hashUntil(text.data(), hash,
                  [this, behind](const wchar_t* place)
                  { return place == behind || *place == L'=' || contains(*place); });
    return HashedText({text.data(), static_cast<std::size_t>(end - text.data())}, hash);
}

void splitOptionArgument(std::wstring_view argument, const WhiteSpace& whiteSpace,
                         OptionArgument& split)
{
    std::size_t begin = hyphenPrefixLength(argument, 0);
    begin += hyphenPrefixLength(argument, begin);
    std::wstring_view rest = argument;
    rest.remove_prefix(begin);
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
