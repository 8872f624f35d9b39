// Finds the option that a typed name stands for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "options/OptionIndex.h"
#include "support/HashedText.h"

namespace kexa_3_3
{

// The candidates are the names of all options and, for boolean options, each name with "no-" in
// front.
struct BestMatch
{
    // How many candidates match. 0: the name is unknown; more than 1: it is ambiguous.
    std::size_t count = 0;

    // Set when count is 1: the option's index, and the candidate as `prefix` followed by `name`.
    std::int64_t option = OptionIndex::none;
    std::wstring_view name;
    bool negated = false;

    // Empty or "no-".
    [[nodiscard]] std::wstring_view prefix() const noexcept
    {
        return negated ? negation : std::wstring_view();
    }
    [[nodiscard]] bool beginsWithNegation() const noexcept
    {
        return negated || kexa_3_3::beginsWithNegation(name);
    }
};

// Returns the candidate that equals the typed name, even when it also begins others; otherwise the
// candidates that begin with the typed name. Case counts.
//
// typedName: must live as long as the result is used.
[[nodiscard]] BestMatch findBestMatch(const OptionIndex& index, const HashedText& typedName);

// Returns all candidates that begin with the name, in table order, each in quotes, separated by
// ", ".
[[nodiscard]] std::wstring listCandidates(const OptionIndex& index, std::wstring_view typedName);

} // namespace kexa_3_3
