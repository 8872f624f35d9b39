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
    explicit Arena(std::size_t firstBlock) noexcept : m_nextBlock(inWords(firstBlock)) {}

    // first: taken from before the heap is asked for anything. Aligned as memory of the heap is.
    // Lives longer than the arena.
    explicit Arena(std::span<std::byte> first) noexcept
        : m_free(first.data()), m_left(first.size() & ~(word - 1)), m_nextBlock(2 * m_left)
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
        // Pieces are whole words, so what asks for no greater alignment begins where the last ends.
        const std::size_t padding = alignment <= word ? 0 : paddingOf(alignment);
        if (m_left < padding || m_left - padding < size)
        {
            return takeFromNewBlock(size);
        }
        std::byte* const taken = m_free + padding;
        const std::size_t used = padding + inWords(size);
        m_free += used;
        m_left -= used;
        return taken;
    }

private:
    // Stands at the front of every block.
    struct alignas(std::max_align_t) Block
    {
        Block* previous;
    };

    static constexpr std::size_t word = alignof(std::uint64_t);

    [[nodiscard]] static constexpr std::size_t inWords(std::size_t size) noexcept
    {
        return (size + word - 1) & ~(word - 1);
    }

    // How many bytes to leave out in front of a piece.
    [[nodiscard]] std::size_t paddingOf(std::size_t alignment) const noexcept
    {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): an address is asked for.
        return (~reinterpret_cast<std::uintptr_t>(m_free) + 1) & (alignment - 1);
    }

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
    std::size_t m_left = 0;      // bytes, in whole words
    std::size_t m_nextBlock;     // likewise
    Block* m_blocks = nullptr;
};

} // namespace kexa_3_3
