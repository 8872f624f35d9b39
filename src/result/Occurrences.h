// The positions and values that a parse result holds of one option.
#pragma once

#include <cstddef>
#include <cstdint>
#include <new>
#include <type_traits>

#include "kexa/variant.h"

#include "support/Arena.h"
#include "support/Prefetch.h"
#include "support/SharedTexts.h"

namespace kexa_3_3
{

// A position at which an option occurred, a value given for it, or, most often, both: the value of
// an occurrence with its position. Many may be stored: kept small.
struct Occurrence
{
    static constexpr std::uint8_t position_part = 1;
    static constexpr std::uint8_t value_part = 2;
    static constexpr std::uint8_t both_parts = position_part | value_part;

    const wchar_t* text = nullptr; // terminated by a zero; lives as long as the result
    std::uint64_t word = 0;        // of a variant, which others keep alive
    std::int32_t position = 0;
    std::uint16_t kind = vexkit2::kind_null; // of the variant
    std::uint8_t parts = 0;                  // which of the above it is

    [[nodiscard]] bool isPosition() const noexcept { return (parts & position_part) != 0; }
    [[nodiscard]] bool isValue() const noexcept { return (parts & value_part) != 0; }
    [[nodiscard]] bool isBoth() const noexcept { return parts == both_parts; }

    // Makes the target a copy of the value, which shares the block of a text.
    //
    // texts: made the stored texts. Its shares spare the atomic operations on theirs.
    // NOLINTNEXTLINE(bugprone-exception-escape): the copy shares a block that is there.
    void copyValueTo(vexkit2::variant_t& target, SharedTexts& texts) const noexcept
    {
        if (texts.reclaim(target)) [[likely]]
        {
            // Null by now. Placed there, as an assignment would exchange and destroy.
            new (static_cast<void*>(&target)) vexkit2::variant_t(sharedValue(texts));
            return;
        }
        vexkit2::variant_t copy(sharedValue(texts));
        // Exchanged, not assigned: the destructor of an object that goes with the copy may ask for
        // another value, so nothing may follow it.
        target.swap(copy);
    }

private:
    // The value, with a share of its block.
    // NOLINTNEXTLINE(bugprone-exception-escape): as above.
    [[nodiscard]] vexkit2::variant_t sharedValue(SharedTexts& texts) const noexcept
    {
        vexkit2::variant_t copy = vexkit2::variant_t::attach(kind, word); // without a share yet
        if (copy.memory() != nullptr && !texts.lend(copy))
        {
            vexkit2::variant_t counted = copy; // and never given up
            static_cast<void>(counted.detach());
        }
        return copy;
    }
};

// Positions and values, each in the order stored. The first is part of it, since most options are
// given once at most. Further ones lie in pieces of an arena, larger and larger up to a limit:
// nothing is ever moved, and places in the list stay good while it grows.
class Occurrences
{
    // Stands ahead of the entries of a piece.
    struct Piece
    {
        Occurrence* end;   // of what is stored
        Occurrence* limit; // of the room
        Piece* next;

        // Not for the one inside the list.
        [[nodiscard]] Occurrence* begin() noexcept
        {
            return static_cast<Occurrence*>(static_cast<void*>(this + 1));
        }
        [[nodiscard]] const Occurrence* begin() const noexcept
        {
            return static_cast<const Occurrence*>(static_cast<const void*>(this + 1));
        }
    };
    static_assert(sizeof(Piece) % alignof(Occurrence) == 0);

public:
    // A place in the list: an occurrence, or behind the last one.
    class Place
    {
    public:
        Place() = default;

    private:
        friend class Occurrences;
        explicit Place(const Piece* piece, const Occurrence* entry) noexcept
            : m_piece(piece), m_entry(entry)
        {
        }
        const Piece* m_piece = nullptr;
        const Occurrence* m_entry = nullptr;
    };

    Occurrences() noexcept : m_inside{&m_first, &m_first + 1, nullptr}, m_last(&m_inside) {}

    // With a first occurrence: what `make` answers, as for appendMade.
    template <class Make>
    explicit Occurrences(Make make)
        : m_inside{&m_first + 1, &m_first + 1, nullptr}, m_first(make()), m_last(&m_inside),
          m_parts(m_first.parts)
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
        const std::size_t here = static_cast<std::size_t>(m_last->limit - m_last->end);
        if (here < count)
        {
            grow(count - here, arena);
        }
    }

    // Needs room made before.
    void append(const Occurrence& occurrence) noexcept
    {
        appendMade([&occurrence] { return occurrence; });
    }

    // The same for what `make` answers, which is made where it stays: copied, it would be written
    // in words and read in larger ones, for which processors wait. Where `make` throws nothing
    // changes.
    template <class Make>
    void appendMade(Make make)
    {
        Piece* const piece = m_last->end == m_last->limit ? m_last->next : m_last;
        const Occurrence& made = *new (static_cast<void*>(piece->end)) Occurrence(make());
        m_last = piece;
        ++piece->end;
        m_parts |= made.parts;
    }

    [[nodiscard]] bool hasPositions() const noexcept
    {
        return (m_parts & Occurrence::position_part) != 0;
    }
    [[nodiscard]] bool hasValues() const noexcept
    {
        return (m_parts & Occurrence::value_part) != 0;
    }

    // Positions and values, be it of different entries.
    [[nodiscard]] bool hasBoth() const noexcept { return m_parts == Occurrence::both_parts; }

    // How many entries there are, whatever they hold. Steps over whole pieces.
    [[nodiscard]] std::size_t size() const noexcept;

    // The first entry, or null.
    [[nodiscard]] const Occurrence* first() const noexcept
    {
        return m_inside.end == &m_first ? nullptr : &m_first;
    }

    [[nodiscard]] Place begin() const noexcept { return Place(&m_inside, &m_first); }
    [[nodiscard]] Place behindFirst() const noexcept { return Place(&m_inside, &m_first + 1); }
    [[nodiscard]] Place end() const noexcept { return Place(m_last, m_last->end); }

    // Whether nothing is at the place or behind it.
    [[nodiscard]] bool isEnd(const Place& place) const noexcept
    {
        return place.m_entry == place.m_piece->end && place.m_piece == m_last;
    }

    // The place of the occurrence with an index up to size(). Steps over whole pieces.
    [[nodiscard]] Place placeOf(std::size_t index) const noexcept;

    // The occurrence at a place, which then is the next one; null at the end.
    [[nodiscard]] const Occurrence* next(Place& place) const noexcept
    {
        if (place.m_entry == place.m_piece->end)
        {
            if (place.m_piece == m_last)
            {
                return nullptr;
            }
            const Piece* const piece = place.m_piece->next; // which is not empty
            place = Place(piece, piece->begin());
        }
        return place.m_entry++;
    }

    // The same, of those that hold a value or a position.
    [[nodiscard]] const Occurrence* nextValue(Place& place) const noexcept
    {
        // Who walks over many values reads their texts. Those of other options lie between them.
        constexpr std::ptrdiff_t ahead = 8;
        if (place.m_piece->end - place.m_entry > ahead)
        {
            prefetch(place.m_entry[ahead].text);
        }
        const Occurrence* occurrence = next(place);
        while (occurrence != nullptr && !occurrence->isValue())
        {
            occurrence = next(place);
        }
        return occurrence;
    }
    [[nodiscard]] const Occurrence* nextPosition(Place& place) const noexcept
    {
        const Occurrence* occurrence = next(place);
        while (occurrence != nullptr && !occurrence->isPosition())
        {
            occurrence = next(place);
        }
        return occurrence;
    }

private:
    void grow(std::size_t count, Arena& arena);

    Piece m_inside; // holds m_first
    Occurrence m_first;
    Piece* m_last;            // the one to append to
    std::uint8_t m_parts = 0; // of all entries together
};

static_assert(std::is_trivially_destructible_v<Occurrences>);

} // namespace kexa_3_3
