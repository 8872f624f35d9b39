// Finds the option that a typed name stands for.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "options/OptionIndex.h"
#include "support/text/HashedText.h"

namespace kexa_3_3
{

// The candidates are the names of all options and, for boolean options, each name with "no-" in
// front.
struct BestMatch
{
    // How many candidates match: 0 unknown, 1 found, more: ambiguous.
    std::size_t count = 0;

    // Where count is 1. The candidate's text is that of the pool or, where it was given whole, the
    // one given.
    std::size_t option = 0;
    std::wstring_view candidate;

    [[nodiscard]] bool beginsWithNegation() const noexcept
    {
        return candidate.starts_with(negation);
    }
};

// Returns the candidate that equals the typed name, even when it also begins others; otherwise the
// candidates that begin with the typed name. Case counts.
//
// typedName: outlives the result.
[[nodiscard]] inline BestMatch findBestMatch(const OptionIndex& index, HashedText typedName)
{
    if (const std::optional<std::size_t> exact = index.findCandidate(typedName))
    {
        return {1, *exact, typedName.text()};
    }
    const OptionIndex::PrefixMatches matches = index.matchPrefix(typedName.text());
    return {matches.count, matches.option, matches.candidate};
}

// All candidates that begin with the name, in table order, each in quotes, separated by ", ".
[[nodiscard]] std::wstring listCandidates(const OptionIndex& index, std::wstring_view typedName);

} // namespace kexa_3_3
