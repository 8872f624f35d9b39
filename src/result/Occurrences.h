// The positions and values that a parse result holds of one option.
#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory_resource>
#include <utility>
#include <vector>

#include "kexa/variant.h"

namespace kexa_3_3
{

// A position at which an option occurred, a value given for it, or, most often, both.
struct Occurrence
{
    const wchar_t* text = nullptr; // null-terminated; lives as long as the result
    vexkit2::variant_t value;
    std::int32_t position = 0;
    bool isPosition = false;
    bool isValue = false;
};

// The occurrences of an option in the order stored.
class Occurrences
{
public:
    // A place in a walk: the number of occurrences before it. It stays valid while the list grows,
    // and what is appended comes behind it.
    using Place = std::size_t;

    // memory: outlives the list.
    explicit Occurrences(std::pmr::memory_resource& memory) noexcept : m_list(&memory) {}
    ~Occurrences() = default;
    Occurrences(Occurrences&&) noexcept = default;
    Occurrences& operator=(const Occurrences&) = delete;
    Occurrences& operator=(Occurrences&&) = delete;

    // A copy in the same memory. Throws std::bad_alloc.
    Occurrences(const Occurrences& other)
        : m_list(other.m_list, other.m_list.get_allocator()), m_hasPositions(other.m_hasPositions),
          m_hasValues(other.m_hasValues)
    {
    }

    // Throws std::bad_alloc, changing nothing.
    void appendPosition(std::int32_t position)
    {
        m_list.push_back({nullptr, {}, position, true, false});
        m_hasPositions = true;
    }

    // text:  null-terminated; outlives the list.
    // value: moved away.
    // Throws std::bad_alloc, changing nothing but the value.
    void appendValue(const wchar_t* text, vexkit2::variant_t& value, std::int32_t position,
                     bool isPosition)
    {
        m_list.push_back({text, std::move(value), position, isPosition, true});
        m_hasPositions = m_hasPositions || isPosition;
        m_hasValues = true;
    }

    // Makes room for `count` further occurrences. Throws std::bad_alloc, changing nothing.
    void reserveMore(std::size_t count)
    {
        if (m_list.capacity() - m_list.size() < count)
        {
            m_list.reserve(std::max(m_list.size() + count, 2 * m_list.size()));
        }
    }

    // Moves all that another list of the same memory holds to the end of this one. Precondition:
    // this list is empty, or reserveMore() made room.
    void append(Occurrences&& other) noexcept
    {
        assert(m_list.get_allocator() == other.m_list.get_allocator());
        assert(m_list.empty() || m_list.capacity() - m_list.size() >= other.m_list.size());
        if (m_list.empty())
        {
            m_list.swap(other.m_list);
        }
        m_list.insert(m_list.end(), std::move_iterator(other.m_list.begin()),
                      std::move_iterator(other.m_list.end()));
        m_hasPositions = m_hasPositions || other.m_hasPositions;
        m_hasValues = m_hasValues || other.m_hasValues;
    }

    // Adds a copy of all that another list holds. Precondition: reserveMore() made room.
    // NOLINTNEXTLINE(bugprone-exception-escape): copies of values share blocks that are there.
    void append(const Occurrences& other) noexcept
    {
        assert(m_list.capacity() - m_list.size() >= other.m_list.size());
        m_list.insert(m_list.end(), other.m_list.begin(), other.m_list.end());
        m_hasPositions = m_hasPositions || other.m_hasPositions;
        m_hasValues = m_hasValues || other.m_hasValues;
    }

    [[nodiscard]] bool hasPositions() const noexcept { return m_hasPositions; }
    [[nodiscard]] bool hasValues() const noexcept { return m_hasValues; }
    [[nodiscard]] std::size_t size() const noexcept { return m_list.size(); }

    // Returns the occurrence at `place` and advances `place` behind it; null at the end.
    [[nodiscard]] const Occurrence* next(Place& place) const noexcept
    {
        return place < m_list.size() ? &m_list[place++] : nullptr;
    }

    // As next, skipping those that hold no value.
    [[nodiscard]] const Occurrence* nextValue(Place& place) const noexcept
    {
        const Occurrence* occurrence = next(place);
        while (occurrence != nullptr && !occurrence->isValue)
        {
            occurrence = next(place);
        }
        return occurrence;
    }

    // As next, skipping those that hold no position.
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
    std::pmr::vector<Occurrence> m_list;
    bool m_hasPositions = false;
    bool m_hasValues = false;
};

} // namespace kexa_3_3
