/// @file
/// What a variant_t can hold. Included by kexa/variant.h.
#ifndef KEXA_VARIANT_KIND_H
#define KEXA_VARIANT_KIND_H

#include <cstdint>
#include <type_traits>

// Stands before everything else that a 32-bit system refuses.
static_assert(sizeof(void*) == 8, "kexa needs a 64-bit system");

namespace vexkit2
{

using s32_t = std::int32_t;  ///< signed, 32 bits
using u32_t = std::uint32_t; ///< unsigned, 32 bits
using s64_t = std::int64_t;  ///< signed, 64 bits
using u64_t = std::uint64_t; ///< unsigned, 64 bits

/// What a variant holds. Kinds 12, 13, 16 and 18 own a block that copies share.
enum variant_kind_t : s32_t
{
    kind_boolean = 0,           ///< bool
    kind_s32 = 6,               ///< s32_t
    kind_u32 = 7,               ///< u32_t
    kind_s64 = 8,               ///< s64_t
    kind_u64 = 9,               ///< u64_t
    kind_float = 10,            ///< a float, held as a double
    kind_double = 11,           ///< double
    kind_narrow_text = 12,      ///< a copied text, UTF-8 wherever the library reads it
    kind_wide_text = 13,        ///< a copied wide text
    kind_narrow_reference = 14, ///< a narrow text that the variant does not own
    kind_wide_reference = 15,   ///< a wide text that the variant does not own
    kind_blob = 16,             ///< copied bytes
    kind_null = 17,             ///< no value
    kind_object = 18            ///< an object derived from polymorphic_t
};

/// The base of objects that a variant can hold.
class polymorphic_t
{
public:
    polymorphic_t() = default;
    /// Copies nothing: the base has no members.
    polymorphic_t(const polymorphic_t&) = default;
    /// Copies nothing: the base has no members.
    polymorphic_t& operator=(const polymorphic_t&) = default;
    virtual ~polymorphic_t() = default;
};

namespace detail
{

// Whether variant_t copies a null-terminated text of these characters.
template <class T>
inline constexpr bool is_text_character = std::is_same_v<T, char> || std::is_same_v<T, wchar_t>;
template <class T>
inline constexpr bool is_text_character<const T> = is_text_character<T>;

// The text of the guard before reading a T; null where no variant is read as a T.
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

} // namespace vexkit2

#endif
