// The slots of a hash table of texts.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <span>

#include "support/HashedText.h"

namespace kexa_3_3
{

// Says which of somebody's numbered texts is equal to a given one. The texts themselves stay with
// that somebody: `textOf` gives the one with a number, and it is asked for next to none but those
// that are equal.
class TextSlots
{
    struct Slot
    {
        std::uint32_t number;

        // A part of the text's hash: most other texts differ in it. Its lowest bits are the slot
        // where a search begins, so the texts are not needed when slots are added.
        std::uint32_t mark;
    };

public:
    static constexpr std::uint32_t absent = 0xFFFFFFFF;

    // The bytes of slots with room for so many texts, one at least.
    [[nodiscard]] static constexpr std::size_t bytesFor(std::size_t texts) noexcept
    {
        return slotsFor(texts) * sizeof(Slot);
    }

    // memory: lives longer than this.
    // first:  where the first slots are: as many bytes as bytesFor answers, aligned as 32-bit
    //         numbers are. Live as long as this, and nobody else uses them.
    TextSlots(std::pmr::memory_resource& memory, std::span<std::byte> first) noexcept;
    ~TextSlots() { free(); }
    TextSlots(const TextSlots&) = delete;
    TextSlots& operator=(const TextSlots&) = delete;

    // Makes room for `count` texts in all. Slots found before are good no more. Throws
    // std::bad_alloc, changing nothing.
    void reserve(std::size_t count);

    // The slot of the text, or the free one where it belongs.
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
    [[nodiscard]] static std::uint32_t markOf(const HashedText& text) noexcept
    {
        return static_cast<std::uint32_t>(text.hash());
    }
    // Twice as many as texts, so that searches end soon, rounded up to a power of two.
    [[nodiscard]] static constexpr std::size_t slotsFor(std::size_t texts) noexcept
    {
        return std::bit_ceil(2 * texts);
    }

    // Makes slots, all of them free, of memory that has so many bytes.
    [[nodiscard]] static Slot* makeFree(void* memory, std::size_t bytes) noexcept;
    void free() noexcept;

    std::pmr::memory_resource* m_memory;

    Slot* m_first;
    Slot* m_slots;      // a power of two of them
    std::size_t m_mask; // their number less one
};

} // namespace kexa_3_3
