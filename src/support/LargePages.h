// Memory of many megabytes.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kexa_3_3
{

// Asks the system to back the memory, which is not used yet, by large pages where it has them. It
// then takes hundreds of times fewer page faults to fill. Where that is not possible nothing
// changes.
//
// One of these for each platform.
void preferLargePages(void* memory, std::size_t size) noexcept;

// Whether there are large pages to ask for. There are none on Windows, where memory counts as used
// as soon as a block is taken: what is skipped in front of a large page would not be free.
#ifdef _WIN32
inline constexpr bool has_large_pages = false;
#else
inline constexpr bool has_large_pages = true;
#endif

inline constexpr std::size_t large_page = std::size_t{1} << 21; // bytes, on x86-64

// How many bytes to ask for beyond the size of a block, so that it can begin where a large page
// does: none where it is not worth it.
[[nodiscard]] constexpr std::size_t slackForLargePages(std::size_t size) noexcept
{
    constexpr std::size_t smallest_block = std::size_t{1} << 22;
    return has_large_pages && size >= smallest_block ? large_page : 0;
}

// Where a block of so many bytes begins in memory with that slack. What is skipped is never touched
// and costs nothing.
[[nodiscard]] inline std::byte* beginInLargePages(std::byte* memory, std::size_t size) noexcept
{
    const std::size_t slack = slackForLargePages(size);
    if (slack != 0)
    {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): an address is asked for.
        memory += (~reinterpret_cast<std::uintptr_t>(memory) + 1) & (slack - 1);
        preferLargePages(memory, size);
    }
    return memory;
}

} // namespace kexa_3_3
