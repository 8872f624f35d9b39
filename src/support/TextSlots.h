// The slots of a hash table of texts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <vector>

#include "support/HashedText.h"

namespace kexa_3_3
{

// Says which of somebody's numbered texts is equal to a given one. The texts themselves stay with
// that somebody: `textOf` gives the one with a number, and it is asked for next to none but those
// that are equal.
class TextSlots
{
public:
    static constexpr std::uint32_t absent = 0xFFFFFFFF;

    // memory: lives longer than this.
    explicit TextSlots(std::pmr::memory_resource& memory) noexcept : m_slots(&memory) {}

    // Makes room for `count` texts, of which those numbered below `known` are put in: twice as many
    // slots, so that a search for a text that is not there ends soon. Throws std::bad_alloc,
    // changing nothing.
    template <class TextOf>
    void rebuild(std::size_t count, std::size_t known, TextOf textOf)
    {
        std::pmr::vector<Slot> slots = emptySlots(count);
        m_slots.swap(slots);
        for (std::size_t number = 0; number < known; ++number)
        {
            const HashedText& text = textOf(static_cast<std::uint32_t>(number));
            std::size_t slot = homeOf(text.hash());
            while (m_slots[slot].number != absent)
            {
                slot = (slot + 1) & (m_slots.size() - 1);
            }
            put(slot, static_cast<std::uint32_t>(number), text);
        }
    }

    // The slot of the text, or the free one where it belongs. Needs room.
    template <class TextOf>
    [[nodiscard]] std::size_t slotOf(const HashedText& text, TextOf textOf) const
    {
        return slotFrom(homeOf(text.hash()), text, textOf);
    }

    // The same, of a text that is in no slot from its home up to `slot`.
    template <class TextOf>
    [[nodiscard]] std::size_t slotFrom(std::size_t slot, const HashedText& text,
                                       TextOf textOf) const
    {
        const Slot* const slots = m_slots.data();
        const std::size_t mask = m_slots.size() - 1;
        const std::uint32_t mark = markOf(text);
        while (slots[slot].number != absent &&
               (slots[slot].mark != mark || !(textOf(slots[slot].number) == text)))
        {
            slot = (slot + 1) & mask;
        }
        return slot;
    }

    // The number in a slot, or `absent` for a free one.
    [[nodiscard]] std::uint32_t numberAt(std::size_t slot) const { return m_slots[slot].number; }

    void put(std::size_t slot, std::uint32_t number, const HashedText& text) noexcept
    {
        m_slots[slot] = {number, markOf(text)};
    }

private:
    struct Slot
    {
        std::uint32_t number;
        std::uint32_t mark; // a part of the text's hash: most other texts differ in it
    };

    [[nodiscard]] static std::uint32_t markOf(const HashedText& text) noexcept
    {
        return static_cast<std::uint32_t>(text.hash() >> 32);
    }
    [[nodiscard]] std::size_t homeOf(std::uint64_t hash) const noexcept
    {
        return hash & (m_slots.size() - 1);
    }
    [[nodiscard]] std::pmr::vector<Slot> emptySlots(std::size_t texts) const;

    std::pmr::vector<Slot> m_slots; // none, or a power of two of them
};

} // namespace kexa_3_3
