// Makes a chosen allocation of the library fail.
#ifndef KEXA_TESTS_TOOLBOX_ALLOCATION_FAULTS_H
#define KEXA_TESTS_TOOLBOX_ALLOCATION_FAULTS_H

#include <cstddef>

#include "AllocationCount.h"

namespace faults
{

using toolbox::liveBlocks;

// How much fails.
enum class Extent
{
    oneAllocation, // the chosen one only
    restOfCall     // the chosen one and all behind it, until the library call ends
};

// Chooses the allocation that fails, counted from 1 over all library calls from now on; 0 for none.
void failAllocation(std::size_t number, Extent extent) noexcept;

// How many allocations library calls have made since then.
std::size_t allocationsCounted() noexcept;

// Whether an allocation failed inside the library call that ended last.
bool lastCallFailed() noexcept;

// Allocations count, and may fail, only while one of these lives: the test's own never fail.
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
