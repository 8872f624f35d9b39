// Finds options by name and by the beginning of a name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

#include "support/HashedText.h"
#include "support/InlineBlock.h"
#include "support/PlainTable.h"
#include "support/TextSlots.h"

namespace kexa_3_3
{

// The prefix under which a boolean option is switched off.
inline constexpr std::wstring_view negation = L"no-";

[[nodiscard]] constexpr bool beginsWithNegation(std::wstring_view text) noexcept
{
    return text.size() >= negation.size() && text[0] == negation[0] && text[1] == negation[1] &&
           text[2] == negation[2];
}

// Stands beside the table of options and knows their names. Options are told by their index in the
// table. An option answers to its names, a boolean one also to "no-" and a name. Table order is the
// order of options, in them the order of names, a name before its negation.
//
// The cost of a search grows with the logarithm of the number of names. Names may be added at any
// time; the first search for a beginning afterwards sorts the new ones in.
class OptionIndex
{
    // Of an option, by index; this for none of them. Larger than any index.
    static constexpr std::uint32_t no_option = 0xFFFFFFFF;

    struct Name
    {
        const HashedText* text;
        std::uint32_t option;

        // The first boolean option with this text as a name, in the name that the text's slot
        // tells, which is one of the first option of all that share it. In other names just whether
        // the name's own option is boolean.
        std::uint32_t firstBoolean;

        [[nodiscard]] bool isBoolean() const noexcept { return firstBoolean == option; }
    };

    struct SortedName
    {
        std::wstring_view text;
        std::uint32_t option;
        std::uint32_t number : 31; // of m_names
        std::uint32_t boolean : 1;
    };

    [[nodiscard]] auto textOf() const noexcept
    {
        return [this](std::uint32_t number) -> const HashedText&
        {
            return *m_names[number].text;
        };
    }
    [[nodiscard]] static std::int64_t indexOf(std::uint32_t option) noexcept
    {
        return option == no_option ? none : static_cast<std::int64_t>(option);
    }

public:
    static constexpr std::int64_t none = -1;

    // What a typed beginning of a name stands for.
    struct PrefixMatches
    {
        std::size_t count = 0;

        // The match where count is 1: its option, and its text, which is a name that follows "no-"
        // where `negated` is set.
        std::int64_t option = none;
        std::wstring_view name;
        bool negated = false;
    };

    // memory: lives longer than the index.
    explicit OptionIndex(
        std::pmr::memory_resource& memory = *std::pmr::get_default_resource()) noexcept;
    ~OptionIndex() = default;
    OptionIndex(const OptionIndex&) = delete;
    OptionIndex& operator=(const OptionIndex&) = delete;

    // Tells this index from all others that this process makes.
    [[nodiscard]] std::uint64_t identity() const noexcept { return m_identity; }

    // Whether some name was added twice, of one option or of two.
    [[nodiscard]] bool sharesNames() const noexcept { return m_sharesNames; }

    // Whether `count` names more can be added.
    [[nodiscard]] bool hasRoom(std::size_t count) const noexcept { return m_names.hasRoom(count); }

    // Makes room for `count` names more, which adding them needs. Throws std::bad_alloc.
    void reserve(std::size_t count)
    {
        if (!hasRoom(count)) [[unlikely]]
        {
            grow(count);
        }
    }

    // Adds a name, behind those that the option has already. name: stays where it is, unchanged, as
    // long as the index lives. option: its index.
    void add(const HashedText& name, std::size_t option, bool boolean) noexcept
    {
        add(name, option, boolean, slotOf(name));
    }

    // Where a name is or would be. Needs room made by `reserve`, and is good until more is made.
    // Spares adding the name a second search.
    [[nodiscard]] std::size_t slotOf(const HashedText& name) const noexcept
    {
        const std::size_t home = m_slots.homeOf(name);
        return m_slots.isFree(home) ? home : slotFrom(home, name);
    }
    [[nodiscard]] bool isTaken(std::size_t slot) const noexcept { return !m_slots.isFree(slot); }
    void add(const HashedText& name, std::size_t option, bool boolean, std::size_t slot) noexcept
    {
        const auto index = static_cast<std::uint32_t>(option);
        const auto number = static_cast<std::uint32_t>(m_names.size());
        m_names.append({&name, index, boolean ? index : no_option});
        if (isTaken(slot)) [[unlikely]]
        {
            addBehind(slot, number);
        }
        else
        {
            m_slots.put(slot, number, name);
        }
    }

    // The first option, in table order, with exactly this name.
    [[nodiscard]] std::int64_t findNamed(const HashedText& name) const noexcept
    {
        const Name* const found = find(name);
        return found == nullptr ? none : indexOf(found->option);
    }

    // The first option, in table order, that answers to exactly this text.
    [[nodiscard]] std::int64_t findAnswering(const HashedText& text) const noexcept
    {
        return beginsWithNegation(text) ? findAlsoNegated(text) : findNamed(text);
    }
    [[nodiscard]] std::int64_t findAnswering(std::wstring_view text) const noexcept
    {
        return findAnswering(HashedText(text));
    }

    // The names and negations that begin with the text.
    [[nodiscard]] PrefixMatches matchPrefix(std::wstring_view beginning) const;

    // The same written out, in table order.
    [[nodiscard]] std::vector<std::wstring> listPrefix(std::wstring_view beginning) const;

    // Notes that an option of the table holds values, which the table has to destroy.
    void noteValues() noexcept { m_holdsValues = true; }
    [[nodiscard]] bool holdsValues() const noexcept { return m_holdsValues; }

    // Notes that an option became positional, which it stays.
    void notePositional(std::size_t option) noexcept;

    // The first positional option in table order.
    [[nodiscard]] std::int64_t firstPositional() const noexcept { return m_firstPositional; }

private:
    void grow(std::size_t count);
    [[nodiscard]] std::size_t slotFrom(std::size_t slot, const HashedText& name) const noexcept;
    void addBehind(std::size_t slot, std::uint32_t number) noexcept;
    [[nodiscard]] std::int64_t findAlsoNegated(const HashedText& text) const noexcept;
    [[nodiscard]] const Name* find(const HashedText& text) const noexcept
    {
        const std::uint32_t number = m_slots.numberAt(m_slots.slotOf(text, textOf()));
        return number == TextSlots::absent ? nullptr : &m_names[number];
    }

    // Names that begin with a text, as a range of a sorted list.
    struct Range
    {
        const SortedName* begin = nullptr;
        const SortedName* end = nullptr;
        [[nodiscard]] std::size_t size() const { return static_cast<std::size_t>(end - begin); }
    };
    [[nodiscard]] static Range rangeOf(const std::vector<SortedName>& sorted,
                                       std::wstring_view beginning);

    // The names that begin with the text, and the boolean ones whose negation does.
    [[nodiscard]] Range plainRange(std::wstring_view beginning) const;
    [[nodiscard]] Range negatedRange(std::wstring_view beginning) const;

    // Sorts in the names added since the last search.
    void sortNames() const;

    static constexpr std::size_t expected_names = 32; // of a program of usual size

    InlineBlock<PlainTable<Name>::bytesOf(expected_names)> m_firstNames;
    InlineBlock<TextSlots::bytesFor(2 * expected_names)> m_firstSlots; // few clusters among so many
    std::uint64_t m_identity;
    bool m_sharesNames = false;
    bool m_holdsValues = false;
    PlainTable<Name> m_names;                         // as they were added
    TextSlots m_slots;                                // of one name with each text
    mutable std::vector<SortedName> m_sorted;         // the first of m_names, by text
    mutable std::vector<SortedName> m_sortedBooleans; // those of boolean options
    std::int64_t m_firstPositional = none;
};

} // namespace kexa_3_3
