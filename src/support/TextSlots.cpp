#include "support/TextSlots.h"

#include <algorithm>
#include <bit>

namespace kexa_3_3
{

std::pmr::vector<TextSlots::Slot> TextSlots::emptySlots(std::size_t texts) const
{
    constexpr std::size_t fewest_slots = 64;
    constexpr Slot free = {absent, 0};
    return std::pmr::vector<Slot>(std::bit_ceil(std::max(2 * texts, fewest_slots)), free,
                                  m_slots.get_allocator());
}

} // namespace kexa_3_3
