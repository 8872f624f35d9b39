// Conversion between wide text and the bytes of arguments and file names on POSIX systems.
//
// Bytes are decoded as UTF-8. A byte that is not part of well-formed UTF-8 becomes the lone
// surrogate U+DC00 + byte (U+DC80 to U+DCFF), which is converted back to the byte. A file name in
// an older encoding thus survives a parser of wide text.
#ifndef KEXA_EXAMPLES_TEXT_H
#define KEXA_EXAMPLES_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>

namespace example
{

struct Decoded
{
    char32_t codePoint;
    std::size_t length; // in bytes; 0 if the bytes are ill-formed
};

// Decodes the code point that begins at `position`, which is less than the size of the text.
inline Decoded decodeAt(std::string_view bytes, std::size_t position)
{
    constexpr Decoded illFormed = {0, 0};
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000}; // by length
    const auto byteAt = [bytes](std::size_t index) -> char32_t
    {
        return static_cast<unsigned char>(bytes[index]);
    };
    const char32_t lead = byteAt(position);
    if (lead < 0x80)
    {
        return {lead, 1};
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC0 || lead > 0xF7 || bytes.size() - position < length)
    {
        return illFormed;
    }
    char32_t codePoint = lead & (0x7FU >> length);
    for (std::size_t index = 1; index < length; ++index)
    {
        const char32_t next = byteAt(position + index);
        if ((next & 0xC0) != 0x80)
        {
            return illFormed;
        }
        codePoint = (codePoint << 6) | (next & 0x3F);
    }
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    const bool tooLong = codePoint < smallest[length];
    return surrogate || tooLong || codePoint > 0x10FFFF ? illFormed : Decoded{codePoint, length};
}

inline void appendWide(std::wstring& text, char32_t codePoint)
{
    if (sizeof(wchar_t) == 2 && codePoint > 0xFFFF)
    {
        text += static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10));
        codePoint = 0xDC00 + ((codePoint - 0x10000) & 0x3FF);
    }
    text += static_cast<wchar_t>(codePoint);
}

inline std::wstring toWide(std::string_view bytes)
{
    std::wstring text;
    for (std::size_t position = 0; position < bytes.size();)
    {
        const Decoded decoded = decodeAt(bytes, position);
        const auto byte = static_cast<unsigned char>(bytes[position]);
        appendWide(text, decoded.length == 0 ? 0xDC00U + byte : decoded.codePoint);
        position += decoded.length == 0 ? 1 : decoded.length;
    }
    return text;
}

inline void appendUtf8(std::string& bytes, char32_t codePoint)
{
    const auto append = [&bytes](char32_t byte)
    {
        bytes += static_cast<char>(byte);
    };
    if (codePoint < 0x80)
    {
        append(codePoint);
        return;
    }
    const int trailing = codePoint < 0x800 ? 1 : codePoint < 0x10000 ? 2 : 3;
    append(((0xFF00U >> (trailing + 1)) & 0xFF) | (codePoint >> (6 * trailing)));
    for (int index = trailing - 1; index >= 0; --index)
    {
        append(0x80 | ((codePoint >> (6 * index)) & 0x3F));
    }
}

// Lone surrogates outside U+DC80 to U+DCFF become U+FFFD.
inline std::string toBytes(std::wstring_view text)
{
    std::string bytes;
    for (std::size_t index = 0; index < text.size(); ++index)
    {
        const auto unit = static_cast<char32_t>(text[index]);
        const char32_t next =
            index + 1 < text.size() ? static_cast<char32_t>(text[index + 1]) : U'\0';
        const bool paired =
            sizeof(wchar_t) == 2 && (unit & 0xFFFFFC00) == 0xD800 && (next & 0xFFFFFC00) == 0xDC00;
        if (paired)
        {
            appendUtf8(bytes, 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00));
            ++index;
        }
        else if (unit >= 0xDC80 && unit <= 0xDCFF)
        {
            bytes += static_cast<char>(unit - 0xDC00);
        }
        else
        {
            const bool noCharacter = (unit >= 0xD800 && unit <= 0xDFFF) || unit > 0x10FFFF;
            appendUtf8(bytes, noCharacter ? 0xFFFD : unit);
        }
    }
    return bytes;
}

} // namespace example

#endif
