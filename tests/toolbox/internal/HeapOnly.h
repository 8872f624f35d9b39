// The memory that pools and arenas of tests begin with.
#pragma once

#include <cstddef>
#include <span>

namespace unit
{

// None: each piece then is a block of the heap, beyond whose ends the address sanitizer reports
// every access.
inline constexpr std::span<std::byte> heap_only;

} // namespace unit
