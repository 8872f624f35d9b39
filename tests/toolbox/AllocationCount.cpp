#include "AllocationCount.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace
{

std::atomic<std::size_t> blocks{0};
std::atomic<std::size_t> bytes{0};
std::atomic<std::size_t> live{0};
std::atomic<toolbox::AllocationFault> fault{nullptr};

void* allocate(std::size_t size, std::size_t padding = 0) noexcept
{
    const toolbox::AllocationFault mustFail = fault.load(std::memory_order_relaxed);
    if (mustFail != nullptr && mustFail())
    {
        return nullptr;
    }
    void* const block = std::malloc(size + padding == 0 ? 1 : size + padding);
    if (block != nullptr)
    {
        blocks.fetch_add(1, std::memory_order_relaxed);
        bytes.fetch_add(size, std::memory_order_relaxed);
        live.fetch_add(1, std::memory_order_relaxed);
    }
    return block;
}

void release(void* block) noexcept
{
    if (block != nullptr)
    {
        live.fetch_sub(1, std::memory_order_relaxed);
        std::free(block);
    }
}

// Over-aligned memory: the address of the block that holds it is stored right before it.
void* allocateAligned(std::size_t size, std::size_t alignment) noexcept
{
    void* const block = allocate(size, alignment + sizeof(void*));
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

namespace toolbox
{

AllocationCount allocationsSoFar() noexcept
{
    return {blocks.load(std::memory_order_relaxed), bytes.load(std::memory_order_relaxed)};
}

std::size_t liveBlocks() noexcept
{
    return live.load(std::memory_order_relaxed);
}

void setAllocationFault(AllocationFault newFault) noexcept
{
    fault.store(newFault, std::memory_order_relaxed);
}

} // namespace toolbox

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
