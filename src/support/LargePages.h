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

// From which size on it is worth the call, and where to begin in such a block so that all of it
// lies in large pages, which have 2 MiB on x86-64. Memory that is skipped and never touched costs
// nothing.
inline constexpr std::size_t large_block = std::size_t{1} << 22;
inline constexpr std::size_t large_page = std::size_t{1} << 21;

// The bytes to skip up to the next large page.
[[nodiscard]] inline std::size_t beforeLargePage(const std::byte* memory) noexcept
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): an address is asked for.
    return (~reinterpret_cast<std::uintptr_t>(memory) + 1) & (large_page - 1);
}

} // namespace kexa_3_3
