// Counts what operator new is asked for, by the program and by the library.
#pragma once

#include <cstdint>

struct AllocationCount
{
    std::uint64_t blocks = 0;
    std::uint64_t bytes = 0;
};

// What was asked for since the program began.
AllocationCount allocationsSoFar();

// What the action asks for.
template <class Action>
AllocationCount countAllocations(Action action)
{
    const AllocationCount before = allocationsSoFar();
    action();
    const AllocationCount after = allocationsSoFar();
    return {after.blocks - before.blocks, after.bytes - before.bytes};
}
