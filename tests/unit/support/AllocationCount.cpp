#include "AllocationCount.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{

std::atomic<std::size_t> count{0};

void* allocate(std::size_t size) noexcept
{
    count.fetch_add(1, std::memory_order_relaxed);
    return std::malloc(size == 0 ? 1 : size);
}

} // namespace

void* operator new(std::size_t size)
{
    if (void* const memory = allocate(size); memory != nullptr)
    {
        return memory;
    }
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}

namespace unit
{

std::size_t allocationCount() noexcept
{
    return count.load(std::memory_order_relaxed);
}

} // namespace unit
