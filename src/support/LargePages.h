// Memory of many megabytes.
#pragma once

#include <cstddef>

namespace kexa_3_3
{

// Asks the system to back the memory, which is not used yet, by large pages where it has them. It
// then takes hundreds of times fewer page faults to fill. Where that is not possible nothing
// changes.
//
// One of these for each platform.
void preferLargePages(void* memory, std::size_t size) noexcept;

// From which size on it is worth the call: large pages have 2 MiB on x86-64.
inline constexpr std::size_t large_block = std::size_t{1} << 22;

} // namespace kexa_3_3
