#include "CodePoints.h"

#include <cassert>

#include "../Inline.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// What a leading byte asks for: how many bytes follow, and the range of the first of them, which
// shuts out overlong forms, surrogates and numbers beyond U+10FFFF (Unicode Standard, table 3-7).
struct LeadingByte
{
    char32_t payload;
    std::size_t following; // 0: not a leading byte of more than one
    unsigned char lowest;
    unsigned char highest;
};

KEXA_COMMAND_LOCAL LeadingByte classifyLeadingByte(unsigned char byte) noexcept
{
    if (byte < 0xC2 || byte > 0xF4)
    {
        return {0, 0, 0, 0};
    }
    if (byte < 0xE0)
    {
        return {byte & 0x1FU, 1, 0x80, 0xBF};
    }
    if (byte < 0xF0)
    {
        return {byte & 0x0FU, 2, static_cast<unsigned char>(byte == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(byte == 0xED ? 0x9F : 0xBF)};
    }
    return {byte & 0x07U, 3, static_cast<unsigned char>(byte == 0xF0 ? 0x90 : 0x80),
            static_cast<unsigned char>(byte == 0xF4 ? 0x8F : 0xBF)};
}

KEXA_COMMAND_INLINE DecodedCodePoint decodeCodePoint(std::string_view text) noexcept
{
    assert(!text.empty());
    const auto first = static_cast<unsigned char>(text.front());
    if (first < 0x80)
    {
        return {first, 1, true};
    }
    LeadingByte lead = classifyLeadingByte(first);
    if (lead.following == 0)
    {
        return {replacement_character, 1, false};
    }
    for (std::size_t length = 1; length <= lead.following; ++length)
    {
        const auto byte = static_cast<unsigned char>(length < text.size() ? text[length] : '\0');
        if (byte < lead.lowest || byte > lead.highest)
        {
            return {replacement_character, length, false};
        }
        lead.payload = (lead.payload << 6) | (byte & 0x3FU);
        lead.lowest = 0x80;
        lead.highest = 0xBF;
    }
    return {lead.payload, lead.following + 1, true};
}

KEXA_COMMAND_INLINE void appendCodePoint(std::string& text, char32_t codePoint)
{
    assert(codePoint <= 0x10FFFF);
    if (codePoint < 0x80)
    {
        text.push_back(static_cast<char>(codePoint));
        return;
    }
    if (codePoint < 0x800)
    {
        text.push_back(static_cast<char>(0xC0 | (codePoint >> 6)));
    }
    else
    {
        if (codePoint < 0x10000)
        {
            text.push_back(static_cast<char>(0xE0 | (codePoint >> 12)));
        }
        else
        {
            text.push_back(static_cast<char>(0xF0 | (codePoint >> 18)));
            text.push_back(static_cast<char>(0x80 | ((codePoint >> 12) & 0x3F)));
        }
        text.push_back(static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F)));
    }
    text.push_back(static_cast<char>(0x80 | (codePoint & 0x3F)));
}

KEXA_COMMAND_INLINE std::u32string codePointsOf(std::string_view text)
{
    std::u32string codePoints;
    codePoints.reserve(text.size());
    while (!text.empty())
    {
        const DecodedCodePoint decoded = decodeCodePoint(text);
        // The bytes behind the first one of an ill-formed part are ill-formed by themselves.
        codePoints.push_back(decoded.wellFormed ? decoded.value : escapedByte(text.front()));
        text.remove_prefix(decoded.wellFormed ? decoded.length : 1);
    }
    return codePoints;
}

} // namespace detail
} // namespace v1
} // namespace kexa
