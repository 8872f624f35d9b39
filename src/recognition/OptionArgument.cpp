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

} // namespace kexa_3_3
