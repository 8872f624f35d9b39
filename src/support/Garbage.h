// A pool of texts that live as long as the object that owns the pool.
#pragma once

#include <cstddef>
#include <set>
#include <string_view>

#include "support/Arena.h"

namespace kexa_3_3
{

// Hands out texts whose addresses never change until the pool is destroyed. A pool only grows.
// Every operation that stores throws std::bad_alloc where there is no memory and changes nothing
// then.
class Garbage final
{
public:
    // firstBlock: how many bytes to take from the heap the first time a text is stored.
    explicit Garbage(std::size_t firstBlock);
    ~Garbage() = default;
    Garbage(const Garbage&) = delete;
    Garbage& operator=(const Garbage&) = delete;

    // The pool's copy of the text, one for each distinct text; null gives an empty text that is not
    // stored.
    virtual const wchar_t* intern(const wchar_t* text);

    // As intern. The text ends at its first zero character, as it does for who reads it.
    std::wstring_view internText(std::wstring_view text);

    // A copy of the text, terminated by a zero, not shared with equal texts.
    std::wstring_view keep(std::wstring_view text);

    // Memory that lives as long as the pool. What is allocated from it is never given back.
    Arena& memory() noexcept { return m_memory; }

private:
    Arena m_memory;
    std::pmr::set<std::wstring_view> m_interned;
    std::wstring_view m_last; // interned last: the events of one argument ask for one name
};

} // namespace kexa_3_3
