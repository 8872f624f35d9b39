// Memory that is given back all at once.
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <span>

namespace kexa_3_3
{

// Cuts what is allocated off larger blocks, and frees the blocks when it is destroyed; nothing is
// freed before. With std::pmr::monotonic_buffer_resource, whose allocation is a call of 60
// instructions, a small command line takes a fifth more time.
class Arena final : public std::pmr::memory_resource
{
public:
    // first: used before the heap. Aligned as memory of the heap is; outlives the arena.
    explicit Arena(std::span<std::byte> first) noexcept
        : m_free(first.data()), m_left(first.size()), m_nextBlock(2 * first.size())
    {
    }
    ~Arena() override;
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;

    // size:      in bytes.
    // alignment: a power of two, at most that of std::max_align_t.
    // Throws std::bad_alloc, changing nothing.
    [[nodiscard]] void* take(std::size_t size, std::size_t alignment)
    {
        assert(alignment <= alignof(std::max_align_t));
        const std::size_t padding = m_left & (alignment - 1);
        if (m_left < padding || m_left - padding < size)
        {
            return takeFromNewBlock(size);
        }
        std::byte* const taken = m_free + padding;
        m_free = taken + size;
        m_left -= padding + size;
        return taken;
    }

private:
    // Stands at the front of every block.
    struct alignas(std::max_align_t) Block
    {
        Block* previous;
    };

    [[nodiscard]] void* takeFromNewBlock(std::size_t size);
    [[nodiscard]] std::byte* addBlock(std::size_t size);

    void* do_allocate(std::size_t size, std::size_t alignment) override
    {
        return take(size, alignment);
    }
    void do_deallocate(void* /*block*/, std::size_t /*size*/, std::size_t /*alignment*/) override {}
    [[nodiscard]] bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override
    {
        return this == &other;
    }

    std::byte* m_free;       // in the newest shared block
    std::size_t m_left;      // bytes behind it; the block ends at a multiple of every alignment
    std::size_t m_nextBlock; // bytes
    Block* m_blocks = nullptr;
};

} // namespace kexa_3_3
