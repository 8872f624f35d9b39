#include "AllocationCount.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace
{

AllocationCount count;

void* allocate(std::size_t size)
{
    ++count.blocks;
    count.bytes += size;
    if (void* const memory = std::malloc(size == 0 ? 1 : size))
    {
        return memory;
    }
    throw std::bad_alloc();
}

// A block with a larger alignment: the start of what malloc gave stands ahead of it.
void* allocateAligned(std::size_t size, std::align_val_t alignment)
{
    const auto boundary = static_cast<std::size_t>(alignment);
    char* const memory = static_cast<char*>(allocate(size + boundary + sizeof(void*)));
    const auto address = reinterpret_cast<std::uintptr_t>(memory) + sizeof(void*);
    char* const aligned = memory + sizeof(void*) + (boundary - address % boundary) % boundary;
    reinterpret_cast<void**>(aligned)[-1] = memory;
    return aligned;
}

void freeAligned(void* memory) noexcept
{
    std::free(memory == nullptr ? nullptr : static_cast<void**>(memory)[-1]);
}

} // namespace

AllocationCount allocationsSoFar()
{
    return count;
}

// The array forms of the standard library come down to these. Its nothrow form does too, but not
// that of the address sanitizer.
void* operator new(std::size_t size)
{
    return allocate(size);
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return allocate(size);
}
void* operator new(std::size_t size, std::align_val_t alignment)
{
    return allocateAligned(size, alignment);
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::align_val_t /*alignment*/) noexcept
{
    freeAligned(memory);
}
void operator delete(void* memory, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept
{
    freeAligned(memory);
}
