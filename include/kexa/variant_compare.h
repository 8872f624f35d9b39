/// @file
/// Equality and order of variants. Included by kexa/variant.h.
#ifndef KEXA_VARIANT_COMPARE_H
#define KEXA_VARIANT_COMPARE_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <cwchar>
#include <functional>

#include "kexa/assertion.h"
#include "kexa/variant.h"
#include "kexa/variant_block.h"
#include "kexa/variant_number.h"

namespace vexkit2
{

namespace detail
{

// The classes of kinds, in the order of variants.
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

// Compares addresses of any two objects.
inline int compare_objects(const void* left, const void* right) noexcept
{
    polymorphic_t* left_object = nullptr;
    polymorphic_t* right_object = nullptr;
    std::memcpy(&left_object, left, object_length);
    std::memcpy(&right_object, right, object_length);
    if (left_object == right_object)
    {
        return 0;
    }
    return std::less<polymorphic_t*>()(left_object, right_object) ? -1 : 1;
}

} // namespace detail

// Compares two variants of one class, which is neither null nor that of numbers. Returns 0 where
// they are equal, as std::strcmp does.
inline int variant_t::compare_content(const variant_t& left, const variant_t& right)
{
    using detail::rank_t;
    switch (detail::rank_of(left.m_type))
    {
    case rank_t::boolean:
        return static_cast<int>(left.m_value.m_bool) - static_cast<int>(right.m_value.m_bool);
    case rank_t::narrow_text:
        return std::strcmp(static_cast<const char*>(left.data()),
                           static_cast<const char*>(right.data()));
    case rank_t::wide_text:
        return std::wcscmp(static_cast<const wchar_t*>(left.data()),
                           static_cast<const wchar_t*>(right.data()));
    case rank_t::blob:
        return detail::compare_blobs(left.data(), left.byte_length(), right.data(),
                                     right.byte_length());
    default:
        return detail::compare_objects(left.data(), right.data());
    }
}

inline detail::number_t variant_t::as_number() const noexcept
{
    if (!is_integer())
    {
        return {false, false, 0, as_double()};
    }
    const bool negative = is_negative();
    return {true, negative, negative ? u64_t{0} - m_value.m_u64 : m_value.m_u64, 0};
}

/// Returns whether two variants are equal: integers by value whatever their width and sign; an
/// integer and a floating number as doubles; texts by content, narrow never equal to wide; blobs by
/// their bytes; objects by identity. NaN is equal to nothing.
///
/// @throws AssertionFailure  where a variant holds what no operation makes
inline bool operator==(const variant_t& left, const variant_t& right)
{
    using detail::rank_t;
    const rank_t rank = detail::rank_of(left.m_type);
    if (rank != detail::rank_of(right.m_type))
    {
        return false;
    }
    if (rank == rank_t::null)
    {
        if (!(left.m_type == kind_null && right.m_type == kind_null))
        {
            kexa_3_3::raiseAssertion("m_type == vtNull && var.m_type == vtNull", __FILE__, __LINE__,
                                     __func__);
        }
        return true;
    }
    if (rank != rank_t::number)
    {
        return variant_t::compare_content(left, right) == 0;
    }
    if (left.is_integer() && right.is_integer())
    {
        return left.is_negative() == right.is_negative() &&
               left.m_value.m_u64 == right.m_value.m_u64;
    }
    return std::equal_to<double>()(left.as_double(), right.as_double());
}

/// Returns whether two variants differ.
inline bool operator!=(const variant_t& left, const variant_t& right)
{
    return !(left == right);
}

/// Orders variants: null, boolean, numbers (NaN last), narrow text, wide text, blob, object; inside
/// a class by value. An integer and a double are compared exactly, so that the order agrees with
/// equality wherever a double holds the integer exactly.
///
/// @throws AssertionFailure  where a variant holds what no operation makes
inline bool operator<(const variant_t& left, const variant_t& right)
{
    using detail::rank_t;
    const rank_t rank = detail::rank_of(left.m_type);
    const rank_t other_rank = detail::rank_of(right.m_type);
    if (rank != other_rank)
    {
        return rank < other_rank;
    }
    if (rank == rank_t::null)
    {
        return false;
    }
    if (rank == rank_t::number)
    {
        return detail::less_number(left.as_number(), right.as_number());
    }
    return variant_t::compare_content(left, right) < 0;
}

} // namespace vexkit2

#endif
