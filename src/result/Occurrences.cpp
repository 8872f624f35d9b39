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

// Makes room for so many occurrences behind the piece that is appended to.
void Occurrences::grow(std::size_t count, Arena& arena)
{
    constexpr std::size_t most =
        std::min<std::size_t>(std::numeric_limits<std::uint32_t>::max(),
                              std::numeric_limits<std::size_t>::max() / sizeof(Occurrence) - 1);
    Piece* tail = m_last;
    const auto roomOf = [](const Piece& piece)
    {
        return static_cast<std::size_t>(piece.limit - piece.begin());
    };
    std::size_t last = tail == &m_inside ? 1 : roomOf(*tail);
    while (tail->next != nullptr)
    {
        // Empty pieces, of room made before.
        tail = tail->next;
        last = roomOf(*tail);
        if (last >= count)
        {
            return;
        }
        count -= last;
    }
    if (count > most)
    {
        throw std::bad_alloc();
    }
    const std::size_t room = std::max(count, std::clamp(2 * last, smallest_piece, largest_piece));
    void* const memory = arena.take(sizeof(Piece) + room * sizeof(Occurrence), alignof(Piece));
    auto* const piece = new (memory) Piece();
    piece->end = piece->begin();
    piece->limit = piece->end + room;
    tail->next = piece;
}

std::size_t Occurrences::size() const noexcept
{
    auto size = static_cast<std::size_t>(m_inside.end - &m_first);
    for (const Piece* piece = m_inside.next; piece != nullptr; piece = piece->next)
    {
        size += static_cast<std::size_t>(piece->end - piece->begin());
    }
    return size;
}

Occurrences::Place Occurrences::placeOf(std::size_t index) const noexcept
{
    if (index <= 1)
    {
        return Place(&m_inside, &m_first + index);
    }
    const Piece* piece = m_inside.next;
    --index;
    for (;;)
    {
        const auto size = static_cast<std::size_t>(piece->end - piece->begin());
        if (index <= size)
        {
            return Place(piece, piece->begin() + index);
        }
        index -= size;
        piece = piece->next;
    }
}

} // namespace kexa_3_3
