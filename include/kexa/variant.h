/// @file
/// The tagged value in which option values, defaults, allowed and deprecated values are held.
#ifndef KEXA_VARIANT_H
#define KEXA_VARIANT_H

#include <cstddef>
#include <string>
#include <type_traits>

#include "kexa/variant_kind.h"

namespace vexkit2
{

namespace detail
{
struct number_t;
struct shared_memory_t;
} // namespace detail

/// A value of one of the kinds of variant_kind_t, in two words. What allocates throws
/// std::bad_alloc and then changes nothing.
///
/// Ownership: copies of a text, blob or object share one block, which is freed with the last of
/// them. The texts of a parse result lie together in larger pieces of memory, each freed when no
/// variant shares a text in it any more.
///
/// Threads: one variant is used by one thread at a time. Its copies may be used and destroyed on
/// other threads: the reference count of their block is atomic.
class variant_t
{
public:
    /// Makes a null variant.
    variant_t() noexcept = default;

    /// Makes a boolean (kind 0).
    explicit variant_t(bool value) noexcept;

    /// @name Numbers
    /// A shorter integer type becomes int. `long` has 32 bits on Windows.
    /// @{
    explicit variant_t(int value) noexcept;                ///< Makes an integer (kind 6).
    explicit variant_t(unsigned value) noexcept;           ///< Makes an integer (kind 7).
    explicit variant_t(long value) noexcept;               ///< Makes an integer (kind 6 or 8).
    explicit variant_t(unsigned long value) noexcept;      ///< Makes an integer (kind 7 or 9).
    explicit variant_t(long long value) noexcept;          ///< Makes an integer (kind 8).
    explicit variant_t(unsigned long long value) noexcept; ///< Makes an integer (kind 9).
    explicit variant_t(float value) noexcept;              ///< Makes a floating number (kind 10).
    explicit variant_t(double value) noexcept;             ///< Makes a floating number (kind 11).
    /// @}

    /// @name Texts
    /// A narrow text gives kind 12, a wide text kind 13.
    /// @{

    /// Copies a null-terminated text; null counts as empty.
    explicit variant_t(const char* text);
    /// Copies a null-terminated text; null counts as empty.
    explicit variant_t(const wchar_t* text);
    /// Copies a text, embedded zeros included.
    explicit variant_t(const std::string& text);
    /// Copies a text, embedded zeros included.
    explicit variant_t(const std::wstring& text);
    /// Copies the first `length` characters of a text.
    variant_t(const char* text, std::size_t length);
    /// Copies the first `length` characters of a text.
    variant_t(const wchar_t* text, std::size_t length);
    /// @}

    /// @name Other pointers
    /// They would become a boolean.
    /// @{

    /// Refused, texts of other character types included.
    template <class T, class = std::enable_if_t<!detail::is_text_character<T>>>
    explicit variant_t(T* pointer) = delete;
    /// Refused.
    template <class T, class Class>
    explicit variant_t(T Class::*pointer) = delete;
    /// Refused.
    explicit variant_t(std::nullptr_t) = delete;
    /// @}

    /// Refers to a text (kind 14) that the caller keeps alive and unchanged as long as the variant
    /// or a copy is used. Null counts as empty.
    static variant_t reference(const char* text) noexcept;
    /// Refers to a wide text (kind 15) that the caller keeps alive and unchanged likewise.
    static variant_t reference(const wchar_t* text) noexcept;

    /// Returns a copy of `length` bytes (kind 16).
    static variant_t blob(const void* bytes, std::size_t length);

    /// Takes an object over (kind 18). It is deleted with the last copy, and also when this throws.
    static variant_t object(polymorphic_t* object);

    /// Shares the block of the other variant.
    variant_t(const variant_t& other);
    /// Takes the content of the other variant, which becomes null.
    variant_t(variant_t&& other) noexcept;

    /// Shares the new content, releases the old content, then holds the new. The variant is null
    /// while the destructor of an object that it held runs.
    variant_t& operator=(const variant_t& other);
    /// Takes the new content, releases the old content as the copy assignment does, then holds the
    /// new. The other variant becomes null.
    variant_t& operator=(variant_t&& other) noexcept;

    ~variant_t() { clear(); }

    /// Exchanges two contents. No reference count changes.
    void swap(variant_t& other) noexcept;

    /// Returns the kind, one of variant_kind_t.
    s32_t kind() const noexcept { return m_type; }

    /// Returns whether get<T>() gives a value. T is `bool` (kind 0), `s32_t`, `u32_t`, `s64_t` or
    /// `u64_t` (the integer kinds, where T can represent the value), `double` (every number) or
    /// `const wchar_t*` (kinds 13 and 15). No other T compiles.
    template <class T>
    bool can_get() const noexcept;

    /// Returns the value as a T, see can_get. A text lives as long as a variant shares it; for kind
    /// 15, as long as its owner keeps it.
    ///
    /// @throws AssertionFailure  where can_get<T>() is false; the text is "can_get<T>()" with T
    template <class T>
    T get() const;

    /// Returns the narrow text of kinds 12 and 14. It lives as long as that of get.
    ///
    /// @throws AssertionFailure  for any other kind
    const char* narrow_text() const;

    /// Holds a new block with a copy of the bytes. Releases the old content as an assignment does.
    ///
    /// @param kind    12 (narrow text), 13 (wide text) or 16 (blob)
    /// @param bytes   what to copy; may be null only when length is 0
    /// @param length  in bytes; for a text it includes the terminating zero
    /// @throws AssertionFailure  for any other kind, and for missing bytes; nothing changes then
    void set_data(s32_t kind, const void* bytes, std::size_t length);

    /// Returns the length of what kinds 12, 13, 16 and 18 hold, in bytes, a text's terminating zero
    /// included; 0 for other kinds.
    std::size_t byte_length() const;

    /// @cond
    // For the library, which lays the blocks of many texts side by side: returns a variant of a kind
    // that owns a block, with a new reference to the block that holds `data`. A host has no use for
    // it.
    static variant_t share_block(s32_t kind, void* data) noexcept;
    /// @endcond

    friend bool operator==(const variant_t& left, const variant_t& right);
    friend bool operator<(const variant_t& left, const variant_t& right);

private:
    union storage_t
    {
        u64_t m_u64; // first, so that all of it is set to zero
        bool m_bool;
        double m_double;
        void* m_data;
        const void* m_reference;
    };

    variant_t(s32_t kind, const void* reference) noexcept;
    variant_t(s32_t kind, const void* bytes, std::size_t length, std::size_t terminator);

    bool owns_block() const noexcept;
    bool is_integer() const noexcept { return m_type >= kind_s32 && m_type <= kind_u64; }
    bool is_number() const noexcept { return m_type >= kind_s32 && m_type <= kind_double; }
    bool is_unsigned() const noexcept { return m_type == kind_u32 || m_type == kind_u64; }
    bool is_negative() const noexcept { return !is_unsigned() && as_signed() < 0; }
    s64_t as_signed() const noexcept { return static_cast<s64_t>(m_value.m_u64); }
    double as_double() const noexcept;
    detail::number_t as_number() const noexcept;
    const void* data() const;
    static int compare_content(const variant_t& left, const variant_t& right);

    void set_integer(s32_t kind, u64_t value) noexcept;
    void clear() noexcept;
    void replace_content(variant_t& taken) noexcept;

    // Members of the two words carry the names that the guard texts quote.
    storage_t m_value = {};
    s32_t m_type = kind_null;
};

static_assert(sizeof(void*) != 8 || sizeof(variant_t) == 16, "a variant is two words");

/// Exchanges two contents, as variant_t::swap does.
void swap(variant_t& left, variant_t& right) noexcept;

} // namespace vexkit2

#include "kexa/variant_access.h"
#include "kexa/variant_compare.h"
#include "kexa/variant_making.h"

#endif
