// Memory of many megabytes in large pages, which take hundreds of times fewer page faults to fill.
// Where the system has none to ask for nothing changes.
//
// One of these for each platform.
#pragma once

#include <cstddef>

namespace kexa_3_3
{

// How many bytes to ask for beyond the size of a block, so that it can begin where a large page
// does: none where it is not worth it.
[[nodiscard]] std::size_t slackForLargePages(std::size_t size) noexcept;

// Where a block of so many bytes, not used yet, begins in memory with that slack. Asks the system
// to back it by large pages; a refusal is no failure.
[[nodiscard]] std::byte* beginInLargePages(std::byte* memory, std::size_t size) noexcept;

} // namespace kexa_3_3
