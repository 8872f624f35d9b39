#include "support/LargePages.h"

namespace kexa_3_3
{

// Windows gives large pages to those only who hold a privilege for it. And memory counts as used
// there as soon as a block is taken: what is skipped in front of a large page would not be free.
std::size_t slackForLargePages(std::size_t /*size*/) noexcept
{
    return 0;
}

std::byte* beginInLargePages(std::byte* memory, std::size_t /*size*/) noexcept
{
    return memory;
}

} // namespace kexa_3_3
