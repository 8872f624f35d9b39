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
    // How many candidates match. 0: unknown; 1: found; more: ambiguous.
    std::size_t count = 0;

    // Set if count is 1. The candidate is the typed name if that equals it, else a text of the
    // pool.
    std::size_t option = 0;
    std::wstring_view candidate;

    [[nodiscard]] bool beginsWithNegation() const noexcept
    {
        return candidate.starts_with(negation);
    }
};

// Returns the candidate that equals the typed name, even when it also begins others; otherwise the
// candidates that begin with the typed name. Case-sensitive.
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

// Returns all candidates that begin with the name, in table order, each in quotes, and commas
// between them.
[[nodiscard]] std::wstring listCandidates(const OptionIndex& index, std::wstring_view typedName);

} // namespace kexa_3_3
