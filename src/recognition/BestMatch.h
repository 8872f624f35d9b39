// Which option a typed name stands for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "options/OptionIndex.h"
#include "support/HashedText.h"

namespace kexa_3_3
{

struct BestMatch
{
    // How many candidates match: 0 unknown, 1 found, more: ambiguous. The candidates are the names
    // of all options and, for boolean ones, "no-" before them.
    std::size_t count = 0;

    // Where count is 1: the option's index, and the matching candidate, `prefix` (empty or "no-")
    // and `name` one after the other.
    std::int64_t option = OptionIndex::none;
    std::wstring_view name;
    bool negated = false;

    [[nodiscard]] std::wstring_view prefix() const noexcept
    {
        return negated ? negation : std::wstring_view();
    }
    [[nodiscard]] bool beginsWithNegation() const noexcept
    {
        return negated || kexa_3_3::beginsWithNegation(name);
    }
};

// What a name stands for that equals no candidate.
[[nodiscard]] BestMatch matchBeginning(const OptionIndex& index, std::wstring_view typedName);

// A name that equals a candidate stands for it alone, even where it begins others; otherwise the
// candidates that begin with it match. Case counts. The texts of the answer are those given.
inline void findBestMatch(BestMatch& match, const OptionIndex& index, const HashedText& typedName)
{
    const std::int64_t exact = index.findAnswering(typedName);
    if (exact != OptionIndex::none)
    {
        // In words: where what was just written in words is read in larger pieces, the processor
        // waits.
        match.count = 1;
        match.option = exact;
        match.name = std::wstring_view(typedName.data(), typedName.size());
        match.negated = false;
    }
    else
    {
        match = matchBeginning(index, typedName);
    }
}

// All candidates that begin with the name, in table order, each in quotes, separated by ", ".
[[nodiscard]] std::wstring listCandidates(const OptionIndex& index, std::wstring_view typedName);

} // namespace kexa_3_3
