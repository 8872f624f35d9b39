#include "support/text/Utf8.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>

#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

// A decoded sequence: its code point, U+FFFD if it is ill-formed, and its length in bytes.
struct Decoded
{
    std::uint32_t codePoint;
    std::size_t length;
};

// The sequences that a leading byte may begin: how many continuation bytes they have, and the range
// of the first of those. The range excludes overlong forms, surrogates and numbers beyond U+10FFFF
// (Unicode Standard, table 3-7).
struct LeadingByte
{
    std::uint32_t payload;
    std::size_t following; // 0: no sequence begins with this byte
    unsigned char lowest;
    unsigned char highest;
};

LeadingByte classify(unsigned char byte) noexcept
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

// Decodes the sequence at the front of `bytes`. Precondition: it does not begin with ASCII.
Decoded decodeSequence(std::string_view bytes) noexcept
{
    assert(!bytes.empty() && static_cast<unsigned char>(bytes[0]) >= 0x80);
    LeadingByte lead = classify(static_cast<unsigned char>(bytes[0]));
    if (lead.following == 0)
    {
        return {replacement_character, 1};
    }
    std::size_t length = 1;
    while (length <= lead.following)
    {
        const auto byte = length < bytes.size() ? static_cast<unsigned char>(bytes[length])
                                                : static_cast<unsigned char>(0);
        if (byte < lead.lowest || byte > lead.highest)
        {
            return {replacement_character, length};
        }
        lead.payload = (lead.payload << 6) | (byte & 0x3FU);
        lead.lowest = 0x80;
        lead.highest = 0xBF;
        ++length;
    }
    return {lead.payload, length};
}

// Writes the units of a code point. Returns the position behind them.
wchar_t* writeWide(wchar_t* out, std::uint32_t codePoint) noexcept
{
    assert(codePoint <= 0x10FFFF);
    if constexpr (wide_is_utf16)
    {
        if (codePoint > 0xFFFF)
        {
            *out++ = static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10));
            *out++ = static_cast<wchar_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
            return out;
        }
    }
    *out++ = static_cast<wchar_t>(codePoint);
    return out;
}

// Precondition: the code point is not ASCII.
void appendUtf8(std::string& bytes, std::uint32_t codePoint)
{
    assert(codePoint >= 0x80 && codePoint <= 0x10FFFF);
    const auto continuation = [codePoint](unsigned shift)
    {
        return static_cast<char>(0x80 | ((codePoint >> shift) & 0x3F));
    };
    if (codePoint < 0x800)
    {
        bytes.push_back(static_cast<char>(0xC0 | (codePoint >> 6)));
    }
    else if (codePoint < 0x10000)
    {
        bytes.push_back(static_cast<char>(0xE0 | (codePoint >> 12)));
        bytes.push_back(continuation(6));
    }
    else
    {
        bytes.push_back(static_cast<char>(0xF0 | (codePoint >> 18)));
        bytes.push_back(continuation(12));
        bytes.push_back(continuation(6));
    }
    bytes.push_back(continuation(0));
}

} // namespace

std::wstring wideFromUtf8(std::string_view bytes)
{
    std::wstring text;
    const std::size_t length = wideFromUtf8(bytes, text).size();
    text.resize(length);
    return text;
}

std::wstring_view wideFromUtf8(std::string_view bytes, std::wstring& buffer)
{
    // No sequence decodes to more units than it has bytes.
    if (buffer.size() < bytes.size())
    {
        buffer.resize(std::max(bytes.size(), 2 * buffer.size()));
    }
    wchar_t* out = buffer.data();
    std::size_t position = 0;
    while (position < bytes.size())
    {
        const auto byte = static_cast<unsigned char>(bytes[position]);
        if (byte < 0x80)
        {
            *out++ = static_cast<wchar_t>(byte);
            ++position;
        }
        else
        {
            const Decoded decoded = decodeSequence(bytes.substr(position));
            out = writeWide(out, decoded.codePoint);
            position += decoded.length;
        }
    }
    const auto length = static_cast<std::size_t>(out - buffer.data());
    assert(length <= bytes.size());
    return {buffer.data(), length};
}

std::string utf8FromWide(std::wstring_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t position = 0; position < text.size(); ++position)
    {
        const wchar_t unit = text[position];
        // Where wchar_t is signed, a negative unit becomes a number above all code points.
        auto codePoint = static_cast<std::uint32_t>(unit); // NOLINT(bugprone-signed-char-misuse)
        if (codePoint < 0x80)
        {
            bytes.push_back(static_cast<char>(codePoint));
            continue;
        }
        if (wide_is_utf16 && isHighSurrogate(unit) && position + 1 < text.size() &&
            isLowSurrogate(text[position + 1]))
        {
            ++position;
            codePoint = 0x10000 + ((codePoint - 0xD800) << 10) +
                        (static_cast<std::uint32_t>(text[position]) - 0xDC00);
        }
        else if (isHighSurrogate(unit) || isLowSurrogate(unit) || codePoint > 0x10FFFF)
        {
            codePoint = replacement_character;
        }
        appendUtf8(bytes, codePoint);
    }
    return bytes;
}

} // namespace kexa_3_3
