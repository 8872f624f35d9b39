// Which option a typed name stands for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "options/OptionIndex.h"

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
    std::wstring_view prefix;
    std::wstring_view name;

    [[nodiscard]] bool beginsWithNegation() const noexcept
    {
        return !prefix.empty() || kexa_3_3::beginsWithNegation(name);
    }
};

// A name that equals a candidate stands for it alone, even where it begins others; otherwise the
// candidates that begin with it match. Case counts. The texts of the answer are those given.
[[nodiscard]] BestMatch findBestMatch(const OptionIndex& index, std::wstring_view typedName);

// All candidates that begin with the name, in table order, each in quotes, separated by ", ".
[[nodiscard]] std::wstring listCandidates(const OptionIndex& index, std::wstring_view typedName);

} // namespace kexa_3_3
