// Memory for objects that hold a little at first and perhaps a lot later.
#pragma once

#include <cstddef>
#include <memory_resource>
#include <new>

#include "support/Arena.h"

namespace kexa_3_3
{

// Takes small blocks from an arena, which costs next to nothing, and large ones from the heap, to
// which they return. What a growing vector leaves behind is small blocks only.
class SmallBlocks final : public std::pmr::memory_resource
{
public:
    // small:   lives longer than this.
    // largest: the largest block, in bytes, to take from it.
    explicit SmallBlocks(Arena& small, std::size_t largest = 256) noexcept
        : m_small(&small), m_largest(largest)
    {
    }

private:
    void* do_allocate(std::size_t size, std::size_t alignment) override
    {
        return size <= m_largest ? m_small->take(size, alignment) : ::operator new(size);
    }
    void do_deallocate(void* block, std::size_t size, std::size_t /*alignment*/) override
    {
        if (size > m_largest)
        {
            ::operator delete(block);
        }
    }
    [[nodiscard]] bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override
    {
        return this == &other;
    }

    Arena* m_small;
    std::size_t m_largest;
};

} // namespace kexa_3_3
