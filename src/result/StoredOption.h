// What a parse result holds of one option.
#pragma once

#include <cstdint>
#include <string_view>

#include "kexa/value.h"
#include "kexa/variant.h"

#include "support/GrowingArray.h"
#include "support/HashedText.h"

namespace kexa_3_3
{

// One value. Many may be stored: kept small.
struct StoredValue
{
    const wchar_t* text; // terminated by a zero; lives as long as the result
    vexkit2::variant_t value;
    std::int32_t position;
};

// The record that the names of an option share: its occurrences, and what to report when it never
// occurred. Most options are given once at most.
struct StoredOption
{
    GrowingArray<HashedText, 2> names;
    GrowingArray<std::int32_t, 1> positions; // in the order stored
    GrowingArray<StoredValue, 1> values;     // in the order stored
    std::wstring_view defaultText;           // empty: no default
    vexkit2::variant_t defaultValue;
    std::uint32_t defaultPosition = 0;
};

} // namespace kexa_3_3
