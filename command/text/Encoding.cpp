#include "Encoding.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "../Inline.h"
#include "CodePoints.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

inline constexpr bool wide_is_utf16 = sizeof(wchar_t) == 2;

// How many bytes at the front are ASCII, up to seven that follow whole groups of eight excepted.
KEXA_COMMAND_LOCAL std::size_t asciiGroupsAtFront(std::string_view text) noexcept
{
    std::size_t length = 0;
    for (; text.size() - length >= sizeof(std::uint64_t); length += sizeof(std::uint64_t))
    {
        std::uint64_t group = 0;
        std::memcpy(&group, text.data() + length, sizeof group);
        if ((group & 0x8080808080808080U) != 0)
        {
            break;
        }
    }
    return length;
}

KEXA_COMMAND_LOCAL bool isContinuationByte(char byte) noexcept
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// The three bytes of a surrogate, which no well-formed UTF-8 has.
[[maybe_unused]] KEXA_COMMAND_LOCAL bool beginsWithSurrogate(std::string_view text) noexcept
{
    return text.size() >= 3 && text[0] == '\xED' && static_cast<unsigned char>(text[1]) >= 0xA0 &&
           isContinuationByte(text[1]) && isContinuationByte(text[2]);
}

// Writes what the bytes at the front stand for to `out`, and removes them from `text`. Never writes
// more units than it removes bytes. Returns the end of what it wrote.
KEXA_COMMAND_LOCAL wchar_t* widenFront(std::string_view& text, wchar_t* out) noexcept
{
    DecodedCodePoint decoded = decodeCodePoint(text);
    if constexpr (wide_is_utf16)
    {
        if (decoded.value > 0xFFFF)
        {
            *out++ = static_cast<wchar_t>(0xD800 + ((decoded.value - 0x10000) >> 10));
            decoded.value = 0xDC00 + ((decoded.value - 0x10000) & 0x3FF);
        }
        else if (!decoded.wellFormed && beginsWithSurrogate(text))
        {
            decoded.value = 0xD000 | ((char32_t{static_cast<unsigned char>(text[1])} & 0x3F) << 6) |
                            (char32_t{static_cast<unsigned char>(text[2])} & 0x3F);
            decoded.length = 3;
        }
    }
    else if (!decoded.wellFormed)
    {
        decoded = {escapedByte(text.front()), 1, false};
    }
    *out++ = static_cast<wchar_t>(decoded.value);
    text.remove_prefix(decoded.length);
    return out;
}

KEXA_COMMAND_INLINE void appendWide(std::wstring& target, std::string_view text)
{
    const std::size_t before = target.size();
    target.resize(before + text.size());
    wchar_t* const begin = target.data() + before;
    wchar_t* out = begin;
    while (!text.empty())
    {
        const std::size_t ascii = asciiGroupsAtFront(text);
        out = std::transform(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(ascii), out,
                             [](char byte) { return static_cast<wchar_t>(byte); });
        text.remove_prefix(ascii);
        for (int count = 0; count < 8 && !text.empty(); ++count)
        {
            if (static_cast<unsigned char>(text.front()) < 0x80)
            {
                *out++ = static_cast<wchar_t>(text.front());
                text.remove_prefix(1);
            }
            else
            {
                out = widenFront(text, out);
            }
        }
    }
    target.resize(before + static_cast<std::size_t>(out - begin));
}

KEXA_COMMAND_LOCAL bool isHighSurrogate(char32_t unit) noexcept
{
    return unit >= 0xD800 && unit < 0xDC00;
}

KEXA_COMMAND_LOCAL bool isLowSurrogate(char32_t unit) noexcept
{
    return unit >= 0xDC00 && unit < 0xE000;
}

KEXA_COMMAND_INLINE void appendNarrow(std::string& target, std::wstring_view text)
{
    target.reserve(target.size() + text.size());
    while (!text.empty())
    {
        // A negative one, where wide characters have a sign, is above all code points.
        char32_t codePoint = static_cast<char32_t>(text.front());
        text.remove_prefix(1);
        if (codePoint < 0x80)
        {
            target.push_back(static_cast<char>(codePoint));
            continue;
        }
        if constexpr (wide_is_utf16)
        {
            if (isHighSurrogate(codePoint) && !text.empty() &&
                isLowSurrogate(static_cast<char32_t>(text.front())))
            {
                codePoint = 0x10000 + ((codePoint - 0xD800) << 10) +
                            (static_cast<char32_t>(text.front()) - 0xDC00);
                text.remove_prefix(1);
            }
        }
        else if (codePoint >= 0xDC80 && codePoint <= 0xDCFF)
        {
            target.push_back(static_cast<char>(codePoint - 0xDC00));
            continue;
        }
        else if (codePoint > 0x10FFFF || isHighSurrogate(codePoint) || isLowSurrogate(codePoint))
        {
            codePoint = replacement_character;
        }
        appendCodePoint(target, codePoint);
    }
}

KEXA_COMMAND_INLINE std::wstring widen(std::string_view text)
{
    std::wstring wide;
    appendWide(wide, text);
    return wide;
}

KEXA_COMMAND_INLINE std::string narrow(std::wstring_view text)
{
    std::string bytes;
    appendNarrow(bytes, text);
    return bytes;
}

} // namespace detail
} // namespace v1
} // namespace kexa
