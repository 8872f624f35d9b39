// Finds texts by hash and numbers them in the order of their insertion.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <string_view>
#include <vector>

#include "support/HashedText.h"
#include "support/TextSlots.h"

namespace kexa_3_3
{

// The numbers run from 0, so what belongs to a text can be kept in vectors beside the table. Texts
// are not copied: whoever inserts them keeps them alive and unchanged.
class TextTable
{
    [[nodiscard]] auto textOf() const noexcept
    {
        return [this](std::uint32_t number) -> const HashedText&
        {
            return m_texts[number];
        };
    }

public:
    static constexpr std::uint32_t absent = TextSlots::absent;

    // memory: lives longer than the table.
    explicit TextTable(
        std::pmr::memory_resource& memory = *std::pmr::get_default_resource()) noexcept
        : m_texts(&memory), m_slots(memory)
    {
    }

    // The number of the text, or `absent`.
    [[nodiscard]] std::uint32_t find(std::wstring_view text) const noexcept
    {
        return find(HashedText(text));
    }
    [[nodiscard]] std::uint32_t find(const HashedText& text) const noexcept
    {
        return m_texts.size() > most_walked ? m_slots.numberAt(m_slots.slotOf(text, textOf()))
                                            : walk(text);
    }

    // The number of the text, which is inserted where it is new. Needs room made by `reserve`.
    std::uint32_t insert(const HashedText& text) noexcept
    {
        const std::uint32_t known = find(text);
        return known == absent ? append(text) : known;
    }
    std::uint32_t insert(std::wstring_view text) noexcept { return insert(HashedText(text)); }

    // Makes room for `count` texts more. Throws std::bad_alloc, changing nothing.
    void reserve(std::size_t count)
    {
        if (m_texts.size() + count > m_room)
        {
            grow(m_texts.size() + count);
        }
    }

    [[nodiscard]] std::size_t size() const noexcept { return m_texts.size(); }
    [[nodiscard]] const HashedText& text(std::uint32_t number) const { return m_texts[number]; }

private:
    // Slots for no more texts than these would cost more than walking over the texts does.
    static constexpr std::size_t most_walked = 8;

    void grow(std::size_t needed);
    [[nodiscard]] std::uint32_t walk(const HashedText& text) const noexcept;
    std::uint32_t append(const HashedText& text) noexcept;

    std::size_t m_room = 0;
    std::pmr::vector<HashedText> m_texts;
    TextSlots m_slots; // once there are more than most_walked
};

} // namespace kexa_3_3
