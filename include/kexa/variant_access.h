// Reading and replacing what a variant_t holds. Included by kexa/variant.h.
#ifndef KEXA_VARIANT_ACCESS_H
#define KEXA_VARIANT_ACCESS_H

#include <cstddef>
#include <cstring>
#include <limits>
#include <memory>
#include <type_traits>

#include "kexa/variant.h"

namespace vexkit2
{

namespace detail
{

// The text of the guard that stands before reading a T; null where no variant is read as a T.
template <class T>
inline constexpr const char* can_get_guard = nullptr;
template <>
inline constexpr const char* can_get_guard<bool> = "can_get<bool>()";
template <>
inline constexpr const char* can_get_guard<s32_t> = "can_get<s32_t>()";
template <>
inline constexpr const char* can_get_guard<u32_t> = "can_get<u32_t>()";
template <>
inline constexpr const char* can_get_guard<s64_t> = "can_get<s64_t>()";
template <>
inline constexpr const char* can_get_guard<u64_t> = "can_get<u64_t>()";
template <>
inline constexpr const char* can_get_guard<double> = "can_get<double>()";
template <>
inline constexpr const char* can_get_guard<const wchar_t*> = "can_get<const wchar_t*>()";

template <class T>
inline constexpr bool is_readable = can_get_guard<T> != nullptr;

} // namespace detail

inline variant_t variant_t::object(polymorphic_t* object)
{
    std::unique_ptr<polymorphic_t> owner(object);
    variant_t result(kind_object, &object, detail::object_length, 0);
    static_cast<void>(owner.release());
    return result;
}

inline void variant_t::set_data(s32_t kind, const void* bytes, std::size_t length)
{
    if (kind != kind_narrow_text && kind != kind_wide_text && kind != kind_blob)
    {
        kexa_3_3::raiseAssertion("kind == vtString || kind == vtWideString || kind == vtBlob",
                                 __FILE__, __LINE__, __func__);
    }
    if (bytes == nullptr && length != 0)
    {
        kexa_3_3::raiseAssertion("bytes != NULL || length == 0", __FILE__, __LINE__, __func__);
    }
    variant_t copy(kind, bytes, length, 0);
    replace_content(copy);
}

inline u64_t variant_t::detach() noexcept
{
    u64_t word = 0;
    std::memcpy(&word, &m_value, sizeof(word));
    m_value.m_u64 = 0;
    m_type = kind_null;
    return word;
}

inline variant_t variant_t::attach(s32_t kind, u64_t word) noexcept
{
    variant_t attached;
    std::memcpy(&attached.m_value, &word, sizeof(word));
    attached.m_type = kind;
    return attached;
}

// What the data word points at, for the kinds that hold a pointer.
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
