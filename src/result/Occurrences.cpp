#include "result/Occurrences.h"

#include <algorithm>
#include <limits>
#include <new>

namespace kexa_3_3
{

namespace
{

constexpr std::size_t smallest_piece = 4;
constexpr std::size_t largest_piece = 2048; // unless more are to be stored at once

} // namespace

void Occurrences::grow(std::size_t count, Arena& arena)
{
    constexpr std::size_t most =
        std::min<std::size_t>(std::numeric_limits<std::uint32_t>::max(),
                              std::numeric_limits<std::size_t>::max() / sizeof(Occurrence) - 1);
    const std::size_t needed = count - m_free;
    if (needed > most)
    {
        throw std::bad_alloc();
    }
    const std::size_t grown =
        std::clamp(2 * std::size_t{m_tail->room}, smallest_piece, largest_piece);
    const std::size_t room = std::max(needed, grown);
    static_assert(sizeof(Piece) % alignof(Occurrence) == 0);
    void* const memory = arena.take(sizeof(Piece) + room * sizeof(Occurrence), alignof(Piece));
    auto* const piece = static_cast<Piece*>(memory);
    auto* const entries = static_cast<Occurrence*>(static_cast<void*>(piece + 1));
    m_tail->next = new (memory) Piece{entries, 0, static_cast<std::uint32_t>(room), nullptr};
    m_tail = m_tail->next;
    m_free += room;
}

} // namespace kexa_3_3
