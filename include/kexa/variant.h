// The tagged value in which option values, defaults, allowed and deprecated values are held.
#ifndef KEXA_VARIANT_H
#define KEXA_VARIANT_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <string>
#include <type_traits>
#include <utility>

#include "kexa/assertion.h"
#include "kexa/variant_block.h"

namespace vexkit2
{

using s32_t = std::int32_t;
using u32_t = std::uint32_t;
using s64_t = std::int64_t;
using u64_t = std::uint64_t;

// What a variant holds. Kinds 12, 13, 16 and 18 own a block that copies share.
enum variant_kind_t : s32_t
{
    kind_boolean = 0,
    kind_s32 = 6,
    kind_u32 = 7,
    kind_s64 = 8,
    kind_u64 = 9,
    kind_float = 10,
    kind_double = 11,
    kind_narrow_text = 12,
    kind_wide_text = 13,
    kind_narrow_reference = 14, // not owned
    kind_wide_reference = 15,   // not owned
    kind_blob = 16,
    kind_null = 17,
    kind_object = 18
};

namespace detail
{

// Whether a text of such characters is copied by variant_t.
template <class T>
inline constexpr bool is_text_character =
    std::is_same_v<T, char> || std::is_same_v<T, const char> || std::is_same_v<T, wchar_t> ||
    std::is_same_v<T, const wchar_t>;

} // namespace detail

// A value of one of the kinds above, in two words.
//
// Copies of a text, blob or object share one block, freed with the last of them; its reference
// count is atomic, so copies may be used and destroyed on different threads, while one variant is
// used by one thread at a time. The texts that a parse result holds lie together in larger pieces
// of memory, of which one is freed when no text in it is shared any more. What allocates throws
// std::bad_alloc and changes nothing then.
class variant_t
{
public:
    variant_t() noexcept = default; // null
    explicit variant_t(bool value) noexcept : m_type(kind_boolean) { m_value.m_bool = value; }

    // Every integer type gives the kind of its width and sign; those shorter than int become int.
    // s32_t is int; s64_t is long or long long, and long has 32 bits on Windows.
    explicit variant_t(int value) noexcept : m_type(kind_s32) { set_signed(value); }
    explicit variant_t(unsigned value) noexcept : m_type(kind_u32) { m_value.m_u64 = value; }
    explicit variant_t(long value) noexcept : m_type(sizeof(value) == 4 ? kind_s32 : kind_s64)
    {
        set_signed(value);
    }
    explicit variant_t(unsigned long value) noexcept
        : m_type(sizeof(value) == 4 ? kind_u32 : kind_u64)
    {
        m_value.m_u64 = value;
    }
    explicit variant_t(long long value) noexcept : m_type(kind_s64) { set_signed(value); }
    explicit variant_t(unsigned long long value) noexcept : m_type(kind_u64)
    {
        m_value.m_u64 = value;
    }

    explicit variant_t(float value) noexcept : m_type(kind_float)
    {
        m_value.m_double = static_cast<double>(value);
    }
    explicit variant_t(double value) noexcept : m_type(kind_double) { m_value.m_double = value; }

    // A copy of the text, up to its terminating zero; null counts as empty.
    explicit variant_t(const char* text) : variant_t(text, text == nullptr ? 0 : std::strlen(text))
    {
    }
    explicit variant_t(const wchar_t* text)
        : variant_t(text, text == nullptr ? 0 : std::wcslen(text))
    {
    }

    // Other pointers are refused: they would become a boolean.
    template <class T, class = std::enable_if_t<!detail::is_text_character<T>>>
    explicit variant_t(T* pointer) = delete;
    template <class T, class Class>
    explicit variant_t(T Class::*pointer) = delete;
    explicit variant_t(std::nullptr_t) = delete;

    // A copy of the text, embedded zeros included.
    explicit variant_t(const std::string& text) : variant_t(text.data(), text.size()) {}
    explicit variant_t(const std::wstring& text) : variant_t(text.data(), text.size()) {}

    // A copy of the first `length` characters of text.
    variant_t(const char* text, std::size_t length)
        : variant_t(kind_narrow_text, text, length, sizeof(char))
    {
    }
    variant_t(const wchar_t* text, std::size_t length)
        : variant_t(kind_wide_text, text, length * sizeof(wchar_t), sizeof(wchar_t))
    {
    }

    // Refers to a text that the caller keeps alive and unchanged; null counts as empty.
    static variant_t reference(const char* text) noexcept
    {
        return variant_t(kind_narrow_reference, text == nullptr ? "" : text);
    }
    static variant_t reference(const wchar_t* text) noexcept
    {
        return variant_t(kind_wide_reference, text == nullptr ? L"" : text);
    }

    // A copy of `length` bytes.
    static variant_t blob(const void* bytes, std::size_t length)
    {
        return variant_t(kind_blob, bytes, length, 0);
    }

    // Takes the object over: it is deleted with the last copy, and also when this throws.
    static variant_t object(polymorphic_t* object);

    variant_t(const variant_t& other) : m_value(other.m_value), m_type(other.m_type)
    {
        if (owns_block())
        {
            detail::share(m_value.m_data);
        }
    }
    variant_t(variant_t&& other) noexcept : m_value(other.m_value), m_type(other.m_type)
    {
        other.m_type = kind_null;
        other.m_value.m_u64 = 0;
    }
    variant_t& operator=(const variant_t& other)
    {
        variant_t taken(other);
        replace_content(taken);
        return *this;
    }
    variant_t& operator=(variant_t&& other) noexcept
    {
        variant_t taken(std::move(other));
        replace_content(taken);
        return *this;
    }
    ~variant_t() { clear(); }

    void swap(variant_t& other) noexcept
    {
        std::swap(m_value, other.m_value);
        std::swap(m_type, other.m_type);
    }

    s32_t kind() const noexcept { return m_type; }

    // The following three are for the library, which keeps the words of many variants in its own
    // records. A host has no use for them.

    // The memory that the block of the variant lies in; null where it has none.
    detail::shared_memory_t* memory() const noexcept
    {
        return owns_block() && m_value.m_data != nullptr ? detail::header_of(m_value.m_data)->memory
                                                         : nullptr;
    }

    // Answers the data word and becomes null. The share of a block goes to the caller with it.
    u64_t detach() noexcept;

    // A variant of a kind and a data word that `detach` answered, which takes the share over.
    static variant_t attach(s32_t kind, u64_t word) noexcept;

    // Whether get<T>() gives a value, for T one of bool (kind 0), s32_t, u32_t, s64_t, u64_t (the
    // integer kinds, where T can hold the value), double (every number) and const wchar_t* (kinds
    // 13 and 15).
    template <class T>
    bool can_get() const noexcept;

    // The value as a T. Throws kexa_3_3::AssertionFailure with the text "can_get<T>()" where
    // can_get<T>() is false. A text lives as long as some variant shares it (kind 15: as long as
    // its owner keeps it).
    template <class T>
    T get() const;

    // The narrow text of kinds 12 and 14, encoded as UTF-8 wherever the library reads it. Throws
    // AssertionFailure for any other kind.
    const char* narrow_text() const;

    // Holds a new block with a copy of the bytes.
    // kind:   12 (narrow text), 13 (wide text) or 16 (blob); any other throws AssertionFailure.
    // bytes:  what to copy; may be null only when length is 0.
    // length: in bytes; for a text it includes the terminating zero.
    void set_data(s32_t kind, const void* bytes, std::size_t length);

    // The length in bytes of what kinds 12, 13, 16 and 18 hold (a text's terminating zero
    // included); 0 for other kinds.
    std::size_t byte_length() const;

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

    variant_t(s32_t kind, const void* reference) noexcept : m_type(kind)
    {
        m_value.m_reference = reference;
    }
    variant_t(s32_t kind, const void* bytes, std::size_t length, std::size_t terminator)
        : m_type(kind)
    {
        m_value.m_data = detail::make_block(bytes, length, terminator);
    }

    // Releases the content. The variant is null by the time an object's destructor runs.
    void clear() noexcept
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

    // Releases the content, then exchanges null, or what an object's destructor stored meanwhile,
    // for the new content.
    void replace_content(variant_t& taken) noexcept
    {
        clear();
        swap(taken);
    }

    // Sign-extended: integers of all widths compare as one word.
    void set_signed(s64_t value) noexcept { m_value.m_u64 = static_cast<u64_t>(value); }

    // One test without a bound instead of four: this stands in every destructor. The kind is masked
    // because a shift by more than 31 is undefined.
    bool owns_block() const noexcept
    {
        static_assert(kind_object < 32, "a bit for each kind");
        constexpr u32_t owners = u32_t{1} << kind_wide_text | u32_t{1} << kind_narrow_text |
                                 u32_t{1} << kind_blob | u32_t{1} << kind_object;
        return (owners >> (static_cast<u32_t>(m_type) & 31U) & 1U) != 0;
    }
    bool is_integer() const noexcept { return m_type >= kind_s32 && m_type <= kind_u64; }
    bool is_number() const noexcept { return m_type >= kind_s32 && m_type <= kind_double; }
    bool is_unsigned() const noexcept { return m_type == kind_u32 || m_type == kind_u64; }
    s64_t as_signed() const noexcept { return static_cast<s64_t>(m_value.m_u64); }
    bool is_negative() const noexcept { return !is_unsigned() && as_signed() < 0; }
    double as_double() const noexcept;
    const void* data() const;

    // Members of the two words carry the names that the guard texts quote.
    storage_t m_value = {};
    s32_t m_type = kind_null;
};

static_assert(sizeof(variant_t) == 16, "a variant is two words");

inline void swap(variant_t& left, variant_t& right) noexcept
{
    left.swap(right);
}

} // namespace vexkit2

#include "kexa/variant_access.h"
#include "kexa/variant_compare.h"

#endif
