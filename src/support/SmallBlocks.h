// Memory for objects that hold a little at first and perhaps a lot later.
#pragma once

#include <cstddef>
#include <memory_resource>
#include <new>

#include "support/Arena.h"

namespace kexa_3_3
{

// Takes small blocks from an arena, which costs next to nothing, and large
// ones from the heap, to which they return. A vector that grows leaves behind at most as much as
// the largest small block.
class SmallBlocks final : public std::pmr::memory_resource
{
public:
    // small: lives longer than this.
    explicit SmallBlocks(Arena& small) noexcept : m_small(&small) {}

private:
    static constexpr std::size_t largest_small_block = 256; // bytes

    void* do_allocate(std::size_t size, std::size_t alignment) override
    {
        return size <= largest_small_block ? m_small->take(size, alignment) : ::operator new(size);
    }
    void do_deallocate(void* block, std::size_t size, std::size_t /*alignment*/) override
    {
        if (size > largest_small_block)
        {
            ::operator delete(block);
        }
    }
    [[nodiscard]] bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override
    {
        return this == &other;
    }

    Arena* m_small;
};

} // namespace kexa_3_3
