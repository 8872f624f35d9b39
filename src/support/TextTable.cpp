#include "support/TextTable.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace kexa_3_3
{

namespace
{

constexpr std::size_t smallest_table = 32;

} // namespace

std::size_t TextTable::slotOf(std::wstring_view text, std::size_t hash) const noexcept
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = hash & mask;
    while (m_slots[slot] != absent)
    {
        const Entry& entry = m_entries[m_slots[slot]];
        if (entry.hash == hash && entry.text == text)
        {
            break;
        }
        slot = (slot + 1) & mask;
    }
    return slot;
}

std::uint32_t TextTable::find(std::wstring_view text) const noexcept
{
    if (m_entries.empty())
    {
        return absent;
    }
    return m_slots[slotOf(text, std::hash<std::wstring_view>()(text))];
}

std::uint32_t TextTable::insert(std::wstring_view text)
{
    reserve(1);
    const std::size_t hash = std::hash<std::wstring_view>()(text);
    const std::size_t slot = slotOf(text, hash);
    if (m_slots[slot] == absent)
    {
        m_entries.push_back({text, hash});
        m_slots[slot] = static_cast<std::uint32_t>(m_entries.size() - 1);
    }
    return m_slots[slot];
}

void TextTable::reserve(std::size_t count)
{
    const std::size_t needed = m_entries.size() + count;
    if (needed > m_entries.capacity())
    {
        m_entries.reserve(std::max({needed, 2 * m_entries.size(), smallest_table / 2}));
    }
    if (2 * needed <= m_slots.size())
    {
        return;
    }
    // At most half full: a search for a text that is not there ends soon.
    std::vector<std::uint32_t> slots(std::bit_ceil(std::max(2 * needed, smallest_table)), absent);
    const std::size_t mask = slots.size() - 1;
    for (std::size_t number = 0; number < m_entries.size(); ++number)
    {
        std::size_t slot = m_entries[number].hash & mask;
        while (slots[slot] != absent)
        {
            slot = (slot + 1) & mask;
        }
        slots[slot] = static_cast<std::uint32_t>(number);
    }
    m_slots = std::move(slots);
}

} // namespace kexa_3_3
