#include <cerrno>
#include <cstdint>

#include <sys/mman.h>
#include <unistd.h>

#include "support/LargePages.h"

namespace kexa_3_3
{

void preferLargePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) noexcept
{
#ifdef MADV_HUGEPAGE
    // Only whole pages may be named. A refusal (a kernel without large pages) is no failure.
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): an address is asked for.
    const std::size_t skipped = (~reinterpret_cast<std::uintptr_t>(memory) + 1) & (page - 1);
    if (size > skipped + page)
    {
        const int before = errno;
        static_cast<void>(madvise(static_cast<std::byte*>(memory) + skipped,
                                  (size - skipped) & ~(page - 1), MADV_HUGEPAGE));
        errno = before;
    }
#endif
}

} // namespace kexa_3_3
