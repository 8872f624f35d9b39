// Finds options by name and by the beginning of a name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "support/TextTable.h"

namespace kexa_3_3
{

// The prefix under which a boolean option is switched off.
inline constexpr std::wstring_view negation = L"no-";

// Stands beside the table of options and knows their names. Options are told by their index in the
// table. An option answers to its names, a boolean one also to "no-" and a name. Table order is the
// order of options, in them the order of names, a name before its negation.
//
// The cost of a search grows with the logarithm of the number of names. Names may be added at any
// time; the first search for a beginning afterwards sorts the new ones in.
class OptionIndex
{
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

    // Makes room for `count` names more, which adding them needs. Throws std::bad_alloc.
    void reserve(std::size_t count)
    {
        if (m_names.size() + count > m_room)
        {
            grow(count);
        }
    }

    // Adds a name. name: kept alive and unchanged by the caller. option: its index. position: the
    // name's place among those of the option.
    void add(const HashedText& name, std::size_t option, std::size_t position,
             bool boolean) noexcept;

    // The first option, in table order, with exactly this name.
    [[nodiscard]] std::int64_t findNamed(const HashedText& name) const noexcept;

    // The first option, in table order, that answers to exactly this text.
    [[nodiscard]] std::int64_t findAnswering(std::wstring_view text) const noexcept;

    // The names and negations that begin with the text.
    [[nodiscard]] PrefixMatches matchPrefix(std::wstring_view beginning) const;

    // The same written out, in table order.
    [[nodiscard]] std::vector<std::wstring> listPrefix(std::wstring_view beginning) const;

    // Notes that an option became positional, which it stays.
    void notePositional(std::size_t option) noexcept;

    // The first positional option in table order.
    [[nodiscard]] std::int64_t firstPositional() const noexcept { return m_firstPositional; }

private:
    struct Name
    {
        std::wstring_view text;
        std::uint32_t option;
        std::uint32_t position : 31;
        std::uint32_t boolean : 1;
    };

    void grow(std::size_t count);

    // Options that have one text as a name.
    struct Owners
    {
        std::int64_t first = none;
        std::int64_t firstBoolean = none;
    };

    // Names that begin with a text, as a range of a sorted list.
    struct Range
    {
        const Name* begin = nullptr;
        const Name* end = nullptr;
        [[nodiscard]] std::size_t size() const { return static_cast<std::size_t>(end - begin); }
    };
    [[nodiscard]] static Range rangeOf(const std::vector<Name>& sorted,
                                       std::wstring_view beginning);

    // The names that begin with the text, and the boolean ones whose negation does.
    [[nodiscard]] Range plainRange(std::wstring_view beginning) const;
    [[nodiscard]] Range negatedRange(std::wstring_view beginning) const;

    // Sorts in the names added since the last search.
    void sortNames() const;

    std::size_t m_room = 0; // for names, in all of the following
    TextTable m_texts;
    std::vector<Owners> m_owners;               // by the numbers of m_texts
    std::vector<Name> m_names;                  // as they were added
    mutable std::vector<Name> m_sorted;         // the first of them, by text
    mutable std::vector<Name> m_sortedBooleans; // those of m_sorted that belong to boolean options
    std::int64_t m_firstPositional = none;
};

} // namespace kexa_3_3
