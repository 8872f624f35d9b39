// Finds options by name and by the beginning of a name.
#pragma once

#include <algorithm>
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

    // Copies a name into the pool; that of a boolean option stands behind "no-" there, so that its
    // negation needs no copy. Throws std::bad_alloc.
    [[nodiscard]] HashedText keep(HashedText name, bool boolean);

    // Makes room for `names` further names. Throws std::bad_alloc, changing nothing.
    void reserveMore(std::size_t names)
    {
        constexpr std::size_t texts_of_name = 2; // with the negation
        m_texts.reserveMore(texts_of_name * names);
        if (m_repeated.capacity() - m_repeated.size() < texts_of_name * names)
        {
            m_repeated.reserve(
                std::max(2 * m_repeated.capacity(), m_repeated.size() + texts_of_name * names));
        }
    }

    // Adds a name of an option, behind those that the option has already. Preconditions: the name
    // was kept, and reserveMore() made room.
    void add(HashedText name, std::size_t option, bool boolean) noexcept;

    // The first option, in table order, that has exactly this name.
    [[nodiscard]] std::optional<std::size_t> findNamed(HashedText name) const noexcept;

    // The first option, in table order, of which the text is a name or the negation of one.
    [[nodiscard]] std::optional<std::size_t> findCandidate(HashedText text) const noexcept;

    // The candidates that begin with a text. The following throw std::bad_alloc, changing nothing.
    struct PrefixMatches
    {
        std::size_t count = 0;
        std::size_t option = 0;      // where count is 1
        std::wstring_view candidate; // where count is 1; lies in the pool
    };
    [[nodiscard]] PrefixMatches matchPrefix(std::wstring_view beginning) const;

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

    // A candidate, and where it stands in table order.
    struct Candidate
    {
        std::wstring_view text;
        std::uint32_t option;
        std::uint32_t number; // in the order of adding
    };

    // A text that is a candidate, perhaps of several options.
    struct KnownText
    {
        HashedText name;
        std::uint32_t option = no_option; // the one that it was added for first
        std::uint32_t number = 0;
        std::uint32_t firstOption = no_option; // in table order
        std::uint32_t firstNamed = no_option;  // in table order, of those that have it as a name
    };

    using Candidates = std::pmr::vector<Candidate>;

    void addCandidate(HashedText text, std::uint32_t option, bool isName) noexcept;
    void sortCandidates() const;
    [[nodiscard]] std::pair<Candidates::const_iterator, Candidates::const_iterator>
    prefixRange(std::wstring_view beginning) const;

    Garbage& m_pool;
    std::uint64_t m_identity;
    NameTable<KnownText> m_texts;
    Candidates m_repeated; // candidates whose text was known when they were added
    std::uint32_t m_candidateCount = 0;
    mutable Candidates m_sorted;              // by text; made when it is first needed
    mutable std::size_t m_sortedTexts = 0;    // that many of m_texts are in it
    mutable std::size_t m_sortedRepeated = 0; // that many of m_repeated are in it
    std::optional<std::size_t> m_firstPositional;
};

} // namespace kexa_3_3
