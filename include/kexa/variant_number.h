/// @file
/// The order of numbers in variants. Included by kexa/variant_compare.h.
#ifndef KEXA_VARIANT_NUMBER_H
#define KEXA_VARIANT_NUMBER_H

#include <cmath>

#include "kexa/variant_kind.h"

namespace vexkit2
{

namespace detail
{

// The order of a sign and magnitude against a double that is no NaN, without rounding.
// NOLINTNEXTLINE(misc-no-recursion): once, with the signs turned.
inline int compare_exactly(bool negative, u64_t magnitude, double number) noexcept
{
    constexpr double beyond = 18446744073709551616.0; // 2 to the 64th
    if (negative)
    {
        return -compare_exactly(false, magnitude, -number);
    }
    if (number < 0)
    {
        return 1;
    }
    if (number >= beyond)
    {
        return -1;
    }
    const double whole = std::floor(number);
    const u64_t other = static_cast<u64_t>(whole);
    if (magnitude != other)
    {
        return magnitude < other ? -1 : 1;
    }
    return number > whole ? -1 : 0;
}

// A number as the order sees it: an integer as sign and magnitude, or a double.
struct number_t
{
    bool integer;
    bool negative;
    u64_t magnitude;
    double number;
};

inline bool less_number(const number_t& left, const number_t& right) noexcept
{
    if (left.integer && right.integer)
    {
        if (left.negative != right.negative)
        {
            return left.negative;
        }
        return left.negative ? left.magnitude > right.magnitude : left.magnitude < right.magnitude;
    }
    const bool left_nan = !left.integer && std::isnan(left.number);
    const bool right_nan = !right.integer && std::isnan(right.number);
    if (left_nan || right_nan)
    {
        return !left_nan;
    }
    if (left.integer)
    {
        return compare_exactly(left.negative, left.magnitude, right.number) < 0;
    }
    if (right.integer)
    {
        return compare_exactly(right.negative, right.magnitude, left.number) > 0;
    }
    return left.number < right.number;
}

} // namespace detail

} // namespace vexkit2

#endif
