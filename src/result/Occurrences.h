// The positions and values that a parse result holds of one option.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "kexa/variant.h"

#include "support/Arena.h"
#include "support/Prefetch.h"

namespace kexa_3_3
{

// A position at which an option occurred, a value given for it, or, most often, both: the value of
// an occurrence with its position. Many may be stored: kept small.
struct Occurrence
{
    const wchar_t* text = nullptr; // terminated by a zero; lives as long as the result
    std::uint64_t word = 0;        // of a variant, which others keep alive
    std::int32_t position = 0;
    std::uint16_t kind = vexkit2::kind_null; // of the variant
    bool isPosition = false;
    bool isValue = false;

    // Makes the target a copy of the value, which shares the block of a text.
    // NOLINTNEXTLINE(bugprone-exception-escape): the copy shares a block that is there.
    void copyValueTo(vexkit2::variant_t& target) const noexcept
    {
        using vexkit2::variant_t;
        variant_t kept = variant_t::attach(kind, word);
        // A walk over many texts stays in one piece of memory for a while. There a share of one
        // text does as well for another, which spares two atomic operations.
        if (kept.lies_beside(target))
        {
            kept.swap(target);
        }
        else
        {
            target = kept;
        }
        static_cast<void>(kept.detach()); // the share that came out is the one that was lent
    }
};

// Positions and values, each in the order stored. The first is part of it, since most options are
// given once at most. Further ones lie in pieces of an arena, larger and larger up to a limit:
// nothing is ever moved, and places in the list stay good while it grows.
class Occurrences
{
    struct Piece
    {
        Occurrence* entries;
        std::uint32_t size;
        std::uint32_t room;
        Piece* next;
    };

public:
    // A place in the list: an occurrence, or behind the last one.
    class Place
    {
    public:
        Place() = default;

    private:
        friend class Occurrences;
        explicit Place(const Piece* piece, std::uint32_t index) noexcept
            : m_piece(piece), m_index(index)
        {
        }
        const Piece* m_piece = nullptr;
        std::uint32_t m_index = 0;
    };

    Occurrences() noexcept : m_inside{&m_first, 0, 1, nullptr}, m_last(&m_inside), m_tail(&m_inside)
    {
    }
    ~Occurrences() = default;
    Occurrences(const Occurrences&) = delete;
    Occurrences& operator=(const Occurrences&) = delete;

    // Makes room for `count` occurrences more. Throws std::bad_alloc, changing nothing.
    //
    // arena: lives longer than this.
    void reserveMore(std::size_t count, Arena& arena)
    {
        if (count > m_free)
        {
            grow(count, arena);
        }
    }

    // Needs room made before.
    void append(const Occurrence& occurrence) noexcept
    {
        if (m_last->size == m_last->room)
        {
            m_last = m_last->next;
        }
        m_last->entries[m_last->size++] = occurrence;
        --m_free;
        ++m_size;
        m_hasPositions = m_hasPositions || occurrence.isPosition;
        m_hasValues = m_hasValues || occurrence.isValue;
    }

    [[nodiscard]] bool hasPositions() const noexcept { return m_hasPositions; }
    [[nodiscard]] bool hasValues() const noexcept { return m_hasValues; }

    // How many entries there are, whatever they hold.
    [[nodiscard]] std::size_t size() const noexcept { return m_size; }

    [[nodiscard]] Place begin() const noexcept { return Place(&m_inside, 0); }
    [[nodiscard]] Place end() const noexcept { return Place(m_last, m_last->size); }

    // The place of the occurrence with an index up to size(). Steps over whole pieces.
    [[nodiscard]] Place placeOf(std::size_t index) const noexcept
    {
        const Piece* piece = &m_inside;
        while (index > piece->size)
        {
            index -= piece->size;
            piece = piece->next;
        }
        return Place(piece, static_cast<std::uint32_t>(index));
    }

    // The occurrence at a place, which then is the next one; null at the end.
    [[nodiscard]] const Occurrence* next(Place& place) const noexcept
    {
        if (place.m_index == place.m_piece->size)
        {
            if (place.m_piece == m_last)
            {
                return nullptr;
            }
            place = Place(place.m_piece->next, 0); // which is not empty
        }
        return place.m_piece->entries + place.m_index++;
    }

    // The same, of those that hold a value or a position.
    [[nodiscard]] const Occurrence* nextValue(Place& place) const noexcept
    {
        // Who walks over many values reads their texts. Those of other options lie between them.
        constexpr std::uint32_t ahead = 8;
        if (place.m_index + ahead < place.m_piece->size)
        {
            prefetch(place.m_piece->entries[place.m_index + ahead].text);
        }
        const Occurrence* occurrence = next(place);
        while (occurrence != nullptr && !occurrence->isValue)
        {
            occurrence = next(place);
        }
        return occurrence;
    }
    [[nodiscard]] const Occurrence* nextPosition(Place& place) const noexcept
    {
        const Occurrence* occurrence = next(place);
        while (occurrence != nullptr && !occurrence->isPosition)
        {
            occurrence = next(place);
        }
        return occurrence;
    }

private:
    void grow(std::size_t count, Arena& arena);

    Piece m_inside; // holds m_first
    Occurrence m_first;
    Piece* m_last; // the one to append to
    Piece* m_tail; // the last one there is room in
    std::size_t m_free = 1;
    std::size_t m_size = 0;
    bool m_hasPositions = false;
    bool m_hasValues = false;
};

static_assert(std::is_trivially_destructible_v<Occurrences>);

} // namespace kexa_3_3
