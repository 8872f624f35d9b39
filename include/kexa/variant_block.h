// The shared, reference-counted blocks behind variant_t. Nothing here is for a host's own use
// except polymorphic_t.
#ifndef KEXA_VARIANT_BLOCK_H
#define KEXA_VARIANT_BLOCK_H

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

#include "kexa/assertion.h"

namespace vexkit2
{

// The base of objects that a variant can hold.
class polymorphic_t
{
public:
    polymorphic_t() = default;
    polymorphic_t(const polymorphic_t&) = default;
    polymorphic_t& operator=(const polymorphic_t&) = default;
    virtual ~polymorphic_t() = default;
};

namespace detail
{

using reference_count_t = std::atomic<std::size_t>;

// A sharer may be added without ordering: whoever copies holds a share already.
inline void sync_inc(reference_count_t& count) noexcept
{
    count.fetch_add(1, std::memory_order_relaxed);
}

// Answers whether that was the last share. Release and acquire order every use of the block before
// its destruction. A sole owner (nobody else can add a share) needs no read-modify-write.
inline bool sync_dec(reference_count_t& count) noexcept
{
    return count.load(std::memory_order_acquire) == 1 ||
           count.fetch_sub(1, std::memory_order_acq_rel) == 1;
}

// Stands at the front of memory that blocks lie in: one block, or many that are freed together.
struct shared_memory_t
{
    reference_count_t count; // of the shares in all its blocks

    // Who makes blocks in it; null where it holds a single one, and once its maker is gone. The
    // maker may go while another thread asks whether it is one itself.
    std::atomic<const void*> owner;

    explicit shared_memory_t(std::size_t shares, const void* maker = nullptr) noexcept
        : count(shares), owner(maker)
    {
    }
};

// Stands ahead of the data in a block.
struct block_header_t
{
    block_header_t(shared_memory_t* holder, std::size_t data_length) noexcept
        : memory(holder), length(data_length)
    {
    }

    shared_memory_t* memory;
    std::size_t length; // of the data, in bytes
};

// Of the data of an object's block: a pointer to the object.
inline constexpr std::size_t object_length = sizeof(void*);

inline block_header_t* header_of(void* data) noexcept
{
    return static_cast<block_header_t*>(data) - 1;
}
inline const block_header_t* header_of(const void* data) noexcept
{
    return static_cast<const block_header_t*>(data) - 1;
}

// A block with room for `length` bytes followed by a zero wide character, so that a text in it ends
// whatever length it was given. Answers its data.
inline void* allocate_block(std::size_t length)
{
    constexpr std::size_t extra =
        sizeof(shared_memory_t) + sizeof(block_header_t) + 2 * sizeof(wchar_t);
    if (length > std::numeric_limits<std::size_t>::max() - extra)
    {
#if defined(__cpp_exceptions) || defined(_CPPUNWIND)
        throw std::bad_alloc();
#else
        std::abort();
#endif
    }
    auto* const memory = new (::operator new(length + extra)) shared_memory_t(1);
    auto* const header = new (memory + 1) block_header_t(memory, length);
    void* const data = header + 1;
    std::memset(static_cast<char*>(data) + length, 0, 2 * sizeof(wchar_t));
    return data;
}

// A block with a copy of `length` bytes and a terminating zero of `terminator` bytes (0 for none).
inline void* make_block(const void* bytes, std::size_t length, std::size_t terminator)
{
    void* const data = allocate_block(length);
    header_of(data)->length = length + terminator;
    if (length != 0)
    {
        std::memcpy(data, bytes, length);
    }
    return data;
}

inline std::size_t block_length(const void* data) noexcept
{
    return header_of(data)->length;
}

inline void share(void* data)
{
    block_header_t* const h = data == nullptr ? nullptr : header_of(data);
    if (h == nullptr)
    {
        kexa_3_3::raiseAssertion("h != NULL", __FILE__, __LINE__, __func__);
    }
    sync_inc(h->memory->count);
}

inline void release(void* data, bool holds_object) noexcept
{
    shared_memory_t* const memory = header_of(data)->memory;
    if (!sync_dec(memory->count))
    {
        return;
    }
    if (holds_object)
    {
        polymorphic_t* object = nullptr;
        std::memcpy(&object, data, object_length);
        std::memset(data, 0, object_length);
        delete object;
    }
    memory->~shared_memory_t();
    ::operator delete(memory);
}

} // namespace detail

} // namespace vexkit2

#endif
