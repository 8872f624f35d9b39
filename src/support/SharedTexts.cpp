#include "support/SharedTexts.h"

#include <algorithm>

#include "support/LargePages.h"

namespace kexa_3_3
{

namespace
{

constexpr std::size_t largest_region = std::size_t{1} << 23;

} // namespace

SharedTexts::~SharedTexts()
{
    while (m_newest != nullptr)
    {
        Region* const region = m_newest;
        m_newest = region->previous;
        const std::size_t held = region->held;
        // Another object may come to live at this address, once its memory was freed.
        region->owner.store(nullptr, std::memory_order_relaxed);
        // Where no variant has a share left none can get one, so the count is final: to look at it
        // spares the atomic subtraction. Acquired, since the last use of the region by another
        // thread comes before its end.
        if (region->count.load(std::memory_order_acquire) == held ||
            region->count.fetch_sub(held, std::memory_order_acq_rel) == held)
        {
            ::operator delete(region);
        }
    }
}

// Makes a region in which the text fits. What is left of the newest one is given up, which is
// little beside a text that did not fit.
void SharedTexts::makeRoom(std::wstring_view text)
{
    constexpr std::size_t longest =
        (std::numeric_limits<std::size_t>::max() - sizeof(Region)) / sizeof(wchar_t) / 4;
    if (text.size() > longest)
    {
        throw std::bad_alloc();
    }
    const std::size_t size = std::max(m_nextSize, sizeOf(text.size()));
    void* const memory = ::operator new(sizeof(Region) + slackForLargePages(size) + size);
    m_newest = new (memory) Region(this, m_newest);
    m_free = beginInLargePages(static_cast<std::byte*>(memory) + sizeof(Region), size);
    m_left = size;
    m_nextSize = std::min(2 * m_nextSize, largest_region);
}

} // namespace kexa_3_3
