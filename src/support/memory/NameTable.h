// Entries found by name.
#pragma once

#include <bit>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <new>
#include <utility>
#include <vector>

#include "support/text/HashedText.h"

namespace kexa_3_3
{

// A hash table with open addressing beside an array of its entries in the order of insertion.
// std::pmr::unordered_map allocates a node for each entry, which alone takes a third of the time of
// a small command line.
//
// Entry: has a member `HashedText name`, which does not change once the entry is in the table.
template <class Entry>
class NameTable
{
public:
    // memory:   outlives the table. A table that grows leaves its former arrays there.
    // expected: the number of entries to make room for at once.
    // Throws std::bad_alloc.
    NameTable(std::pmr::memory_resource& memory, std::size_t expected)
        : m_entries(&memory), m_slots(slotsFor(expected), Slot(), &memory)
    {
        m_entries.reserve(expected);
    }

    // Makes room for `count` further entries. Throws std::bad_alloc, changing nothing.
    void reserveMore(std::size_t count)
    {
        if (m_entries.capacity() - m_entries.size() < count)
        {
            grow(m_entries.size() + count);
        }
    }

    // Returns the entry with the name, a new one where there is none. Precondition: reserveMore()
    // made room.
    Entry& findOrAdd(HashedText name) noexcept
    {
        Slot& slot = m_slots[placeOf(name)];
        if (slot.number == no_entry)
        {
            assert(m_entries.size() < m_entries.capacity());
            assert(2 * m_entries.size() < m_slots.size()); // searches end at a free slot
            slot = {static_cast<std::uint32_t>(m_entries.size()), name.hash()};
            m_entries.emplace_back().name = name;
        }
        return m_entries[slot.number];
    }

    // The entry with the name, or null. An address is valid until the next reserveMore().
    [[nodiscard]] const Entry* find(HashedText name) const noexcept
    {
        const std::uint32_t number = m_slots[placeOf(name)].number;
        return number == no_entry ? nullptr : &m_entries[number];
    }

    [[nodiscard]] bool empty() const noexcept { return m_entries.empty(); }
    [[nodiscard]] std::size_t size() const noexcept { return m_entries.size(); }
    [[nodiscard]] const Entry& operator[](std::size_t number) const { return m_entries[number]; }
    [[nodiscard]] auto begin() const noexcept { return m_entries.begin(); }
    [[nodiscard]] auto end() const noexcept { return m_entries.end(); }

private:
    static constexpr std::uint32_t no_entry = 0xFFFFFFFF;
    static constexpr std::size_t largest_room = std::size_t{1} << 31;

    // The hash is stored beside the number, so that a search rarely reads an entry that it does not
    // return, and growth reads none.
    struct Slot
    {
        std::uint32_t number = no_entry;
        std::uint32_t hash = 0;
    };

    void grow(std::size_t needed)
    {
        const std::size_t room = std::bit_ceil(needed);
        if (room > largest_room)
        {
            throw std::bad_alloc(); // GCOVR_EXCL_LINE: billions of entries fit no test machine
        }
        std::pmr::vector<Slot> slots(slotsFor(room), Slot(), m_slots.get_allocator());
        m_entries.reserve(room);
        for (const Slot& slot : m_slots)
        {
            if (slot.number != no_entry)
            {
                slots[freePlaceIn(slots, slot.hash)] = slot;
            }
        }
        m_slots.swap(slots);
        m_mask = m_slots.size() - 1;
    }

    // A power of two, at least twice the number of entries: searches end after few steps.
    [[nodiscard]] static std::size_t slotsFor(std::size_t entries) noexcept
    {
        return 2 * std::bit_ceil(entries);
    }

    // The slot where a search begins: the highest bits of the hash, as many as the mask has. Lower
    // ones do not depend on all characters of the text.
    [[nodiscard]] static std::size_t firstPlace(std::uint32_t hash, std::size_t mask) noexcept
    {
        return hash >> std::countl_zero(static_cast<std::uint32_t>(mask));
    }

    // The slot of the name, or the free one where it belongs.
    [[nodiscard]] std::size_t placeOf(HashedText name) const noexcept
    {
        const Slot* const slots = m_slots.data();
        std::size_t place = firstPlace(name.hash(), m_mask);
        while (slots[place].number != no_entry &&
               (slots[place].hash != name.hash() || m_entries[slots[place].number].name != name))
        {
            place = (place + 1) & m_mask;
        }
        return place;
    }

    [[nodiscard]] static std::size_t freePlaceIn(const std::pmr::vector<Slot>& slots,
                                                 std::uint32_t hash) noexcept
    {
        const std::size_t mask = slots.size() - 1;
        std::size_t place = firstPlace(hash, mask);
        while (slots[place].number != no_entry)
        {
            place = (place + 1) & mask;
        }
        return place;
    }

    std::pmr::vector<Entry> m_entries;
    std::pmr::vector<Slot> m_slots;
    std::size_t m_mask = m_slots.size() - 1;
};

} // namespace kexa_3_3
