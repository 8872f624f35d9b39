// What a stored option holds, laid out as lists.
#pragma once

#include <cstdint>
#include <vector>

#include "result/StoredOption.h"

namespace unit
{

inline std::vector<std::int32_t> positionsOf(const kexa_3_3::StoredOption& option)
{
    std::vector<std::int32_t> positions;
    kexa_3_3::Occurrences::Place place = 0;
    while (const kexa_3_3::Occurrence* const occurrence = option.occurrences.nextPosition(place))
    {
        positions.push_back(occurrence->position);
    }
    return positions;
}

inline std::vector<kexa_3_3::Occurrence> valuesOf(const kexa_3_3::StoredOption& option)
{
    std::vector<kexa_3_3::Occurrence> values;
    kexa_3_3::Occurrences::Place place = 0;
    while (const kexa_3_3::Occurrence* const occurrence = option.occurrences.nextValue(place))
    {
        values.push_back(*occurrence);
    }
    return values;
}

} // namespace unit
