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
        return m_texts.empty() ? absent : m_slots.numberAt(m_slots.slotOf(text, textOf()));
    }

    // The number of the text, which is inserted where it is new. Needs room made by `reserve`.
    std::uint32_t insert(const HashedText& text) noexcept
    {
        const std::size_t slot = m_slots.slotOf(text, textOf());
        if (m_slots.numberAt(slot) == absent)
        {
            m_slots.put(slot, static_cast<std::uint32_t>(m_texts.size()), text);
            m_texts.push_back(text);
        }
        return m_slots.numberAt(slot);
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
    void grow(std::size_t needed);

    std::size_t m_room = 0;
    std::pmr::vector<HashedText> m_texts;
    TextSlots m_slots;
};

} // namespace kexa_3_3
