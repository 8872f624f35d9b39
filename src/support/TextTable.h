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

// The numbers run from 0, so what belongs to a text can be kept in vectors beside the table. Texts
// are not copied: whoever inserts them keeps them alive and unchanged.
class TextTable
{
public:
    static constexpr std::uint32_t absent = 0xFFFFFFFF;

    // The number of the text, or `absent`.
    [[nodiscard]] std::uint32_t find(std::wstring_view text) const noexcept
    {
        return m_entries.empty() ? absent : m_slots[slotOf(text, hashOf(text))];
    }

    // The number of the text, which is inserted where it is new. Needs room made by `reserve`.
    std::uint32_t insert(std::wstring_view text) noexcept;

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
    [[nodiscard]] std::wstring_view text(std::uint32_t number) const
    {
        return m_entries[number].text;
    }

private:
    struct Entry
    {
        std::wstring_view text;
        std::uint64_t hash;
    };

    // The slot that holds the text, or the free one where it belongs. Needs a free slot.
    [[nodiscard]] std::size_t slotOf(std::wstring_view text, std::uint64_t hash) const noexcept;

    void grow(std::size_t needed);

    std::vector<Entry> m_entries;       // with room for as many as the slots take
    std::vector<std::uint32_t> m_slots; // numbers of entries, or `absent`; a power of two of them
};

} // namespace kexa_3_3
