#include "recognition/OptionArgument.h"

#include <algorithm>

namespace kexa_3_3
{

WhiteSpace::WhiteSpace()
    : m_facet(m_locale == std::locale::classic() ? nullptr
                                                 : &std::use_facet<std::ctype<wchar_t>>(m_locale))
{
}

OptionArgument splitOptionArgument(std::wstring_view argument, const WhiteSpace& whiteSpace)
{
    std::wstring_view rest = argument.substr(countHyphens(argument));
    const auto end = std::find_if(rest.begin(), rest.end(),
                                  [&whiteSpace](wchar_t character)
                                  { return character == L'=' || whiteSpace.contains(character); });
    const auto length = static_cast<std::size_t>(end - rest.begin());
    OptionArgument split;
    split.name = HashedText(rest.substr(0, length));
    split.hasValue = length < rest.size();
    if (split.hasValue)
    {
        rest.remove_prefix(length);
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
