// Texts that carry their hash.
#pragma once

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

namespace kexa_3_3
{

// The hash of a text, computed character by character. Only two operations for each character,
// since each depends on the one before. The multiplication at the end makes the highest bits depend
// on all characters (multiplicative hashing by the golden ratio: D. E. Knuth, The Art of Computer
// Programming, 6.4). Only texts that a host declares are stored in tables, so the hash need not
// resist texts that are chosen to collide.
class TextHash
{
public:
    constexpr void add(wchar_t character) noexcept
    {
        m_state = std::rotl(m_state, 5) ^ static_cast<std::uint32_t>(character);
    }
    [[nodiscard]] constexpr std::uint32_t value() const noexcept
    {
        constexpr std::uint64_t golden_ratio = 0x9E3779B97F4A7C15;
        return static_cast<std::uint32_t>(m_state * golden_ratio >> 32);
    }

private:
    std::uint64_t m_state = 0;
};

// A view of a text that is searched for more than once. The text outlives it. Two words, so that it
// is passed in registers: copies through memory shortly after it was made cost a fifth of the time
// of a small command line.
class HashedText
{
public:
    HashedText() noexcept = default; // empty

    explicit HashedText(std::wstring_view text) noexcept
        : m_text(text.data()), m_length(lengthOf(text))
    {
        TextHash hash;
        for (const wchar_t character : this->text())
        {
            hash.add(character);
        }
        m_hash = hash.value();
    }

    // Precondition: `hash` is that of the text.
    HashedText(std::wstring_view text, const TextHash& hash) noexcept
        : m_text(text.data()), m_length(lengthOf(text)), m_hash(hash.value())
    {
        assert(*this == HashedText(text));
    }

    // Returns the view of a null-terminated string, reading it only once for length and hash.
    [[nodiscard]] static HashedText ofTerminated(const wchar_t* text) noexcept
    {
        TextHash hash;
        const wchar_t* end = text;
        for (; *end != L'\0'; ++end)
        {
            hash.add(*end);
        }
        return HashedText(std::wstring_view(text, static_cast<std::size_t>(end - text)), hash);
    }

    // Returns a view of a copy, without computing the hash again.
    //
    // copy: an equal text at another address.
    [[nodiscard]] HashedText movedTo(std::wstring_view copy) const noexcept
    {
        assert(copy == text());
        HashedText moved(*this);
        moved.m_text = copy.data();
        return moved;
    }

    [[nodiscard]] std::wstring_view text() const noexcept { return {m_text, m_length}; }
    [[nodiscard]] std::uint32_t hash() const noexcept { return m_hash; }

    friend bool operator==(HashedText left, HashedText right) noexcept
    {
        return left.m_hash == right.m_hash && left.text() == right.text();
    }

private:
    // A text of 2^32 characters or more is cut.
    [[nodiscard]] static std::uint32_t lengthOf(std::wstring_view text) noexcept
    {
        constexpr std::size_t longest = std::numeric_limits<std::uint32_t>::max();
        return static_cast<std::uint32_t>(std::min(text.size(), longest));
    }

    const wchar_t* m_text = L"";
    std::uint32_t m_length = 0;
    std::uint32_t m_hash = TextHash().value();
};

} // namespace kexa_3_3
