// The slots of a hash table of texts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>

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

    // These leave few clusters among the names of a program of usual size.
    static constexpr std::size_t usual_slots = 128;

    // memory: lives longer than this.
    explicit TextSlots(std::pmr::memory_resource& memory) noexcept : m_memory(&memory) {}
    ~TextSlots() { free(); }
    TextSlots(const TextSlots&) = delete;
    TextSlots& operator=(const TextSlots&) = delete;

    // Makes room for `count` texts in all: twice as many slots, so that a search for a text that is
    // not there ends soon. Slots found before are good no more. Throws std::bad_alloc, changing
    // nothing.
    //
    // fewest: slots in any case.
    void reserve(std::size_t count, std::size_t fewest = usual_slots);

    // The slot of the text, or the free one where it belongs. Before room is made there is one to
    // be found, but none to put a text into.
    template <class TextOf>
    [[nodiscard]] std::size_t slotOf(const HashedText& text, TextOf textOf) const
    {
        return slotFrom(homeOf(text), text, textOf);
    }

    // The same, of a text that is in no slot from its home up to `slot`.
    template <class TextOf>
    [[nodiscard]] std::size_t slotFrom(std::size_t slot, const HashedText& text,
                                       TextOf textOf) const
    {
        const Slot* const slots = m_slots;
        const std::size_t mask = m_mask;
        const std::uint32_t mark = markOf(text);
        while (slots[slot].number != absent &&
               (slots[slot].mark != mark || !(textOf(slots[slot].number) == text)))
        {
            slot = (slot + 1) & mask;
        }
        return slot;
    }

    // Where the search for a text begins.
    [[nodiscard]] std::size_t homeOf(const HashedText& text) const noexcept
    {
        return markOf(text) & m_mask;
    }

    [[nodiscard]] bool isFree(std::size_t slot) const noexcept
    {
        return m_slots[slot].number == absent;
    }

    // The number in a slot, or `absent` for a free one.
    [[nodiscard]] std::uint32_t numberAt(std::size_t slot) const noexcept
    {
        return m_slots[slot].number;
    }

    // Needs room.
    void put(std::size_t slot, std::uint32_t number, const HashedText& text) noexcept
    {
        m_slots[slot] = {number, markOf(text)};
    }

private:
    struct Slot
    {
        std::uint32_t number;

        // A part of the text's hash: most other texts differ in it. Its lowest bits are the slot
        // where a search begins, so the texts are not needed when slots are added.
        std::uint32_t mark;
    };

    [[nodiscard]] static std::uint32_t markOf(const HashedText& text) noexcept
    {
        return static_cast<std::uint32_t>(text.hash());
    }
    void free() noexcept;

    std::pmr::memory_resource* m_memory;

    // The only slot until room is made, and always free: searches need not ask whether there are
    // any.
    Slot m_none = {absent, 0};
    Slot* m_slots = &m_none; // a power of two of them
    std::size_t m_mask = 0;  // their number less one
};

} // namespace kexa_3_3
