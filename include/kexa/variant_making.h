/// @file
/// How a variant_t is made, copied, assigned and destroyed. Included by kexa/variant.h.
#ifndef KEXA_VARIANT_MAKING_H
#define KEXA_VARIANT_MAKING_H

#include <cstddef>
#include <cstring>
#include <cwchar>
#include <memory>
#include <string>
#include <utility>

#include "kexa/assertion.h"
#include "kexa/variant.h"
#include "kexa/variant_block.h"

namespace vexkit2
{

inline variant_t::variant_t(bool value) noexcept : m_type(kind_boolean)
{
    m_value.m_bool = value;
}

// Integers of all widths are compared as one word: signed ones come here sign-extended.
inline void variant_t::set_integer(s32_t kind, u64_t value) noexcept
{
    m_type = kind;
    m_value.m_u64 = value;
}
inline variant_t::variant_t(int value) noexcept
{
    set_integer(kind_s32, static_cast<u64_t>(value));
}
inline variant_t::variant_t(unsigned value) noexcept
{
    set_integer(kind_u32, value);
}
inline variant_t::variant_t(long value) noexcept
{
    set_integer(sizeof(value) == 4 ? kind_s32 : kind_s64, static_cast<u64_t>(value));
}
inline variant_t::variant_t(unsigned long value) noexcept
{
    set_integer(sizeof(value) == 4 ? kind_u32 : kind_u64, value);
}
inline variant_t::variant_t(long long value) noexcept
{
    set_integer(kind_s64, static_cast<u64_t>(value));
}
inline variant_t::variant_t(unsigned long long value) noexcept
{
    set_integer(kind_u64, value);
}

inline variant_t::variant_t(float value) noexcept : m_type(kind_float)
{
    m_value.m_double = static_cast<double>(value);
}
inline variant_t::variant_t(double value) noexcept : m_type(kind_double)
{
    m_value.m_double = value;
}

inline variant_t::variant_t(s32_t kind, const void* bytes, std::size_t length,
                            std::size_t terminator)
    : m_type(kind)
{
    m_value.m_data = detail::make_block(bytes, length, terminator);
}
inline variant_t::variant_t(const char* text, std::size_t length)
    : variant_t(kind_narrow_text, text, length, sizeof(char))
{
}
inline variant_t::variant_t(const wchar_t* text, std::size_t length)
    : variant_t(kind_wide_text, text, length * sizeof(wchar_t), sizeof(wchar_t))
{
}
inline variant_t::variant_t(const char* text)
    : variant_t(text, text == nullptr ? 0 : std::strlen(text))
{
}
inline variant_t::variant_t(const wchar_t* text)
    : variant_t(text, text == nullptr ? 0 : std::wcslen(text))
{
}
inline variant_t::variant_t(const std::string& text) : variant_t(text.data(), text.size()) {}
inline variant_t::variant_t(const std::wstring& text) : variant_t(text.data(), text.size()) {}

inline variant_t::variant_t(s32_t kind, const void* reference) noexcept : m_type(kind)
{
    m_value.m_reference = reference;
}
inline variant_t variant_t::reference(const char* text) noexcept
{
    return variant_t(kind_narrow_reference, text == nullptr ? "" : text);
}
inline variant_t variant_t::reference(const wchar_t* text) noexcept
{
    return variant_t(kind_wide_reference, text == nullptr ? L"" : text);
}

inline variant_t variant_t::blob(const void* bytes, std::size_t length)
{
    return variant_t(kind_blob, bytes, length, 0);
}

inline variant_t variant_t::object(polymorphic_t* object)
{
    std::unique_ptr<polymorphic_t> owner(object);
    variant_t result(kind_object, &object, detail::object_length, 0);
    static_cast<void>(owner.release());
    return result;
}

inline variant_t::variant_t(const variant_t& other) : m_value(other.m_value), m_type(other.m_type)
{
    if (owns_block())
    {
        detail::share(m_value.m_data);
    }
}
inline variant_t::variant_t(variant_t&& other) noexcept
    : m_value(other.m_value), m_type(other.m_type)
{
    other.m_value.m_u64 = 0;
    other.m_type = kind_null;
}
inline variant_t& variant_t::operator=(const variant_t& other)
{
    variant_t taken(other);
    replace_content(taken);
    return *this;
}
inline variant_t& variant_t::operator=(variant_t&& other) noexcept
{
    variant_t taken(std::move(other));
    replace_content(taken);
    return *this;
}

inline void variant_t::swap(variant_t& other) noexcept
{
    std::swap(m_value, other.m_value);
    std::swap(m_type, other.m_type);
}
inline void swap(variant_t& left, variant_t& right) noexcept
{
    left.swap(right);
}

// Releases the content. The variant is null by the time an object's destructor runs.
inline void variant_t::clear() noexcept
{
    void* const block = owns_block() ? m_value.m_data : nullptr;
    const bool holds_object = m_type == kind_object;
    m_value.m_u64 = 0;
    m_type = kind_null;
    if (block != nullptr)
    {
        detail::release(block, holds_object);
    }
}

// Releases the content, then holds the new one. What an object's destructor stored meanwhile goes
// into the given variant.
inline void variant_t::replace_content(variant_t& taken) noexcept
{
    clear();
    swap(taken);
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

} // namespace vexkit2

#endif
