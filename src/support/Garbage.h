// A pool of texts that live as long as the object that owns the pool.
#pragma once

#include <cstddef>
#include <cstring>
#include <forward_list>
#include <set>
#include <span>
#include <string>
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

    // first: where texts are stored as long as they fit. Lives longer than the pool.
    explicit Garbage(std::span<std::byte> first);
    ~Garbage() = default;
    Garbage(const Garbage&) = delete;
    Garbage& operator=(const Garbage&) = delete;

    // The pool's copy of the text, one for each distinct text; null gives an empty text that is not
    // stored.
    virtual const wchar_t* intern(const wchar_t* text);

    // As intern. The text ends at its first zero character, as it does for who reads it.
    std::wstring_view internText(std::wstring_view text);

    // As internText, of a text that is not needed any more. A long one is taken over, not copied.
    std::wstring_view adoptText(std::wstring&& text);

    // A copy of the text, terminated by a zero, not shared with equal texts.
    std::wstring_view keep(std::wstring_view text) { return copyInto(roomFor(text.size()), text); }

    // Room for a text of `length` characters and its terminating zero.
    [[nodiscard]] wchar_t* roomFor(std::size_t length)
    {
        const std::size_t size = (length + 1) * sizeof(wchar_t);
        return static_cast<wchar_t*>(m_memory.take(size, alignof(wchar_t)));
    }

    // The text, copied and terminated by a zero.
    static std::wstring_view copyInto(wchar_t* room, std::wstring_view text) noexcept
    {
        if (!text.empty())
        {
            std::memcpy(room, text.data(), text.size() * sizeof(wchar_t));
        }
        room[text.size()] = L'\0';
        return {room, text.size()};
    }

    // Memory that lives as long as the pool. What is allocated from it is never given back.
    Arena& memory() noexcept { return m_memory; }

private:
    Arena m_memory;
    std::forward_list<std::wstring> m_taken;
    std::pmr::set<std::wstring_view> m_interned;
};

} // namespace kexa_3_3
