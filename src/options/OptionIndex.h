// Finds options by name and by the beginning of a name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "support/memory/NameTable.h"
#include "support/text/HashedText.h"

namespace kexa_3_3
{

class Garbage;

// The prefix under which a boolean option is switched off.
inline constexpr std::wstring_view negation = L"no-";

// Stands beside the table of options, which are numbered by their place there. The candidates for a
// typed name are the names of all options and, of boolean ones, also "no-" before a name. Table
// order is the order of options, in an option that of its names, and a name before its negation.
//
// A lookup takes time that grows with the logarithm of the number of names. Names may be added at
// any time; the first search for a beginning afterwards sorts the new ones in.
class OptionIndex
{
public:
    // pool: keeps the texts and the tables; outlives the index. Throws std::bad_alloc.
    explicit OptionIndex(Garbage& pool);
    ~OptionIndex() = default;
    OptionIndex(const OptionIndex&) = delete;
    OptionIndex& operator=(const OptionIndex&) = delete;

    // A number that no other index in this process has.
    [[nodiscard]] std::uint64_t identity() const noexcept { return m_identity; }

    // A name whose text, and that of its negation, lie in the pool.
    struct NewName
    {
        HashedText name;
        HashedText negated; // of a boolean option; otherwise empty
    };

    // Copies a name into the pool. Throws std::bad_alloc.
    [[nodiscard]] NewName prepare(const HashedText& name, bool boolean);

    // Makes room for `names` further names. Throws std::bad_alloc, changing nothing.
    void reserveMore(std::size_t names);

    // Adds a name of an option, behind those that the option has already. Precondition:
    // reserveMore() made room.
    void add(const NewName& name, std::size_t option) noexcept;

    // The first option, in table order, that has exactly this name.
    [[nodiscard]] std::optional<std::size_t> findNamed(const HashedText& name) const noexcept;

    // The first option, in table order, of which the text is a name or the negation of one.
    [[nodiscard]] std::optional<std::size_t> findCandidate(const HashedText& text) const noexcept;

    // The candidates that begin with a text.
    struct PrefixMatches
    {
        std::size_t count = 0;
        std::size_t option = 0;      // where count is 1
        std::wstring_view candidate; // where count is 1; lies in the pool
    };
    [[nodiscard]] PrefixMatches matchPrefix(std::wstring_view beginning) const noexcept;

    // The texts of these candidates, in table order.
    [[nodiscard]] std::vector<std::wstring_view> listPrefix(std::wstring_view beginning) const;

    // Notes that an option became positional, which it stays.
    void notePositional(std::size_t option) noexcept;

    // The first positional option in table order.
    [[nodiscard]] std::optional<std::size_t> firstPositional() const noexcept
    {
        return m_firstPositional;
    }

private:
    static constexpr std::uint32_t no_option = 0xFFFFFFFF; // larger than any number

    // A text that one option or several are found by.
    struct KnownText
    {
        HashedText name;
        std::uint32_t named = no_option;     // the first option with this name
        std::uint32_t candidate = no_option; // the first one that the text is a candidate of
    };

    struct Candidate
    {
        std::wstring_view text;
        std::uint32_t option;
        std::uint32_t number; // in the order of adding
    };

    using Candidates = std::pmr::vector<Candidate>;

    void addCandidate(const HashedText& text, std::uint32_t option, bool isName) noexcept;
    void sortCandidates() const noexcept;
    [[nodiscard]] std::pair<Candidates::const_iterator, Candidates::const_iterator>
    prefixRange(std::wstring_view beginning) const noexcept;

    Garbage& m_pool;
    std::uint64_t m_identity;
    NameTable<KnownText> m_texts;
    mutable Candidates m_candidates;           // each one, also where several have one text
    mutable std::size_t m_sortedCandidates = 0; // that many at the front are sorted by text
    std::optional<std::size_t> m_firstPositional;
};

} // namespace kexa_3_3
