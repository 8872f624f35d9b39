#include "support/memory/Arena.h"

#include <algorithm>
#include <limits>
#include <new>

namespace kexa_3_3
{

namespace
{

constexpr std::size_t largest_shared_block = std::size_t{1} << 20;

[[nodiscard]] std::size_t roundUp(std::size_t size) noexcept
{
    constexpr std::size_t step = alignof(std::max_align_t);
    return (size + step - 1) / step * step;
}

} // namespace

Arena::~Arena()
{
    while (m_blocks != nullptr)
    {
        Block* const previous = m_blocks->previous;
        ::operator delete(m_blocks);
        m_blocks = previous;
    }
}

void* Arena::takeFromNewBlock(std::size_t size)
{
    if (size > m_nextBlock / 4)
    {
        // A block of its own: what is left of the shared one stays in use.
        return addBlock(size);
    }
    const std::size_t blockSize = roundUp(m_nextBlock);
    std::byte* const block = addBlock(blockSize);
    m_free = block + size;
    m_left = blockSize - size;
    m_nextBlock = std::max(m_nextBlock, std::min(2 * m_nextBlock, largest_shared_block));
    return block;
}

std::byte* Arena::addBlock(std::size_t size)
{
    if (size > std::numeric_limits<std::size_t>::max() - sizeof(Block))
    {
        throw std::bad_alloc();
    }
    void* const memory = ::operator new(sizeof(Block) + size);
    m_blocks = new (memory) Block{m_blocks};
    return static_cast<std::byte*>(memory) + sizeof(Block);
}

} // namespace kexa_3_3
