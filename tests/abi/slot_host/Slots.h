// The binary interface as plain data: slot numbers, records, and the exported name of createParser.
#ifndef KEXA_TESTS_ABI_SLOTS_H
#define KEXA_TESTS_ABI_SLOTS_H

#include <cstddef>
#include <cstdint>

// The exported name of createParser, as mangled by the compiler. Compiled hosts contain it.
#if defined(_MSC_VER)
inline constexpr char create_parser_name[] =
    "?createParser@kexa_3_3@@YA?AW4result_t@1@PEAPEAVIParser@1@H@Z";
#else
inline constexpr char create_parser_name[] = "_ZN8kexa_3_312createParserEPPNS_7IParserEi";
#endif

using CreateParser = std::int32_t (*)(void** out, std::int32_t flags);

// An object of the library begins with the pointer to its virtual table. On 64-bit platforms, a
// virtual operation is called as a function whose first argument is the object.
template <class Result, class... Arguments>
Result call(void* object, std::size_t slot, Arguments... arguments)
{
    using Operation = Result (*)(void*, Arguments...);
    void* const* const table = *static_cast<void* const* const*>(object);
    return reinterpret_cast<Operation>(table[slot])(object, arguments...);
}

namespace parser
{
enum Slot : std::size_t
{
    on_option_parsed = 0,
    on_value_parsed = 1,
    on_unknown_argument = 2,
    release = 3,
    create_parse_result = 4,
    add_option = 5,
    add_switch = 6,
    add_option_with_keywords = 7,
    has_option = 8,
    parse = 9,
    parse_command_line = 10,
    get_error_message = 11,
    show_topic_help = 12,
    get_topic_list = 13,
    show_related_help = 14,
    show_full_help = 15,
    add_event_handler = 16,
    remove_event_handler = 17,
    enable_option_files = 18,
    add_compatible_actions = 19
};
} // namespace parser

namespace option
{
enum Slot : std::size_t
{
    add_name = 0,
    add_allowed_value = 1,
    add_deprecated_value = 2,
    set_default_value = 3,
    set_separator = 4,
    set_marked = 5,
    add_keywords = 6
};
} // namespace option

namespace parse_result
{
enum Slot : std::size_t
{
    release = 0,
    is_present = 1,
    get_first_value = 2,
    get_next_value = 3,
    get_next_position = 4,
    get_first_unparsed = 5,
    get_next_unparsed = 6
};
} // namespace parse_result

// Mirrors of the records that host and library exchange, member for member.
struct RawVariant
{
    std::uint64_t data;
    std::int32_t kind;
};

struct RawValue
{
    const void* data;
    std::int32_t status;
    std::int32_t position;
    RawVariant value;
};

struct RawRegistration
{
    void* option;
    std::int32_t status;
};

struct RawValueRecord
{
    const wchar_t* optionName;
    RawVariant value;
    std::int32_t sequenceNumber;
};

#endif
