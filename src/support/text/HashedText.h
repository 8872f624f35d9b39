// Texts that carry their hash.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kexa_3_3
{

// FNV-1a over wide characters (G. Fowler, L. C. Noll, K.-P. Vo; the 64-bit offset basis and prime),
// the upper half folded into the lower one, which tables use. Only texts that a host declares are
// stored in tables, so the hash need not withstand an enemy who chooses what is stored.
[[nodiscard]] constexpr std::uint32_t hashOf(std::wstring_view text) noexcept
{
    constexpr std::uint64_t offset_basis = 0xCBF29CE484222325;
    constexpr std::uint64_t prime = 0x00000100000001B3;
    std::uint64_t state = offset_basis;
    for (const wchar_t character : text)
    {
        state = (state ^ static_cast<std::uint32_t>(character)) * prime;
    }
    return static_cast<std::uint32_t>(state ^ (state >> 32));
}

// A view of a text that is looked up again and again. The text outlives it.
class HashedText
{
public:
    HashedText() noexcept : HashedText(std::wstring_view(L"")) {}
    explicit HashedText(std::wstring_view text) noexcept : m_text(text), m_hash(hashOf(text)) {}

    // copy: an equal text at another place.
    [[nodiscard]] HashedText movedTo(std::wstring_view copy) const noexcept
    {
        HashedText moved(*this);
        moved.m_text = copy;
        return moved;
    }

    [[nodiscard]] std::wstring_view text() const noexcept { return m_text; }
    [[nodiscard]] std::uint32_t hash() const noexcept { return m_hash; }

    friend bool operator==(const HashedText& left, const HashedText& right) noexcept
    {
        return left.m_hash == right.m_hash && left.m_text == right.m_text;
    }

private:
    std::wstring_view m_text;
    std::uint32_t m_hash;
};

} // namespace kexa_3_3
