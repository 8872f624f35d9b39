#include "EditDistance.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "../Inline.h"
#include "CodePoints.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Removes what both texts begin with and what both end with: no edit is cheaper for it.
KEXA_COMMAND_LOCAL void removeCommonEnds(std::u32string_view& first, std::u32string_view& second)
{
    while (!first.empty() && !second.empty() && first.front() == second.front())
    {
        first.remove_prefix(1);
        second.remove_prefix(1);
    }
    while (!first.empty() && !second.empty() && first.back() == second.back())
    {
        first.remove_suffix(1);
        second.remove_suffix(1);
    }
}

KEXA_COMMAND_INLINE std::size_t editDistance(std::string_view first, std::string_view second,
                                             std::size_t limit)
{
    const std::u32string firstCodePoints = codePointsOf(first);
    const std::u32string secondCodePoints = codePointsOf(second);
    std::u32string_view rows = firstCodePoints;
    std::u32string_view columns = secondCodePoints;
    removeCommonEnds(rows, columns);
    if (rows.size() > columns.size())
    {
        std::swap(rows, columns);
    }
    limit = std::min(limit, columns.size()); // no distance is greater than the longer text
    const std::size_t beyond = limit + 1;
    if (columns.size() - rows.size() > limit)
    {
        return beyond;
    }

    // before[j], above[j] and current[j]: the distance of the first i - 2, i - 1 and i of `rows`
    // from the first j of `columns`. Only the diagonal band of j within `limit` of i can hold
    // distances up to `limit`; the cells beside it hold `beyond`.
    std::vector<std::size_t> before(columns.size() + 1, beyond);
    std::vector<std::size_t> above(columns.size() + 1, beyond);
    std::vector<std::size_t> current(columns.size() + 1, beyond);
    for (std::size_t j = 0; j <= limit; ++j)
    {
        current[j] = j;
    }
    for (std::size_t i = 1; i <= rows.size(); ++i)
    {
        before.swap(above);
        above.swap(current);
        const std::size_t from = i > limit ? i - limit : 1;
        const std::size_t to = std::min(columns.size(), i + limit);
        current[from - 1] = from == 1 ? std::min(i, beyond) : beyond;
        std::size_t least = current[from - 1];
        for (std::size_t j = from; j <= to; ++j)
        {
            const bool same = rows[i - 1] == columns[j - 1];
            std::size_t distance =
                std::min({above[j] + 1, current[j - 1] + 1, above[j - 1] + (same ? 0 : 1), beyond});
            if (i > 1 && j > 1 && rows[i - 1] == columns[j - 2] && rows[i - 2] == columns[j - 1])
            {
                distance = std::min(distance, before[j - 2] + 1);
            }
            current[j] = distance;
            least = std::min(least, distance);
        }
        if (to < columns.size())
        {
            current[to + 1] = beyond;
        }
        if (least > limit)
        {
            return beyond;
        }
    }
    return current[columns.size()];
}

} // namespace detail
} // namespace v1
} // namespace kexa
