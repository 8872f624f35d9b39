#include "AllocationFaults.h"

namespace
{

// Not synchronized: test programs that use this call the library in one thread.
bool failedInCall = false;
std::size_t counted = 0;
std::size_t chosen = 0;
faults::Extent chosenExtent = faults::Extent::oneAllocation;

bool mustFail() noexcept
{
    ++counted;
    const bool again = failedInCall && chosenExtent == faults::Extent::restOfCall;
    if (counted == chosen || again)
    {
        failedInCall = true;
        return true;
    }
    return false;
}

} // namespace

namespace faults
{

void failAllocation(std::size_t number, Extent extent) noexcept
{
    counted = 0;
    chosen = number;
    chosenExtent = extent;
    failedInCall = false;
}

std::size_t allocationsCounted() noexcept
{
    return counted;
}

bool lastCallFailed() noexcept
{
    return failedInCall;
}

LibraryCall::LibraryCall() noexcept
{
    failedInCall = false;
    toolbox::setAllocationFault(mustFail);
}

LibraryCall::~LibraryCall()
{
    toolbox::setAllocationFault(nullptr);
}

} // namespace faults
