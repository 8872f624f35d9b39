// Finds texts by hash and numbers them in the order of their insertion.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kexa_3_3
{

// The numbers run from 0, so what belongs to a text can be kept in vectors beside the table. Texts
// are not copied: whoever inserts them keeps them alive and unchanged.
class TextTable
{
public:
    static constexpr std::uint32_t absent = 0xFFFFFFFF;

    // The number of the text, or `absent`.
    [[nodiscard]] std::uint32_t find(std::wstring_view text) const noexcept;

    // The number of the text, which is inserted where it is new. Throws std::bad_alloc, changing
    // nothing, but never where room was reserved.
    std::uint32_t insert(std::wstring_view text);

    // Makes room for `count` texts more.
    void reserve(std::size_t count);

    [[nodiscard]] std::size_t size() const noexcept { return m_entries.size(); }
    [[nodiscard]] std::wstring_view text(std::uint32_t number) const
    {
        return m_entries[number].text;
    }

private:
    struct Entry
    {
        std::wstring_view text;
        std::size_t hash;
    };

    // The slot that holds the text, or the free one where it belongs. Needs a free slot.
    [[nodiscard]] std::size_t slotOf(std::wstring_view text, std::size_t hash) const noexcept;

    std::vector<Entry> m_entries;
    std::vector<std::uint32_t> m_slots; // numbers of entries, or `absent`; a power of two of them
};

} // namespace kexa_3_3
