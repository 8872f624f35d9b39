#include "support/TextSlots.h"

#include <cstring>

namespace kexa_3_3
{

TextSlots::TextSlots(std::pmr::memory_resource& memory, std::span<std::byte> first) noexcept
    : m_memory(&memory), m_first(makeFree(first.data(), first.size())), m_slots(m_first),
      m_mask(first.size() / sizeof(Slot) - 1)
{
}

void TextSlots::reserve(std::size_t count)
{
    const std::size_t slots = slotsFor(count);
    if (slots <= m_mask + 1)
    {
        return;
    }
    const std::size_t mask = slots - 1;
    Slot* const grown =
        makeFree(m_memory->allocate(slots * sizeof(Slot), alignof(Slot)), slots * sizeof(Slot));
    // The slots in use are moved together first. Which of them are free follows no pattern, so a
    // branch on it can hardly be predicted.
    std::size_t used = 0;
    for (std::size_t index = 0; index <= m_mask; ++index)
    {
        const Slot old = m_slots[index];
        m_slots[used] = old;
        used += old.number == absent ? 0 : 1;
    }
    // They go, in their order, to places that lie in order too, half of them in each half of a
    // doubled table. That spares the processor's cache.
    for (std::size_t index = 0; index < used; ++index)
    {
        std::size_t slot = m_slots[index].mark & mask;
        while (grown[slot].number != absent)
        {
            slot = (slot + 1) & mask;
        }
        grown[slot] = m_slots[index];
    }
    free();
    m_slots = grown;
    m_mask = mask;
}

TextSlots::Slot* TextSlots::makeFree(void* memory, std::size_t bytes) noexcept
{
    std::memset(memory, 0xFF, bytes); // all numbers then are `absent`
    return static_cast<Slot*>(memory);
}

void TextSlots::free() noexcept
{
    if (m_slots != m_first)
    {
        m_memory->deallocate(m_slots, (m_mask + 1) * sizeof(Slot), alignof(Slot));
    }
}

} // namespace kexa_3_3
