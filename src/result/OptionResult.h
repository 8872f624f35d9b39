// What a parse stores of one option.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "kexa/value.h"
#include "kexa/variant.h"

namespace kexa_3_3
{

// One value given for an option.
struct ValueEntry
{
    std::wstring_view text; // as written, or of the final value where the check changed it
    vexkit2::variant_t value;
    std::int32_t position = no_position;
};

// One occurrence of an option, or its default, on the way to the result.
struct OptionResult
{
    std::vector<std::int32_t> positions; // in the order stored
    std::vector<ValueEntry> values;      // in the order stored
    std::wstring_view defaultText;       // empty: no default
    vexkit2::variant_t defaultValue;
    std::uint32_t defaultPosition = 0;
};

} // namespace kexa_3_3
