// Makes a chosen allocation of the library fail.
#ifndef KEXA_TESTS_TOOLBOX_ALLOCATION_FAULTS_H
#define KEXA_TESTS_TOOLBOX_ALLOCATION_FAULTS_H

#include <cstddef>

#include "AllocationCount.h"

namespace faults
{

using toolbox::liveBlocks;

// Which allocations fail.
enum class Extent
{
    oneAllocation, // the chosen one only
    restOfCall     // the chosen one and all later ones of the library call
};

// Chooses the allocation that fails, counted from 1 over all library calls from now on. 0: none.
void failAllocation(std::size_t number, Extent extent) noexcept;

// Allocations attempted by library calls since failAllocation.
std::size_t allocationsCounted() noexcept;

// Whether an allocation failed in the last library call.
bool lastCallFailed() noexcept;

// Allocations are counted and may fail only while an object of this class exists. The test's own
// allocations never fail.
class LibraryCall
{
public:
    LibraryCall() noexcept;
    LibraryCall(const LibraryCall&) = delete;
    LibraryCall& operator=(const LibraryCall&) = delete;
    ~LibraryCall();
};

template <class Call>
auto inLibrary(Call call)
{
    const LibraryCall counted;
    return call();
}

} // namespace faults

#endif
