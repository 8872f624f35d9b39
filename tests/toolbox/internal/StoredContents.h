// What a stored option holds, laid out as lists.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "kexa/variant.h"

#include "result/StoredOption.h"

namespace unit
{

struct StoredValue
{
    const wchar_t* text;
    vexkit2::variant_t value;
    std::int32_t position;
};

inline StoredValue storedValueOf(const kexa_3_3::Occurrence& occurrence)
{
    StoredValue stored = {occurrence.text, {}, occurrence.position};
    kexa_3_3::SharedTexts none;
    occurrence.copyValueTo(stored.value, none);
    return stored;
}

inline std::vector<std::int32_t> positionsOf(const kexa_3_3::StoredOption& option)
{
    std::vector<std::int32_t> positions;
    kexa_3_3::Occurrences::Place place = option.occurrences.begin();
    while (const kexa_3_3::Occurrence* const occurrence = option.occurrences.nextPosition(place))
    {
        positions.push_back(occurrence->position);
    }
    return positions;
}

inline std::vector<StoredValue> valuesOf(const kexa_3_3::StoredOption& option)
{
    std::vector<StoredValue> values;
    kexa_3_3::Occurrences::Place place = option.occurrences.begin();
    while (const kexa_3_3::Occurrence* const occurrence = option.occurrences.nextValue(place))
    {
        values.push_back(storedValueOf(*occurrence));
    }
    return values;
}

} // namespace unit
