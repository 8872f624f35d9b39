#include "support/Utf8.h"

#include <cstddef>
#include <cstdint>

#include "support/Text.h"

namespace kexa_3_3
{

namespace
{

// One step of decoding: a code point, or ill-formed bytes, and how many bytes it took.
struct Decoded
{
    std::uint32_t codePoint;
    std::size_t length;
};

// What a leading byte asks for: how many bytes follow, and the range of the first of them, which
// shuts out overlong forms, surrogates and numbers beyond U+10FFFF (Unicode Standard, table 3-7).
struct LeadingByte
{
    std::uint32_t payload;
    std::size_t following;
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
        return {byte & 0x1Fu, 1, 0x80, 0xBF};
    }
    if (byte < 0xF0)
    {
        return {byte & 0x0Fu, 2, static_cast<unsigned char>(byte == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(byte == 0xED ? 0x9F : 0xBF)};
    }
    return {byte & 0x07u, 3, static_cast<unsigned char>(byte == 0xF0 ? 0x90 : 0x80),
            static_cast<unsigned char>(byte == 0xF4 ? 0x8F : 0xBF)};
}

// Decodes the non-ASCII sequence at the front of `bytes`, which is not empty.
Decoded decodeSequence(std::string_view bytes) noexcept
{
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
        lead.payload = (lead.payload << 6) | (byte & 0x3Fu);
        lead.lowest = 0x80;
        lead.highest = 0xBF;
        ++length;
    }
    return {lead.payload, length};
}

void appendWide(std::wstring& text, std::uint32_t codePoint)
{
    if constexpr (wide_is_utf16)
    {
        if (codePoint > 0xFFFF)
        {
            text.push_back(static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10)));
            text.push_back(static_cast<wchar_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF)));
            return;
        }
    }
    text.push_back(static_cast<wchar_t>(codePoint));
}

void appendUtf8(std::string& bytes, std::uint32_t codePoint)
{
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
    text.reserve(bytes.size()); // no sequence gives more units than it has bytes
    std::size_t position = 0;
    while (position < bytes.size())
    {
        const auto byte = static_cast<unsigned char>(bytes[position]);
        if (byte < 0x80)
        {
            text.push_back(static_cast<wchar_t>(byte));
            ++position;
            continue;
        }
        const Decoded decoded = decodeSequence(bytes.substr(position));
        appendWide(text, decoded.codePoint);
        position += decoded.length;
    }
    return text;
}

std::string utf8FromWide(std::wstring_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t position = 0; position < text.size(); ++position)
    {
        const wchar_t unit = text[position];
        auto codePoint = static_cast<std::uint32_t>(unit);
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
