// Texts that carry their hash.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace kexa_3_3
{

// A hash of the text. Only texts that a host declares are stored in tables, so it needs to be quick
// and not to withstand an enemy who chooses what is stored.
[[nodiscard]] inline std::uint64_t hashOf(std::wstring_view text) noexcept
{
    // Two words of eight bytes at a time are multiplied by odd numbers and folded. One is the
    // golden ratio's, which spreads small differences over the upper bits (D. E. Knuth, The Art of
    // Computer Programming, 6.4), the other has no pattern. The last words overlap those before
    // them, which spares a loop over what is left.
    constexpr std::uint64_t first_multiplier = 0x9E3779B97F4A7C15;
    constexpr std::uint64_t second_multiplier = 0xC2B2AE3D27D4EB4F;
    constexpr std::size_t characters = sizeof(std::uint64_t) / sizeof(wchar_t); // in a word
    const wchar_t* front = text.data();
    const std::size_t length = text.size();
    const auto wordAt = [](const wchar_t* position)
    {
        std::uint64_t value = 0;
        std::memcpy(&value, position, sizeof(value));
        return value;
    };
    const auto mix = [](std::uint64_t hash, std::uint64_t first, std::uint64_t second)
    {
        hash = (hash ^ (first * second_multiplier) ^ second) * first_multiplier;
        return hash ^ (hash >> 32);
    };
    const auto mixLast = [mix](std::uint64_t hash, std::uint64_t first, std::uint64_t second)
    {
        hash = mix(hash, first, second) * second_multiplier;
        return hash ^ (hash >> 32);
    };
    std::uint64_t hash = length * first_multiplier;
    if (length >= 2 * characters)
    {
        const wchar_t* const back = front + (length - 2 * characters);
        for (; front < back; front += 2 * characters)
        {
            hash = mix(hash, wordAt(front), wordAt(front + characters));
        }
        return mixLast(hash, wordAt(back), wordAt(back + characters));
    }
    if (length >= characters)
    {
        return mixLast(hash, wordAt(front), wordAt(front + (length - characters)));
    }
    std::uint64_t word = 0;
    for (const wchar_t character : text)
    {
        word = word << 16 ^ static_cast<std::uint64_t>(character);
    }
    return mixLast(hash, word, 0);
}

// For texts that are looked for again and again.
class HashedText : public std::wstring_view
{
public:
    HashedText() noexcept = default; // empty

    explicit HashedText(std::wstring_view text) noexcept
        : std::wstring_view(text), m_hash(hashOf(text))
    {
    }

    // The same text at another place.
    HashedText(const HashedText& other, std::wstring_view copy) noexcept
        : std::wstring_view(copy), m_hash(other.m_hash)
    {
    }

    [[nodiscard]] std::uint64_t hash() const noexcept { return m_hash; }

    friend bool operator==(const HashedText& left, const HashedText& right) noexcept
    {
        return left.m_hash == right.m_hash &&
               static_cast<std::wstring_view>(left) == static_cast<std::wstring_view>(right);
    }

private:
    std::uint64_t m_hash = 0; // which is that of an empty text
};

} // namespace kexa_3_3
