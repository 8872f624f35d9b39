// The names of one option.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "support/Arena.h"
#include "support/HashedText.h"

namespace kexa_3_3
{

// Lies in an arena that lives longer. A name stays where it is when others come.
class OptionNames
{
public:
    OptionNames() noexcept = default;
    explicit OptionNames(std::span<HashedText> names) noexcept
        : m_first(names.data()), m_size(static_cast<std::uint32_t>(names.size()))
    {
    }
    ~OptionNames() = default;

    // The copy shares the names and makes room of its own before it adds any.
    OptionNames(const OptionNames& other) noexcept : m_first(other.m_first), m_size(other.m_size) {}
    OptionNames& operator=(const OptionNames&) = delete;

    // Throws std::bad_alloc, changing nothing.
    void append(const HashedText& name, Arena& arena)
    {
        if (m_spare == 0)
        {
            grow(arena);
        }
        std::construct_at(m_first + m_size, name);
        ++m_size;
        --m_spare;
    }

    [[nodiscard]] std::size_t size() const noexcept { return m_size; }
    [[nodiscard]] bool empty() const noexcept { return m_size == 0; }
    [[nodiscard]] const HashedText* begin() const noexcept { return m_first; }
    [[nodiscard]] const HashedText* end() const noexcept { return m_first + m_size; }
    [[nodiscard]] const HashedText& front() const { return m_first[0]; }
    [[nodiscard]] const HashedText& back() const { return m_first[m_size - 1]; }
    [[nodiscard]] const HashedText& operator[](std::size_t index) const { return m_first[index]; }

private:
    void grow(Arena& arena);

    HashedText* m_first = nullptr;
    std::uint32_t m_size = 0;
    std::uint32_t m_spare = 0; // room for so many more
};

} // namespace kexa_3_3
