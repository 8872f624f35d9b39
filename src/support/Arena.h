// Memory that is given back all at once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <span>

namespace kexa_3_3
{

// Cuts what is asked for off larger blocks, which costs a few instructions, and frees the blocks
// when it is destroyed. Nothing is freed before.
class Arena final : public std::pmr::memory_resource
{
public:
    // firstBlock: how many bytes to take from the heap when memory is first asked for. Later blocks
    // grow up to a limit, so that what is left unused at the end stays a small part of the whole.
    explicit Arena(std::size_t firstBlock) noexcept : m_nextBlock(firstBlock) {}

    // first: taken from before the heap is asked for anything. Lives longer than the arena.
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
        const std::size_t padding =
            // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): an address is asked for.
            (~reinterpret_cast<std::uintptr_t>(m_free) + 1) & (alignment - 1);
        if (m_left < size + padding)
        {
            return takeFromNewBlock(size);
        }
        std::byte* const taken = m_free + padding;
        m_free = taken + size;
        m_left -= size + padding;
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

    std::byte* m_free = nullptr; // in the newest shared block
    std::size_t m_left = 0;
    std::size_t m_nextBlock;
    Block* m_blocks = nullptr;
};

} // namespace kexa_3_3
