#include "support/TextTable.h"

#include <algorithm>

namespace kexa_3_3
{

void TextTable::grow(std::size_t needed)
{
    constexpr std::size_t least_room = 32;
    const std::size_t room = std::max({needed, 2 * m_room, least_room});
    m_texts.reserve(room);
    m_slots.rebuild(room, m_texts.size(), textOf());
    m_room = room;
}

} // namespace kexa_3_3
