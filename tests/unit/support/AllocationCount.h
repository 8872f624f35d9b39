// Counts the allocations of a test program.
#pragma once

#include <cstddef>

namespace unit
{

// How often memory was taken by operator new since the program began.
std::size_t allocationCount() noexcept;

} // namespace unit
