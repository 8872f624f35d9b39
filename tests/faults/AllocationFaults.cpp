#include "AllocationFaults.h"

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace
{

// Test programs that use this run the library in one thread; only the number of live blocks is
// changed by whoever allocates.
bool insideCall = false;
bool failedInCall = false;
std::size_t counted = 0;
std::size_t chosen = 0;
faults::Extent chosenExtent = faults::Extent::oneAllocation;
std::atomic<std::size_t> live{0};

bool mustFail() noexcept
{
    if (!insideCall)
    {
        return false;
    }
    ++counted;
    const bool again = failedInCall && chosenExtent == faults::Extent::restOfCall;
    if (counted == chosen || again)
    {
        failedInCall = true;
        return true;
    }
    return false;
}

void* allocate(std::size_t size) noexcept
{
    void* const block = mustFail() ? nullptr : std::malloc(size == 0 ? 1 : size);
    live += block == nullptr ? 0 : 1;
    return block;
}

void release(void* block) noexcept
{
    live -= block == nullptr ? 0 : 1;
    std::free(block);
}

// Over-aligned memory: the address of the block that holds it stands right in front of it.
void* allocateAligned(std::size_t size, std::size_t alignment) noexcept
{
    void* const block = allocate(size + alignment + sizeof(void*));
    if (block == nullptr)
    {
        return nullptr;
    }
    const auto first = reinterpret_cast<std::uintptr_t>(block) + sizeof(void*);
    const std::uintptr_t aligned = (first + alignment - 1) / alignment * alignment;
    void** const memory = reinterpret_cast<void**>(aligned);
    memory[-1] = block;
    return memory;
}

void releaseAligned(void* memory) noexcept
{
    release(memory == nullptr ? nullptr : static_cast<void**>(memory)[-1]);
}

void* orThrow(void* block)
{
    if (block == nullptr)
    {
        throw std::bad_alloc();
    }
    return block;
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

std::size_t liveBlocks() noexcept
{
    return live;
}

LibraryCall::LibraryCall() noexcept
{
    failedInCall = false;
    insideCall = true;
}

LibraryCall::~LibraryCall()
{
    insideCall = false;
}

} // namespace faults

void* operator new(std::size_t size)
{
    return orThrow(allocate(size));
}

void* operator new[](std::size_t size)
{
    return orThrow(allocate(size));
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size);
}

void* operator new(std::size_t size, std::align_val_t alignment)
{
    return orThrow(allocateAligned(size, static_cast<std::size_t>(alignment)));
}

void* operator new[](std::size_t size, std::align_val_t alignment)
{
    return orThrow(allocateAligned(size, static_cast<std::size_t>(alignment)));
}

void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return allocateAligned(size, static_cast<std::size_t>(alignment));
}

void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return allocateAligned(size, static_cast<std::size_t>(alignment));
}

void operator delete(void* block) noexcept
{
    release(block);
}

void operator delete[](void* block) noexcept
{
    release(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    release(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    release(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept
{
    release(block);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept
{
    release(block);
}

void operator delete(void* memory, std::align_val_t) noexcept
{
    releaseAligned(memory);
}

void operator delete[](void* memory, std::align_val_t) noexcept
{
    releaseAligned(memory);
}

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    releaseAligned(memory);
}

void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept
{
    releaseAligned(memory);
}

void operator delete(void* memory, std::align_val_t, const std::nothrow_t&) noexcept
{
    releaseAligned(memory);
}

void operator delete[](void* memory, std::align_val_t, const std::nothrow_t&) noexcept
{
    releaseAligned(memory);
}
