#include "support/memory/SharedTexts.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <new>

namespace kexa_3_3
{

using vexkit2::detail::block_header_t;
using vexkit2::detail::shared_memory_t;

namespace
{

// The bytes that a text of `length` characters takes, up to where the next block may begin.
std::size_t blockSize(std::size_t length)
{
    constexpr std::size_t step = alignof(block_header_t);
    constexpr std::size_t longest =
        (std::numeric_limits<std::size_t>::max() / 2 - sizeof(block_header_t)) / sizeof(wchar_t);
    if (length >= longest)
    {
        throw std::bad_alloc();
    }
    const std::size_t size = sizeof(block_header_t) + (length + 1) * sizeof(wchar_t);
    return (size + step - 1) / step * step;
}

} // namespace

vexkit2::variant_t SharedTexts::add(std::wstring_view text)
{
    const std::size_t size = blockSize(text.size());
    if (size > m_left)
    {
        beginRegion(size);
    }
    assert(m_region != nullptr && size <= m_left);
    auto* const header = new (m_free) block_header_t(m_region, (text.size() + 1) * sizeof(wchar_t));
    auto* const copy = static_cast<wchar_t*>(static_cast<void*>(header + 1));
    text.copy(copy, text.size());
    copy[text.size()] = L'\0';
    m_free += size;
    m_left -= size;
    return vexkit2::variant_t::share_block(vexkit2::kind_wide_text, copy);
}

// Makes a region with room for a block of `size` bytes. The rest of the previous region stays
// unused; it is smaller than that block.
void SharedTexts::beginRegion(std::size_t size)
{
    const std::size_t room = std::max(m_nextSize, size);
    void* const memory = ::operator new(sizeof(shared_memory_t) + room);
    releaseRegion();
    m_region = new (memory) shared_memory_t(1);
    m_free = static_cast<std::byte*>(memory) + sizeof(shared_memory_t);
    m_left = room;
    m_nextSize = std::min(2 * m_nextSize, largest_region);
}

void SharedTexts::releaseRegion() noexcept
{
    if (m_region != nullptr)
    {
        vexkit2::detail::release_share(*m_region);
    }
}

} // namespace kexa_3_3
