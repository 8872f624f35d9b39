#include "NaiveUtf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace naive
{

namespace
{

using CodePoint = std::uint32_t;

constexpr wchar_t replacement = 0xFFFD;

unsigned byteAt(std::string_view bytes, std::size_t position)
{
    return static_cast<unsigned char>(bytes[position]);
}

// Returns the length of the sequence that a byte begins; 0 if it begins none.
std::size_t lengthByFirst(unsigned first)
{
    if (first < 0x80)
    {
        return 1;
    }
    if (first >= 0xC0 && first < 0xE0)
    {
        return 2;
    }
    if (first >= 0xE0 && first < 0xF0)
    {
        return 3;
    }
    return first >= 0xF0 && first < 0xF8 ? 4 : 0;
}

// Returns whether the bytes are one well-formed sequence, and decodes it.
bool decodeOne(std::string_view bytes, CodePoint& codePoint)
{
    const std::size_t length = bytes.empty() ? 0 : lengthByFirst(byteAt(bytes, 0));
    if (length == 0 || length != bytes.size())
    {
        return false;
    }
    constexpr unsigned payload[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    constexpr CodePoint shortest[] = {0, 0, 0x80, 0x800, 0x10000};
    codePoint = byteAt(bytes, 0) & payload[length];
    for (std::size_t position = 1; position < length; ++position)
    {
        if ((byteAt(bytes, position) & 0xC0) != 0x80)
        {
            return false;
        }
        codePoint = (codePoint << 6) | (byteAt(bytes, position) & 0x3F);
    }
    return codePoint >= shortest[length] && codePoint <= 0x10FFFF &&
           (codePoint < 0xD800 || codePoint > 0xDFFF);
}

// Returns whether more bytes can complete these to a well-formed sequence. Only the range of the
// second byte depends on the first byte, so it is enough to try the ends of all ranges there.
bool beginsSequence(std::string_view bytes)
{
    const std::size_t length = lengthByFirst(byteAt(bytes, 0));
    if (length <= bytes.size())
    {
        return false;
    }
    for (const char second : {'\x80', '\x8F', '\x90', '\x9F', '\xA0', '\xBF'})
    {
        std::string whole(bytes);
        if (whole.size() == 1)
        {
            whole.push_back(second);
        }
        whole.resize(length, '\x80');
        CodePoint ignored = 0;
        if (decodeOne(whole, ignored))
        {
            return true;
        }
    }
    return false;
}

void append(std::wstring& text, CodePoint codePoint)
{
    if (sizeof(wchar_t) == 2 && codePoint > 0xFFFF)
    {
        text.push_back(static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10)));
        text.push_back(static_cast<wchar_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF)));
        return;
    }
    text.push_back(static_cast<wchar_t>(codePoint));
}

} // namespace

std::wstring decodeUtf8(std::string_view bytes)
{
    std::wstring text;
    while (!bytes.empty())
    {
        CodePoint codePoint = replacement;
        std::size_t length = 1;
        while (length <= std::min<std::size_t>(4, bytes.size()) &&
               !decodeOne(bytes.substr(0, length), codePoint))
        {
            ++length;
        }
        if (length > std::min<std::size_t>(4, bytes.size()))
        {
            codePoint = replacement;
            length = 1;
            while (length < bytes.size() && beginsSequence(bytes.substr(0, length + 1)))
            {
                ++length;
            }
        }
        append(text, codePoint);
        bytes.remove_prefix(length);
    }
    return text;
}

} // namespace naive
