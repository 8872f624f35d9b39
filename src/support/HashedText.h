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
    // Words of eight bytes are multiplied by odd numbers and folded. One is the golden ratio's,
    // which spreads small differences over the upper bits (D. E. Knuth, The Art of Computer
    // Programming, 6.4), the other has no pattern. The last words overlap those before them, which
    // spares a loop over what is left.
    constexpr std::uint64_t first_multiplier = 0x9E3779B97F4A7C15;
    constexpr std::uint64_t second_multiplier = 0xC2B2AE3D27D4EB4F;
    constexpr std::size_t characters = sizeof(std::uint64_t) / sizeof(wchar_t); // in a word
    const auto wordAt = [text](std::size_t position)
    {
        std::uint64_t value = 0;
        std::memcpy(&value, text.data() + position, sizeof(value));
        return value;
    };
    const std::size_t length = text.size();
    std::uint64_t hash = length * first_multiplier;
    std::uint64_t front = 0;
    std::uint64_t back = 0;
    if (length >= characters)
    {
        std::size_t position = 0;
        for (; length - position > 2 * characters; position += 2 * characters)
        {
            hash = (hash ^ (wordAt(position) * second_multiplier) ^ wordAt(position + characters)) *
                   first_multiplier;
            hash ^= hash >> 32;
        }
        back = wordAt(length - characters);
        front = length - position > characters ? wordAt(position) : back;
    }
    else
    {
        for (const wchar_t character : text)
        {
            front = front << 16 ^ static_cast<std::uint64_t>(character);
        }
    }
    hash = (hash ^ (front * second_multiplier)) * first_multiplier;
    hash = ((hash ^ (hash >> 32)) ^ back) * second_multiplier;
    return hash ^ (hash >> 32);
}

// For texts that are looked for again and again.
class HashedText : public std::wstring_view
{
public:
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
    std::uint64_t m_hash;
};

} // namespace kexa_3_3
