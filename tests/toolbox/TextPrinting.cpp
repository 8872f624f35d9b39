#include "TextPrinting.h"

#include <cstddef>
#include <cstdint>

namespace toolbox
{

namespace
{

constexpr std::uint32_t replacement_character = 0xFFFD;

bool isHighSurrogate(std::uint32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(std::uint32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

// Returns the character at `index` and moves `index` past it.
std::uint32_t takeCharacter(std::wstring_view text, std::size_t& index)
{
    const auto unit = static_cast<std::uint32_t>(text[index]);
    ++index;
    if (sizeof(wchar_t) == 2 && isHighSurrogate(unit) && index < text.size())
    {
        const auto next = static_cast<std::uint32_t>(text[index]);
        if (isLowSurrogate(next))
        {
            ++index;
            return 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00);
        }
    }
    const bool isCharacter = unit <= 0x10FFFF && !isHighSurrogate(unit) && !isLowSurrogate(unit);
    return isCharacter ? unit : replacement_character;
}

void append(std::string& out, std::uint32_t character)
{
    const auto continuation = [character](unsigned shift)
    {
        return static_cast<char>(0x80U | ((character >> shift) & 0x3FU));
    };
    if (character < 0x80)
    {
        out += static_cast<char>(character);
    }
    else if (character < 0x800)
    {
        out += static_cast<char>(0xC0U | (character >> 6));
        out += continuation(0);
    }
    else if (character < 0x10000)
    {
        out += static_cast<char>(0xE0U | (character >> 12));
        out += continuation(6);
        out += continuation(0);
    }
    else
    {
        out += static_cast<char>(0xF0U | (character >> 18));
        out += continuation(12);
        out += continuation(6);
        out += continuation(0);
    }
}

} // namespace

std::string toUtf8(std::wstring_view text)
{
    std::string out;
    for (std::size_t index = 0; index < text.size();)
    {
        append(out, takeCharacter(text, index));
    }
    return out;
}

} // namespace toolbox
