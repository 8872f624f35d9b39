#include <cerrno>
#include <cstdint>

#include <sys/mman.h>
#include <unistd.h>

#include "support/LargePages.h"

namespace kexa_3_3
{

#ifdef MADV_HUGEPAGE

namespace
{

constexpr std::size_t smallest_block = std::size_t{1} << 22;
constexpr std::size_t large_page = std::size_t{1} << 21; // on x86-64

// How many bytes lie between the memory and the next address that a power of two divides.
std::size_t bytesUpTo(std::size_t alignment, const std::byte* memory) noexcept
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): an address is asked for.
    return (~reinterpret_cast<std::uintptr_t>(memory) + 1) & (alignment - 1);
}

} // namespace

std::size_t slackForLargePages(std::size_t size) noexcept
{
    return size >= smallest_block ? large_page : 0;
}

// What is skipped is never touched and costs nothing.
std::byte* beginInLargePages(std::byte* memory, std::size_t size) noexcept
{
    if (slackForLargePages(size) == 0)
    {
        return memory;
    }
    memory += bytesUpTo(large_page, memory);
    // Only whole pages may be named.
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const int before = errno;
    static_cast<void>(madvise(memory, size & ~(page - 1), MADV_HUGEPAGE));
    errno = before;
    return memory;
}

#else

std::size_t slackForLargePages(std::size_t /*size*/) noexcept
{
    return 0;
}

std::byte* beginInLargePages(std::byte* memory, std::size_t /*size*/) noexcept
{
    return memory;
}

#endif

} // namespace kexa_3_3
