#include "support/TextSlots.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace kexa_3_3
{

void TextSlots::reserve(std::size_t count, std::size_t fewest)
{
    const std::size_t slots = std::bit_ceil(std::max(2 * count, fewest));
    if (m_slots != nullptr && slots <= m_mask + 1)
    {
        return;
    }
    const std::size_t mask = slots - 1;
    void* const memory = m_memory->allocate(slots * sizeof(Slot), alignof(Slot));
    std::memset(memory, 0xFF, slots * sizeof(Slot)); // which makes all of them free
    Slot* const grown = static_cast<Slot*>(memory);
    // Walked in order, the slots in use go to places that lie in order too, half of them in each
    // half of a doubled table. That spares the processor's cache.
    for (const Slot* old = m_slots; m_slots != nullptr && old <= m_slots + m_mask; ++old)
    {
        if (old->number != absent)
        {
            std::size_t slot = old->mark & mask;
            while (grown[slot].number != absent)
            {
                slot = (slot + 1) & mask;
            }
            grown[slot] = *old;
        }
    }
    free();
    m_slots = grown;
    m_mask = mask;
}

void TextSlots::free() noexcept
{
    if (m_slots != nullptr)
    {
        m_memory->deallocate(m_slots, (m_mask + 1) * sizeof(Slot), alignof(Slot));
    }
}

} // namespace kexa_3_3
