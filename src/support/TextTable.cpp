#include "support/TextTable.h"

#include <algorithm>

namespace kexa_3_3
{

void TextTable::grow(std::size_t needed)
{
    const std::size_t room = std::max({needed, 2 * m_room, most_walked});
    m_texts.reserve(room);
    if (room > most_walked)
    {
        m_slots.reserve(room);
    }
    m_room = room;
}

std::uint32_t TextTable::walk(const HashedText& text) const noexcept
{
    const auto found = std::find(m_texts.begin(), m_texts.end(), text);
    return found == m_texts.end() ? absent : static_cast<std::uint32_t>(found - m_texts.begin());
}

std::uint32_t TextTable::append(const HashedText& text) noexcept
{
    const auto number = static_cast<std::uint32_t>(m_texts.size());
    m_texts.push_back(text);
    // The text that is one too many to be walked over takes those before it along.
    for (std::uint32_t each = number == most_walked ? 0 : number;
         number >= most_walked && each <= number; ++each)
    {
        m_slots.put(m_slots.slotOf(m_texts[each], textOf()), each, m_texts[each]);
    }
    return number;
}

} // namespace kexa_3_3
