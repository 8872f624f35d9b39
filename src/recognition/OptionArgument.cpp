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
    const std::wstring_view rest = argument.substr(begin);
    const std::size_t end = whiteSpace.endOfName(rest);
    OptionArgument split;
    split.name = rest.substr(0, end);
    if (end == rest.size())
    {
        return split;
    }
    split.hasValue = true;
    std::size_t value = end + 1;
    if (rest[end] != L'=')
    {
        while (value < rest.size() && whiteSpace.contains(rest[value]))
        {
            ++value;
        }
    }
    split.value = rest.substr(value);
    return split;
}

} // namespace kexa_3_3
