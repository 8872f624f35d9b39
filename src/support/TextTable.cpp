#include "support/TextTable.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace kexa_3_3
{

namespace
{

constexpr std::size_t smallest_table = 64; // slots

} // namespace

std::uint64_t hashOf(std::wstring_view text) noexcept
{
    // Eight bytes at a time; the odd multiplier is the golden ratio's, which spreads small
    // differences over the upper bits (D. E. Knuth, The Art of Computer Programming, 6.4).
    constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes may be read of any object.
    const auto* bytes = reinterpret_cast<const char*>(text.data());
    std::size_t length = text.size() * sizeof(wchar_t);
    std::uint64_t hash = length;
    for (; length >= sizeof(std::uint64_t); length -= sizeof(std::uint64_t))
    {
        std::uint64_t chunk = 0;
        std::memcpy(&chunk, bytes, sizeof(chunk));
        bytes += sizeof(chunk);
        hash = (hash ^ chunk) * multiplier;
        hash ^= hash >> 32;
    }
    for (; length != 0; length -= sizeof(wchar_t))
    {
        wchar_t character = 0;
        std::memcpy(&character, bytes, sizeof(character));
        bytes += sizeof(character);
        hash = (hash ^ static_cast<std::uint64_t>(character)) * multiplier;
        hash ^= hash >> 32;
    }
    return hash;
}

std::size_t TextTable::slotOf(const HashedText& text) const noexcept
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = text.hash() & mask;
    while (m_slots[slot] != absent && !(m_entries[m_slots[slot]] == text))
    {
        slot = (slot + 1) & mask;
    }
    return slot;
}

std::uint32_t TextTable::insert(const HashedText& text) noexcept
{
    std::uint32_t& slot = m_slots[slotOf(text)];
    if (slot == absent)
    {
        slot = static_cast<std::uint32_t>(m_entries.size());
        m_entries.push_back(text);
    }
    return slot;
}

void TextTable::grow(std::size_t needed)
{
    std::vector<std::uint32_t> slots(std::bit_ceil(std::max(2 * needed, smallest_table)), absent);
    m_entries.reserve(slots.size() / 2);
    const std::size_t mask = slots.size() - 1;
    for (std::size_t number = 0; number < m_entries.size(); ++number)
    {
        std::size_t slot = m_entries[number].hash() & mask;
        while (slots[slot] != absent)
        {
            slot = (slot + 1) & mask;
        }
        slots[slot] = static_cast<std::uint32_t>(number);
    }
    m_slots = std::move(slots);
}

} // namespace kexa_3_3
