// Counts the allocations of a test program, those of the library included.
//
// AllocationCount.cpp replaces every allocation function of the program that it is linked into.
#ifndef KEXA_TESTS_TOOLBOX_ALLOCATION_COUNT_H
#define KEXA_TESTS_TOOLBOX_ALLOCATION_COUNT_H

#include <cstddef>

namespace toolbox
{

struct AllocationCount
{
    std::size_t blocks = 0;
    std::size_t bytes = 0; // as requested by the caller
};

// Allocations since the program began, freed ones included.
AllocationCount allocationsSoFar() noexcept;

// Blocks that are allocated and not yet freed.
std::size_t liveBlocks() noexcept;

// Allocations made while the action runs.
template <class Action>
AllocationCount countAllocations(Action action)
{
    const AllocationCount before = allocationsSoFar();
    action();
    const AllocationCount after = allocationsSoFar();
    return {after.blocks - before.blocks, after.bytes - before.bytes};
}

// Called before each allocation, which fails where it returns true. Null, as at the start: none
// fails.
using AllocationFault = bool (*)() noexcept;
void setAllocationFault(AllocationFault fault) noexcept;

} // namespace toolbox

namespace unit
{

inline std::size_t allocationCount() noexcept
{
    return toolbox::allocationsSoFar().blocks;
}

} // namespace unit

#endif
