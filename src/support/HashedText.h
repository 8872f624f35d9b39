// Texts that carry their hash.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "support/TwoCharacters.h"

namespace kexa_3_3
{

// The hash of a text, taken of its characters as they are walked over: two at a time, and a last
// one by itself where their number is odd. Only texts that a host declares are stored in tables, so
// it needs to be quick and not to withstand an enemy who chooses what is stored.
class TextHash
{
public:
    // two: points to the next two characters.
    void addTwo(const wchar_t* two) noexcept { mix(twoCharacters(two)); }
    void addLast(wchar_t character) noexcept { mix(static_cast<std::uint32_t>(character)); }

    // Of all characters so far. Rotated: the upper bits of the state depend on all of the last two
    // characters, and tables use the lower ones of the hash.
    [[nodiscard]] std::uint64_t value() const noexcept { return m_state << 20 | m_state >> 44; }

private:
    void mix(std::uint64_t value) noexcept
    {
        // Its halves are the golden ratio's and the silver ratio's: where a character has 32 bits,
        // one for each of the two. Both spread small differences over the upper bits (D. E. Knuth,
        // The Art of Computer Programming, 6.4).
        constexpr std::uint64_t multiplier = 0x9E3779B96A09E667;
        m_state = (m_state ^ value) * multiplier;
    }

    std::uint64_t m_state = 0;
};

// The hash of the characters before the first that `ends` answers true for, and the place of that.
// There must be one, or it answers true for the place behind the last.
//
// ends: takes a place of a character. Asked once of each, in order. What it throws is passed on.
template <class Ends>
[[nodiscard]] const wchar_t* hashUntil(const wchar_t* text, TextHash& hash, Ends ends)
{
    for (; !ends(text); text += 2)
    {
        if (ends(text + 1))
        {
            hash.addLast(*text);
            return text + 1;
        }
        hash.addTwo(text);
    }
    return text;
}

[[nodiscard]] inline std::uint64_t hashOf(std::wstring_view text) noexcept
{
    TextHash hash;
    const wchar_t* next = text.data();
    const wchar_t* const end = next + text.size();
    for (; end - next >= 2; next += 2)
    {
        hash.addTwo(next);
    }
    if (next != end)
    {
        hash.addLast(*next);
    }
    return hash.value();
}

// Whether two texts of the same length are equal. What is compared here are names, which are so
// short that a call of the C library's comparison takes longer than they do.
[[nodiscard]] inline bool equalCharacters(const wchar_t* left, const wchar_t* right,
                                          std::size_t length) noexcept
{
    if (length < 2)
    {
        return length == 0 || *left == *right;
    }
    // From the end in pairs. The one looked at last is the first two characters, whatever the
    // length: where that is odd, the second of them is looked at twice, which spares the question
    // whether a character is left over.
    for (; length > 2; length -= 2)
    {
        if (twoCharacters(left + length - 2) != twoCharacters(right + length - 2))
        {
            return false;
        }
    }
    return twoCharacters(left) == twoCharacters(right);
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

    // hash: of the text.
    HashedText(std::wstring_view text, const TextHash& hash) noexcept
        : std::wstring_view(text), m_hash(hash.value())
    {
    }

    // A text that ends with its first zero. Takes its length and its hash in one walk.
    [[nodiscard]] static HashedText ofTerminated(const wchar_t* text) noexcept
    {
        TextHash hash;
        const wchar_t* const end =
            hashUntil(text, hash, [](const wchar_t* place) { return *place == L'\0'; });
        return HashedText(std::wstring_view(text, static_cast<std::size_t>(end - text)), hash);
    }

    // The same text at another place.
    HashedText(const HashedText& other, std::wstring_view copy) noexcept
        : std::wstring_view(copy), m_hash(other.m_hash)
    {
    }

    [[nodiscard]] std::uint64_t hash() const noexcept { return m_hash; }

    friend bool operator==(const HashedText& left, const HashedText& right) noexcept
    {
        return left.m_hash == right.m_hash && left.size() == right.size() &&
               equalCharacters(left.data(), right.data(), left.size());
    }

private:
    std::uint64_t m_hash = 0; // which is that of an empty text
};

} // namespace kexa_3_3
