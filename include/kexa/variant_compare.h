// Equality and order of variants. Included by kexa/variant.h.
//
// Equality: integers by value whatever their width and sign; an integer and a floating number as
// doubles; texts by content, narrow never equal to wide; blobs by their bytes; objects by identity.
//
// Order: null, boolean, numbers (NaN last), narrow text, wide text, blob, object; inside a class by
// value. It compares an integer with a double exactly, and so agrees with equality wherever a
// double holds the integer exactly.
#ifndef KEXA_VARIANT_COMPARE_H
#define KEXA_VARIANT_COMPARE_H

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <cwchar>
#include <functional>

#include "kexa/variant.h"

namespace vexkit2
{

namespace detail
{

enum class rank_t
{
    null,
    boolean,
    number,
    narrow_text,
    wide_text,
    blob,
    object
};

inline rank_t rank_of(s32_t kind) noexcept
{
    switch (kind)
    {
    case kind_boolean:
        return rank_t::boolean;
    case kind_s32:
    case kind_u32:
    case kind_s64:
    case kind_u64:
    case kind_float:
    case kind_double:
        return rank_t::number;
    case kind_narrow_text:
    case kind_narrow_reference:
        return rank_t::narrow_text;
    case kind_wide_text:
    case kind_wide_reference:
        return rank_t::wide_text;
    case kind_blob:
        return rank_t::blob;
    case kind_object:
        return rank_t::object;
    default: // kind_null, and what no operation makes: equality refuses that
        return rank_t::null;
    }
}

// 0 means equal, as with std::strcmp.
inline int string_compare(const char* left, const char* right) noexcept
{
    return std::strcmp(left, right);
}
inline int string_compare(const wchar_t* left, const wchar_t* right) noexcept
{
    return std::wcscmp(left, right);
}

inline int compare_blobs(const void* left, std::size_t left_length, const void* right,
                         std::size_t right_length) noexcept
{
    const int order = std::memcmp(left, right, std::min(left_length, right_length));
    if (order != 0 || left_length == right_length)
    {
        return order;
    }
    return left_length < right_length ? -1 : 1;
}

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

} // namespace detail

inline bool operator==(const variant_t& left, const variant_t& right)
{
    using detail::rank_t;
    const rank_t rank = detail::rank_of(left.m_type);
    if (rank != detail::rank_of(right.m_type))
    {
        return false;
    }
    switch (rank)
    {
    case rank_t::boolean:
        return left.m_value.m_bool == right.m_value.m_bool;
    case rank_t::number:
        if (left.is_integer() && right.is_integer())
        {
            return left.is_negative() == right.is_negative() &&
                   left.m_value.m_u64 == right.m_value.m_u64;
        }
        return !(left.as_double() < right.as_double()) && left.as_double() <= right.as_double();
    case rank_t::narrow_text:
        return detail::string_compare(static_cast<const char*>(left.data()),
                                      static_cast<const char*>(right.data())) == 0;
    case rank_t::wide_text:
        return detail::string_compare(static_cast<const wchar_t*>(left.data()),
                                      static_cast<const wchar_t*>(right.data())) == 0;
    case rank_t::blob:
        return detail::compare_blobs(left.data(), left.byte_length(), right.data(),
                                     right.byte_length()) == 0;
    case rank_t::object:
        return std::memcmp(left.data(), right.data(), detail::object_length) == 0;
    case rank_t::null:
        break;
    }
    if (!(left.m_type == kind_null && right.m_type == kind_null))
    {
        kexa_3_3::raiseAssertion("m_type == vtNull && var.m_type == vtNull", __FILE__, __LINE__,
                                 __func__);
    }
    return true;
}

inline bool operator!=(const variant_t& left, const variant_t& right)
{
    return !(left == right);
}

namespace detail
{

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

inline bool operator<(const variant_t& left, const variant_t& right)
{
    using detail::rank_t;
    const rank_t rank = detail::rank_of(left.m_type);
    const rank_t other_rank = detail::rank_of(right.m_type);
    if (rank != other_rank)
    {
        return rank < other_rank;
    }
    const auto number_of = [](const variant_t& variant)
    {
        detail::number_t number = {variant.is_integer(), false, 0, 0};
        if (!number.integer)
        {
            number.number = variant.as_double();
            return number;
        }
        number.negative = variant.is_negative();
        number.magnitude =
            number.negative ? u64_t{0} - variant.m_value.m_u64 : variant.m_value.m_u64;
        return number;
    };
    switch (rank)
    {
    case rank_t::boolean:
        return !left.m_value.m_bool && right.m_value.m_bool;
    case rank_t::number:
        return detail::less_number(number_of(left), number_of(right));
    case rank_t::narrow_text:
        return detail::string_compare(static_cast<const char*>(left.data()),
                                      static_cast<const char*>(right.data())) < 0;
    case rank_t::wide_text:
        return detail::string_compare(static_cast<const wchar_t*>(left.data()),
                                      static_cast<const wchar_t*>(right.data())) < 0;
    case rank_t::blob:
        return detail::compare_blobs(left.data(), left.byte_length(), right.data(),
                                     right.byte_length()) < 0;
    case rank_t::object:
    {
        polymorphic_t* left_object = nullptr;
        polymorphic_t* right_object = nullptr;
        std::memcpy(&left_object, left.data(), detail::object_length);
        std::memcpy(&right_object, right.data(), detail::object_length);
        return std::less<polymorphic_t*>()(left_object, right_object);
    }
    case rank_t::null:
        break;
    }
    return false;
}

} // namespace vexkit2

#endif
