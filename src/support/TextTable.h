// Finds texts by hash and numbers them in the order of their insertion.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kexa_3_3
{

// A hash of the text. Only texts that a host declares are stored in tables, so it needs to be quick
// and not to withstand an enemy who chooses what is stored.
[[nodiscard]] std::uint64_t hashOf(std::wstring_view text) noexcept;

// A text that carries its hash, for texts that are looked for again and again.
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

// The numbers run from 0, so what belongs to a text can be kept in vectors beside the table. Texts
// are not copied: whoever inserts them keeps them alive and unchanged.
class TextTable
{
public:
    static constexpr std::uint32_t absent = 0xFFFFFFFF;

    // The number of the text, or `absent`.
    [[nodiscard]] std::uint32_t find(std::wstring_view text) const noexcept
    {
        return find(HashedText(text));
    }
    [[nodiscard]] std::uint32_t find(const HashedText& text) const noexcept
    {
        return m_entries.empty() ? absent : m_slots[slotOf(text)];
    }

    // The number of the text, which is inserted where it is new. Needs room made by `reserve`.
    std::uint32_t insert(const HashedText& text) noexcept;
    std::uint32_t insert(std::wstring_view text) noexcept { return insert(HashedText(text)); }

    // Makes room for `count` texts more. Throws std::bad_alloc, changing nothing.
    void reserve(std::size_t count)
    {
        // At most half full: a search for a text that is not there ends soon.
        if (2 * (m_entries.size() + count) > m_slots.size())
        {
            grow(m_entries.size() + count);
        }
    }

    [[nodiscard]] std::size_t size() const noexcept { return m_entries.size(); }
    [[nodiscard]] const HashedText& text(std::uint32_t number) const { return m_entries[number]; }

private:
    // The slot that holds the text, or the free one where it belongs. Needs a free slot.
    [[nodiscard]] std::size_t slotOf(const HashedText& text) const noexcept;

    void grow(std::size_t needed);

    std::vector<HashedText> m_entries;  // with room for as many as the slots take
    std::vector<std::uint32_t> m_slots; // numbers of entries, or `absent`; a power of two of them
};

} // namespace kexa_3_3
