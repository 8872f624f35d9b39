// The positions and values that a parse result holds of one option.
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <forward_list>
#include <iterator>
#include <memory_resource>
#include <utility>

#include "kexa/variant.h"

namespace kexa_3_3
{

// A position at which an option occurred, a value given for it, or, most often, both: the value of
// an occurrence with its position.
struct Occurrence
{
    const wchar_t* text = nullptr; // null-terminated; lives as long as the result
    vexkit2::variant_t value;
    std::int32_t position = 0;
    bool isPosition = false;
    bool isValue = false;
};

// The occurrences of an option in the order stored. They never move: places in the list stay valid
// while it grows.
class Occurrences
{
    using List = std::pmr::forward_list<Occurrence>;

public:
    // A place in a walk: an occurrence that was visited, or before the first one. What is appended
    // later comes behind it.
    using Place = List::const_iterator;

    // memory: outlives the list.
    explicit Occurrences(std::pmr::memory_resource& memory) noexcept : m_list(&memory) {}
    ~Occurrences() = default;
    Occurrences(Occurrences&& other) noexcept : m_list(other.m_list.get_allocator())
    {
        append(std::move(other));
    }
    Occurrences& operator=(const Occurrences&) = delete;

    // A copy in the same memory. Throws std::bad_alloc.
    Occurrences(const Occurrences& other) : m_list(other.m_list.get_allocator())
    {
        for (const Occurrence& occurrence : other.m_list)
        {
            append(Occurrence(occurrence));
        }
    }

    // Throws std::bad_alloc, changing nothing; the occurrence then is as before.
    void append(Occurrence&& occurrence)
    {
        m_last = m_list.insert_after(m_last, std::move(occurrence));
        ++m_size;
        m_hasPositions = m_hasPositions || m_last->isPosition;
        m_hasValues = m_hasValues || m_last->isValue;
    }

    // Moves all that another list of the same memory holds to the end of this one.
    void append(Occurrences&& other) noexcept
    {
        if (other.m_list.empty())
        {
            return;
        }
        const List::iterator last = other.m_last;
        assert(m_list.get_allocator() == other.m_list.get_allocator());
        m_list.splice_after(m_last, std::move(other.m_list));
        m_last = last;
        m_size += other.m_size;
        m_hasPositions = m_hasPositions || other.m_hasPositions;
        m_hasValues = m_hasValues || other.m_hasValues;
        other.m_last = other.m_list.before_begin();
        other.m_size = 0;
    }

    [[nodiscard]] bool hasPositions() const noexcept { return m_hasPositions; }
    [[nodiscard]] bool hasValues() const noexcept { return m_hasValues; }
    [[nodiscard]] std::size_t size() const noexcept { return m_size; }

    [[nodiscard]] Place begin() const noexcept { return m_list.before_begin(); }
    [[nodiscard]] Place end() const noexcept { return m_last; }

    // The place behind `count` occurrences. Takes time that grows with count.
    [[nodiscard]] Place placeBehind(std::size_t count) const noexcept
    {
        return std::next(begin(), static_cast<std::ptrdiff_t>(count));
    }

    // Steps to the next occurrence and returns it; null at the end, where the place stays.
    [[nodiscard]] const Occurrence* next(Place& place) const noexcept
    {
        const Place following = std::next(place);
        if (following == m_list.end())
        {
            return nullptr;
        }
        place = following;
        return &*following;
    }

    // As next, passing by those that hold no value.
    [[nodiscard]] const Occurrence* nextValue(Place& place) const noexcept
    {
        const Occurrence* occurrence = next(place);
        while (occurrence != nullptr && !occurrence->isValue)
        {
            occurrence = next(place);
        }
        return occurrence;
    }

    // As next, passing by those that hold no position.
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
    List m_list;
    List::iterator m_last = m_list.before_begin();
    std::size_t m_size = 0;
    bool m_hasPositions = false;
    bool m_hasValues = false;
};

} // namespace kexa_3_3
