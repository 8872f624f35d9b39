#include "recognition/OptionArgument.h"

namespace kexa_3_3
{

WhiteSpace::WhiteSpace()
    : m_facet(m_locale == std::locale::classic() ? nullptr
                                                 : &std::use_facet<std::ctype<wchar_t>>(m_locale))
{
}

OptionArgument splitOptionArgument(std::wstring_view argument, const WhiteSpace& whiteSpace)
{
    std::size_t begin = hyphenPrefixLength(argument, 0);
    begin += hyphenPrefixLength(argument, begin);
    std::wstring_view rest = argument;
    rest.remove_prefix(begin);
    OptionArgument split;
    split.name = whiteSpace.nameIn(rest);
    const std::size_t end = split.name.size();
    if (end == rest.size())
    {
        return split;
    }
    split.hasValue = true;
    split.value = rest;
    split.value.remove_prefix(end + 1);
    while (rest[end] != L'=' && !split.value.empty() && whiteSpace.contains(split.value.front()))
    {
        split.value.remove_prefix(1);
    }
    return split;
}

} // namespace kexa_3_3
