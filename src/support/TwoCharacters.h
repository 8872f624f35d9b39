// Two characters looked at as one number.
#pragma once

#include <cstdint>
#include <cstring>

namespace kexa_3_3
{

// Two wide characters that follow each other, side by side in a number whose other bits are zero.
[[nodiscard]] inline std::uint64_t twoCharacters(const wchar_t* text) noexcept
{
    static_assert(2 * sizeof(wchar_t) <= sizeof(std::uint64_t));
    std::uint64_t two = 0;
    std::memcpy(&two, text, 2 * sizeof(wchar_t));
    return two;
}

// Whether one of two characters may lie below a limit, itself below the upper half of the codes: no
// where none does, unless one lies in that half. Where one does, subtracting the limit from it sets
// its highest bit, whether or not it borrows from the other one ("Bit Twiddling Hacks", S. E.
// Anderson, "Determine if a word has a byte less than n", without the mask for the upper half).
template <wchar_t limit>
[[nodiscard]] constexpr bool anyMayBeBelow(std::uint64_t two) noexcept
{
    constexpr unsigned bits = 8 * sizeof(wchar_t);
    constexpr std::uint64_t ones = std::uint64_t{1} << bits | 1;
    static_assert((static_cast<std::uint64_t>(limit) >> (bits - 1)) == 0);
    return ((two - ones * static_cast<std::uint64_t>(limit)) & ones << (bits - 1)) != 0;
}

} // namespace kexa_3_3
