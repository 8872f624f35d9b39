#include "support/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "support/text/Text.h"

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
        lead.payload = (lead.payload << 6) | (byte & 0x3FU);
        lead.lowest = 0x80;
        lead.highest = 0xBF;
        ++length;
    }
    return {lead.payload, length};
}

// Writes the units of a code point, and answers where the next ones go.
wchar_t* writeWide(wchar_t* out, std::uint32_t codePoint) noexcept
{
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

// How many bytes at the front are ASCII, in whole groups of eight.
std::size_t asciiGroups(std::string_view bytes) noexcept
{
    constexpr std::size_t group = sizeof(std::uint64_t);
    std::size_t length = 0;
    for (; bytes.size() - length >= group; length += group)
    {
        std::uint64_t chunk = 0;
        std::memcpy(&chunk, bytes.data() + length, group);
        if ((chunk & 0x8080808080808080) != 0)
        {
            break;
        }
    }
    return length;
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
    const std::size_t length = wideFromUtf8(bytes, text).size();
    text.resize(length);
    return text;
}

std::wstring_view wideFromUtf8(std::string_view bytes, std::wstring& room)
{
    // No sequence gives more units than it has bytes.
    if (room.size() < bytes.size())
    {
        room.resize(std::max(bytes.size(), 2 * room.size()));
    }
    wchar_t* out = room.data();
    while (!bytes.empty())
    {
        const std::size_t ascii = asciiGroups(bytes);
        out = std::transform(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(ascii), out,
                             [](char byte) { return static_cast<wchar_t>(byte); });
        bytes.remove_prefix(ascii);
        // What ends the run: fewer than eight bytes, or something else than ASCII among them.
        for (std::size_t rest = std::min<std::size_t>(bytes.size(), sizeof(std::uint64_t));
             rest != 0;)
        {
            const auto byte = static_cast<unsigned char>(bytes.front());
            const Decoded decoded = byte < 0x80 ? Decoded{byte, 1} : decodeSequence(bytes);
            out = writeWide(out, decoded.codePoint);
            bytes.remove_prefix(decoded.length);
            rest -= std::min(rest, decoded.length);
        }
    }
    return {room.data(), static_cast<std::size_t>(out - room.data())};
}

std::string utf8FromWide(std::wstring_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t position = 0; position < text.size(); ++position)
    {
        const wchar_t unit = text[position];
        // A negative one, where wide characters have a sign, is above all code points.
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
