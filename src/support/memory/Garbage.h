// A pool of texts that live as long as the object that owns the pool.
#pragma once

#include <cstddef>
#include <memory_resource>
#include <set>
#include <span>
#include <string_view>

#include "support/memory/Arena.h"

namespace kexa_3_3
{

// Returns texts whose addresses never change until the pool is destroyed. A pool only grows. Every
// operation that stores throws std::bad_alloc when there is no memory, and changes nothing then.
class Garbage final
{
public:
    // first: memory for texts as long as they fit; later ones are stored on the heap. Outlives the
    //        pool.
    explicit Garbage(std::span<std::byte> first);
    ~Garbage() = default;
    Garbage(const Garbage&) = delete;
    Garbage& operator=(const Garbage&) = delete;

    // Returns the pool's copy of the text, one for each distinct text; for null an empty text that
    // is not stored.
    virtual const wchar_t* intern(const wchar_t* text);

    // As intern. The text ends at its first zero character, as every reader of the result sees it.
    std::wstring_view internText(std::wstring_view text);

    // Returns a null-terminated copy of the text, which equal texts do not share.
    std::wstring_view keep(std::wstring_view text)
    {
        wchar_t* const copy = roomFor(text.size());
        text.copy(copy, text.size());
        return {copy, text.size()};
    }

    // As keep, of two texts one behind the other.
    std::wstring_view keepJoined(std::wstring_view first, std::wstring_view second);

    // Memory that lives as long as the pool. What is allocated from it is never given back.
    [[nodiscard]] Arena& memory() noexcept { return m_memory; }

private:
    // Room for a text of `length` characters, with the zero behind it.
    [[nodiscard]] wchar_t* roomFor(std::size_t length)
    {
        void* const memory = m_memory.take((length + 1) * sizeof(wchar_t), alignof(wchar_t));
        auto* const room = static_cast<wchar_t*>(memory);
        room[length] = L'\0';
        return room;
    }

    Arena m_memory;
    std::pmr::set<std::wstring_view> m_interned;
};

} // namespace kexa_3_3
