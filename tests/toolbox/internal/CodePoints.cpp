#include "CodePoints.h"

#include <cstdio>

namespace unit
{

bool isScalarValue(std::uint32_t codePoint)
{
    return codePoint <= 0x10FFFF && (codePoint < 0xD800 || codePoint > 0xDFFF);
}

std::string encode(std::uint32_t codePoint)
{
    const auto byte = [](std::uint32_t value)
    {
        return static_cast<char>(static_cast<unsigned char>(value));
    };
    if (codePoint <= 0x7F)
    {
        return {byte(codePoint)};
    }
    if (codePoint <= 0x7FF)
    {
        return {byte(0xC0 + codePoint / 64), byte(0x80 + codePoint % 64)};
    }
    if (codePoint <= 0xFFFF)
    {
        return {byte(0xE0 + codePoint / 4096), byte(0x80 + codePoint / 64 % 64),
                byte(0x80 + codePoint % 64)};
    }
    return {byte(0xF0 + codePoint / 262144), byte(0x80 + codePoint / 4096 % 64),
            byte(0x80 + codePoint / 64 % 64), byte(0x80 + codePoint % 64)};
}

std::uint32_t decodeWhole(std::string_view bytes)
{
    const std::uint32_t lead_marks[] = {0, 0, 0xC0, 0xE0, 0xF0};
    std::uint32_t number = static_cast<unsigned char>(bytes[0]);
    if (bytes.size() > 4 || number < lead_marks[bytes.size()])
    {
        return 0xFFFFFFFF;
    }
    number -= lead_marks[bytes.size()];
    for (const char character : bytes.substr(1))
    {
        const std::uint32_t byte = static_cast<unsigned char>(character);
        if (byte < 0x80 || byte > 0xBF)
        {
            return 0xFFFFFFFF;
        }
        number = number * 64 + (byte - 0x80);
    }
    return number;
}

std::wstring wideOf(const std::vector<std::uint32_t>& codePoints)
{
    std::wstring text;
    for (const std::uint32_t codePoint : codePoints)
    {
        if (sizeof(wchar_t) == 2 && codePoint > 0xFFFF)
        {
            text.push_back(static_cast<wchar_t>(0xD800 + (codePoint - 0x10000) / 1024));
            text.push_back(static_cast<wchar_t>(0xDC00 + (codePoint - 0x10000) % 1024));
        }
        else
        {
            text.push_back(static_cast<wchar_t>(codePoint));
        }
    }
    return text;
}

std::string bytesOf(std::string_view bytes)
{
    std::string text;
    for (const char byte : bytes)
    {
        char digits[4] = "";
        std::snprintf(digits, sizeof(digits), "%02X ", static_cast<unsigned char>(byte));
        text += digits;
    }
    return text;
}

} // namespace unit
