// What a parse result holds of one option.
#pragma once

#include <cstdint>
#include <type_traits>

#include "result/Occurrences.h"

namespace kexa_3_3
{

// The record that the names of an option share: its occurrences, and what to report when it never
// occurred. Nothing of it needs to be destroyed: what it points at belongs to the result.
struct StoredOption
{
    StoredOption() noexcept = default;

    // With a first occurrence, which `make` answers.
    template <class Make>
    explicit StoredOption(Make make) : occurrences(make)
    {
    }

    std::uint32_t names = 0; // how many find it

    // Where to look for its names: the number of the first that was bound to it. Those that it was
    // made for follow each other from there, unless some were known before, joined later or left.
    std::uint32_t firstName = 0;
    Occurrences occurrences;
    const Occurrence* byDefault = nullptr; // null: no default, or one whose text is empty
};

static_assert(std::is_trivially_destructible_v<StoredOption>);

} // namespace kexa_3_3
