// Reading and replacing what a variant_t holds. Included by kexa/variant.h.
#ifndef KEXA_VARIANT_ACCESS_H
#define KEXA_VARIANT_ACCESS_H

#include <cstddef>
#include <cstring>
#include <limits>
#include <memory>

#include "kexa/variant.h"

namespace vexkit2
{

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

template <>
inline bool variant_t::can_get<bool>() const noexcept
{
    return m_type == kind_boolean;
}

template <>
inline bool variant_t::can_get<s64_t>() const noexcept
{
    return is_integer() && (!is_unsigned() ||
                            m_value.m_u64 <= static_cast<u64_t>(std::numeric_limits<s64_t>::max()));
}

template <>
inline bool variant_t::can_get<u64_t>() const noexcept
{
    return is_integer() && (is_unsigned() || as_signed() >= 0);
}

template <>
inline bool variant_t::can_get<s32_t>() const noexcept
{
    return can_get<s64_t>() && as_signed() >= std::numeric_limits<s32_t>::min() &&
           as_signed() <= std::numeric_limits<s32_t>::max();
}

template <>
inline bool variant_t::can_get<u32_t>() const noexcept
{
    return can_get<u64_t>() && m_value.m_u64 <= std::numeric_limits<u32_t>::max();
}

template <>
inline bool variant_t::can_get<double>() const noexcept
{
    return is_number();
}

template <>
inline bool variant_t::can_get<const wchar_t*>() const noexcept
{
    return m_type == kind_wide_text || m_type == kind_wide_reference;
}

template <>
inline bool variant_t::get<bool>() const
{
    if (!can_get<bool>())
    {
        kexa_3_3::raiseAssertion("can_get<bool>()", __FILE__, __LINE__, __func__);
    }
    return m_value.m_bool;
}

template <>
inline s32_t variant_t::get<s32_t>() const
{
    if (!can_get<s32_t>())
    {
        kexa_3_3::raiseAssertion("can_get<s32_t>()", __FILE__, __LINE__, __func__);
    }
    return static_cast<s32_t>(as_signed());
}

template <>
inline u32_t variant_t::get<u32_t>() const
{
    if (!can_get<u32_t>())
    {
        kexa_3_3::raiseAssertion("can_get<u32_t>()", __FILE__, __LINE__, __func__);
    }
    return static_cast<u32_t>(m_value.m_u64);
}

template <>
inline s64_t variant_t::get<s64_t>() const
{
    if (!can_get<s64_t>())
    {
        kexa_3_3::raiseAssertion("can_get<s64_t>()", __FILE__, __LINE__, __func__);
    }
    return as_signed();
}

template <>
inline u64_t variant_t::get<u64_t>() const
{
    if (!can_get<u64_t>())
    {
        kexa_3_3::raiseAssertion("can_get<u64_t>()", __FILE__, __LINE__, __func__);
    }
    return m_value.m_u64;
}

template <>
inline double variant_t::get<double>() const
{
    if (!can_get<double>())
    {
        kexa_3_3::raiseAssertion("can_get<double>()", __FILE__, __LINE__, __func__);
    }
    return as_double();
}

template <>
inline const wchar_t* variant_t::get<const wchar_t*>() const
{
    if (!can_get<const wchar_t*>())
    {
        kexa_3_3::raiseAssertion("can_get<const wchar_t*>()", __FILE__, __LINE__, __func__);
    }
    return static_cast<const wchar_t*>(data());
}

} // namespace vexkit2

#endif
