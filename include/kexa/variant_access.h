/// @file
/// How a variant_t is read. Included by kexa/variant.h.
#ifndef KEXA_VARIANT_ACCESS_H
#define KEXA_VARIANT_ACCESS_H

#include <cstddef>
#include <cstring>
#include <limits>
#include <type_traits>

#include "kexa/assertion.h"
#include "kexa/variant.h"
#include "kexa/variant_block.h"

namespace vexkit2
{

inline bool variant_t::owns_block() const noexcept
{
    return m_type == kind_wide_text || m_type == kind_narrow_text || m_type == kind_blob ||
           m_type == kind_object;
}

inline variant_t variant_t::share_block(s32_t kind, void* data) noexcept
{
    variant_t sharer;
    sharer.m_type = kind;
    sharer.m_value.m_data = data;
    detail::sync_inc(detail::header_of(data)->memory->count);
    return sharer;
}

// Returns what the data word points at, for the kinds that hold a pointer.
inline const void* variant_t::data() const
{
    if (m_value.m_data == nullptr)
    {
        kexa_3_3::raiseAssertion("m_value.m_data != NULL", __FILE__, __LINE__, __func__);
    }
    return m_value.m_data;
}

inline std::size_t variant_t::byte_length() const
{
    return owns_block() ? detail::block_length(data()) : 0;
}

inline const char* variant_t::narrow_text() const
{
    if (m_type != kind_narrow_text && m_type != kind_narrow_reference)
    {
        kexa_3_3::raiseAssertion("m_type == vtString || m_type == vtStringReference", __FILE__,
                                 __LINE__, __func__);
    }
    return static_cast<const char*>(data());
}

inline double variant_t::as_double() const noexcept
{
    if (!is_integer())
    {
        return m_value.m_double;
    }
    return is_unsigned() ? static_cast<double>(m_value.m_u64) : static_cast<double>(as_signed());
}

template <class T>
bool variant_t::can_get() const noexcept
{
    static_assert(detail::is_readable<T>,
                  "variant_t::get<T> and can_get<T> take bool, s32_t, u32_t, s64_t, u64_t, double "
                  "or const wchar_t*: this T is none of them");
    if constexpr (std::is_same_v<T, bool>)
    {
        return m_type == kind_boolean;
    }
    else if constexpr (std::is_same_v<T, double>)
    {
        return is_number();
    }
    else if constexpr (std::is_same_v<T, const wchar_t*>)
    {
        return m_type == kind_wide_text || m_type == kind_wide_reference;
    }
    else if constexpr (detail::is_readable<T>)
    {
        using limits = std::numeric_limits<T>;
        return is_integer() && (is_negative() ? std::is_signed_v<T> &&
                                                    as_signed() >= static_cast<s64_t>(limits::min())
                                              : m_value.m_u64 <= static_cast<u64_t>(limits::max()));
    }
    else
    {
        return false; // never compiled: another T was refused above
    }
}

template <class T>
T variant_t::get() const
{
    if (!can_get<T>())
    {
        kexa_3_3::raiseAssertion(detail::can_get_guard<T>, __FILE__, __LINE__, __func__);
    }
    if constexpr (std::is_same_v<T, bool>)
    {
        return m_value.m_bool;
    }
    else if constexpr (std::is_same_v<T, double>)
    {
        return as_double();
    }
    else if constexpr (std::is_same_v<T, const wchar_t*>)
    {
        return static_cast<const wchar_t*>(data());
    }
    else if constexpr (detail::is_readable<T>)
    {
        return static_cast<T>(m_value.m_u64);
    }
}

} // namespace vexkit2

#endif
