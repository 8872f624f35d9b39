// The texts of many variants, laid side by side.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <string_view>

#include "kexa/variant.h"

namespace kexa_3_3
{

// Makes wide-text variants whose blocks lie in large regions of memory instead of one allocation
// each. A region is freed when neither this object nor a variant has a share of it, so variants may
// outlive the object, and are then copied and destroyed on any thread.
//
// This object takes all shares of a region that it will ever need when it makes the region: to hand
// one to a variant, and to take it back, is plain arithmetic on a number of its own.
class SharedTexts
{
public:
    // firstRegion: how many bytes to take from the heap when the first text is added. Later regions
    // grow up to a limit.
    explicit SharedTexts(std::size_t firstRegion = 1024) noexcept : m_nextSize(firstRegion) {}
    ~SharedTexts();
    SharedTexts(const SharedTexts&) = delete;
    SharedTexts& operator=(const SharedTexts&) = delete;

    // A variant with a copy of the text, zero characters included. Throws std::bad_alloc.
    [[nodiscard]] vexkit2::variant_t add(std::wstring_view text)
    {
        // What does not fit into a number of bytes does not fit into any memory.
        if (text.size() > m_left / sizeof(wchar_t) || sizeOf(text.size()) > m_left)
        {
            makeRoom(text);
        }
        return place(text);
    }

    // Whether the block of a variant was made here.
    [[nodiscard]] bool made(const vexkit2::variant_t& text) const noexcept
    {
        const vexkit2::detail::shared_memory_t* const memory = text.memory();
        return memory != nullptr && memory->owner.load(std::memory_order_relaxed) == this;
    }

    // Takes the share of a variant back from one whose block was made here. Answers its data word,
    // which stays valid as long as the maker lives.
    static std::uint64_t takeBack(vexkit2::variant_t& text) noexcept
    {
        const std::uint64_t word = text.detach();
        const void* data = nullptr;
        std::memcpy(&data, &word, sizeof(data));
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast): it makes nothing else.
        ++static_cast<Region*>(vexkit2::detail::header_of(data)->memory)->held;
        return word;
    }

    // Makes a variant null that has no block, or one that was made here, whose share it takes back.
    // Answers false for any other, which stays as it is.
    // NOLINTNEXTLINE(readability-make-member-function-const): it changes the shares that are held.
    [[nodiscard]] bool reclaim(vexkit2::variant_t& value) noexcept
    {
        if (value.memory() == nullptr)
        {
            static_cast<void>(value.detach());
            return true;
        }
        if (made(value))
        {
            static_cast<void>(takeBack(value));
            return true;
        }
        return false;
    }

    // Gives a share to a variant that has none, where its block was made here. Answers whether it
    // was.
    // NOLINTNEXTLINE(readability-make-member-function-const): it changes the shares that are held.
    [[nodiscard]] bool lend(const vexkit2::variant_t& text) noexcept
    {
        if (!made(text))
        {
            return false;
        }
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast): it makes nothing else.
        --static_cast<Region*>(text.memory())->held;
        return true;
    }

    // Gives a text up that was made here and that nobody shares. The room of the one made last is
    // used again.
    void discard(vexkit2::variant_t& text) noexcept
    {
        const std::uint64_t word = takeBack(text);
        std::byte* data = nullptr;
        std::memcpy(&data, &word, sizeof(data));
        const std::size_t length = vexkit2::detail::block_length(data) / sizeof(wchar_t) - 1;
        const std::size_t size = sizeOf(length);
        std::byte* const begin = data - sizeof(vexkit2::detail::block_header_t);
        if (begin + size == m_free)
        {
            m_free = begin;
            m_left += size;
        }
    }

private:
    struct Region : vexkit2::detail::shared_memory_t
    {
        Region(const void* maker, Region* before) noexcept
            : shared_memory_t(std::numeric_limits<std::size_t>::max() / 2, maker), held(count),
              previous(before)
        {
        }
        std::size_t held; // of its shares by the maker
        Region* previous;
    };

    // The bytes that a text of some characters takes, up to where the next may begin.
    [[nodiscard]] static constexpr std::size_t sizeOf(std::size_t length) noexcept
    {
        constexpr std::size_t step = alignof(vexkit2::detail::block_header_t);
        const std::size_t size =
            sizeof(vexkit2::detail::block_header_t) + (length + 1) * sizeof(wchar_t);
        return (size + step - 1) / step * step;
    }

    void makeRoom(std::wstring_view text);

    [[nodiscard]] vexkit2::variant_t place(std::wstring_view text) noexcept
    {
        using vexkit2::detail::block_header_t;
        const std::size_t length = text.size() * sizeof(wchar_t);
        const std::size_t size = sizeOf(text.size());
        auto* const header = new (m_free) block_header_t(m_newest, length + sizeof(wchar_t));
        auto* const copy = static_cast<wchar_t*>(static_cast<void*>(header + 1));
        if (length != 0)
        {
            std::memcpy(copy, text.data(), length);
        }
        copy[text.size()] = L'\0';
        m_free += size;
        m_left -= size;
        --m_newest->held;
        std::uint64_t word = 0;
        std::memcpy(&word, &copy, sizeof(copy));
        return vexkit2::variant_t::attach(vexkit2::kind_wide_text, word);
    }

    Region* m_newest = nullptr;
    std::byte* m_free = nullptr; // in the newest region
    std::size_t m_left = 0;
    std::size_t m_nextSize;
};

} // namespace kexa_3_3
