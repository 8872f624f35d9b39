#include "support/Arena.h"

#include <algorithm>
#include <limits>
#include <new>

#include "support/LargePages.h"

namespace kexa_3_3
{

namespace
{

constexpr std::size_t largest_shared_block = std::size_t{1} << 23;

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
    std::byte* const block = addBlock(m_nextBlock);
    m_free = block + inWords(size);
    m_left = m_nextBlock - inWords(size);
    m_nextBlock = std::min(2 * m_nextBlock, std::max(m_nextBlock, largest_shared_block));
    return block;
}

std::byte* Arena::addBlock(std::size_t size)
{
    const std::size_t overhead = sizeof(Block) + slackForLargePages(size);
    if (size > std::numeric_limits<std::size_t>::max() - overhead)
    {
        throw std::bad_alloc();
    }
    void* const memory = ::operator new(overhead + size);
    m_blocks = new (memory) Block{m_blocks};
    return beginInLargePages(static_cast<std::byte*>(memory) + sizeof(Block), size);
}

} // namespace kexa_3_3
