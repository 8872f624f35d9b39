// An array whose first elements lie beside it.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <utility>

#include "support/Arena.h"

namespace kexa_3_3
{

// Room for the first `First` elements is part of it. A few more lie in an arena, which costs next
// to nothing, many of them in the heap. Elements are moved without throwing.
template <class T, std::size_t First>
class GrowingArray
{
public:
    GrowingArray() noexcept : m_elements(firstRoom()) {}
    ~GrowingArray()
    {
        std::destroy_n(m_elements, m_size);
        free();
    }
    GrowingArray(const GrowingArray&) = delete;
    GrowingArray& operator=(const GrowingArray&) = delete;

    // Makes room for `count` elements more. It at least doubles, so that appending stays cheap
    // however often it is asked for. Throws std::bad_alloc, changing nothing.
    //
    // arena: lives longer than this.
    void reserveMore(std::size_t count, Arena& arena)
    {
        if (count > m_room - m_size)
        {
            grow(count, arena);
        }
    }

    // Need room made before.
    void push_back(const T& element) { std::construct_at(m_elements + m_size++, element); }
    void push_back(T&& element) noexcept
    {
        std::construct_at(m_elements + m_size++, std::move(element));
    }

    // Takes the elements away that the function is true for.
    template <class Predicate>
    void removeIf(Predicate predicate)
    {
        T* const end = std::remove_if(m_elements, m_elements + m_size, predicate);
        std::destroy(end, m_elements + m_size);
        m_size = static_cast<std::uint32_t>(end - m_elements);
    }

    [[nodiscard]] std::size_t size() const noexcept { return m_size; }
    [[nodiscard]] bool empty() const noexcept { return m_size == 0; }
    [[nodiscard]] const T* begin() const noexcept { return m_elements; }
    [[nodiscard]] const T* end() const noexcept { return m_elements + m_size; }
    [[nodiscard]] const T& operator[](std::size_t index) const { return m_elements[index]; }

private:
    static constexpr std::size_t largest_in_arena = 256; // bytes

    [[nodiscard]] T* firstRoom() noexcept
    {
        return static_cast<T*>(static_cast<void*>(m_first.data()));
    }

    void free() noexcept
    {
        if (m_room > First && m_room * sizeof(T) > largest_in_arena)
        {
            ::operator delete(m_elements);
        }
    }

    void grow(std::size_t count, Arena& arena)
    {
        constexpr std::size_t most =
            std::min<std::size_t>(std::numeric_limits<std::uint32_t>::max(),
                                  std::numeric_limits<std::size_t>::max() / sizeof(T));
        if (count > most - m_size)
        {
            throw std::bad_alloc();
        }
        const std::size_t room = std::min(most, std::max(m_size + count, std::size_t{2} * m_room));
        const std::size_t bytes = room * sizeof(T);
        void* const memory =
            bytes > largest_in_arena ? ::operator new(bytes) : arena.take(bytes, alignof(T));
        T* const elements = static_cast<T*>(memory);
        std::uninitialized_move_n(m_elements, m_size, elements);
        std::destroy_n(m_elements, m_size);
        free();
        m_elements = elements;
        m_room = static_cast<std::uint32_t>(room);
    }

    T* m_elements;
    std::uint32_t m_size = 0;
    std::uint32_t m_room = First;
    alignas(T) std::array<std::byte, First * sizeof(T)> m_first;
};

} // namespace kexa_3_3
