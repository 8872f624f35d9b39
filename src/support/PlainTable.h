// A growing table of plain values.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <memory_resource>
#include <new>
#include <span>
#include <type_traits>

namespace kexa_3_3
{

// As a vector of values that need no destruction, where making room and appending are two steps:
// the first may fail, the second costs the storing of the value. Several tables that grow together
// can so be asked for room before the first of them changes.
template <class T>
class PlainTable
{
    static_assert(std::is_trivially_copyable_v<T>);

public:
    // The bytes that some values take.
    [[nodiscard]] static constexpr std::size_t bytesOf(std::size_t count) noexcept
    {
        return count * sizeof(T); // NOLINT(bugprone-sizeof-expression): of a pointer where T is one
    }

    // memory: lives longer than the table.
    // first:  room to begin with, aligned as the values are. Lives as long as the table, and nobody
    //         else uses it.
    explicit PlainTable(std::pmr::memory_resource& memory, std::span<std::byte> first = {}) noexcept
        : m_memory(&memory), m_first(static_cast<T*>(static_cast<void*>(first.data()))),
          m_values(m_first), m_room(first.size() / bytesOf(1))
    {
    }
    ~PlainTable() { free(); }
    PlainTable(const PlainTable&) = delete;
    PlainTable& operator=(const PlainTable&) = delete;

    // Whether `count` values more can be appended.
    [[nodiscard]] bool hasRoom(std::size_t count) const noexcept
    {
        return m_room - m_size >= count;
    }

    // How many values to make room for where there is none for `count` more: so many that appending
    // stays cheap.
    [[nodiscard]] std::size_t nextRoom(std::size_t count) const noexcept
    {
        return std::max(m_size + count, 2 * m_room);
    }

    // Makes room for `room` values in all, more than there is. Throws std::bad_alloc, changing
    // nothing.
    void grow(std::size_t room)
    {
        if (room > most_values)
        {
            throw std::bad_alloc(); // GCOVR_EXCL_LINE: billions of values fit no test machine
        }
        void* const memory = m_memory->allocate(bytesOf(room), alignof(T));
        T* const values = static_cast<T*>(memory);
        std::uninitialized_copy_n(m_values, m_size, values);
        free();
        m_values = values;
        m_room = room;
    }

    // Needs room.
    void append(const T& value) noexcept { std::construct_at(m_values + m_size++, value); }

    [[nodiscard]] bool empty() const noexcept { return m_size == 0; }
    [[nodiscard]] std::size_t size() const noexcept { return m_size; }
    [[nodiscard]] T& operator[](std::size_t index) noexcept { return m_values[index]; }
    [[nodiscard]] const T& operator[](std::size_t index) const noexcept { return m_values[index]; }
    [[nodiscard]] const T* begin() const noexcept { return m_values; }
    [[nodiscard]] const T* end() const noexcept { return m_values + m_size; }

private:
    // Their numbers fit into 31 bits, which is what the tables' owners keep of them.
    static constexpr std::size_t most_values = 0x7FFFFFFF;

    void free() noexcept
    {
        if (m_values != m_first)
        {
            m_memory->deallocate(m_values, bytesOf(m_room), alignof(T));
        }
    }

    std::pmr::memory_resource* m_memory;
    T* m_first; // or null
    T* m_values;
    std::size_t m_size = 0;
    std::size_t m_room; // for so many values
};

} // namespace kexa_3_3
