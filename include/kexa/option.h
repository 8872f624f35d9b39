// The declaration of one option, and what registering it answers.
#ifndef KEXA_OPTION_H
#define KEXA_OPTION_H

#include <cstdint>

#include "kexa/variant.h"

namespace kexa_3_3
{

// Value types that an option may have. The numbers are the variant kinds of its values.
enum value_type_t : std::int32_t
{
    value_type_boolean = 0,    // a switch, given as --name or --no-name
    value_type_integer = 6,    // vexkit2::s32_t, decimal
    value_type_unsigned = 7,   // vexkit2::u32_t, decimal
    value_type_integer64 = 8,  // vexkit2::s64_t, decimal
    value_type_unsigned64 = 9, // vexkit2::u64_t, decimal, 0x1F or 1Fh
    value_type_double = 11,    // double, decimal with optional exponent
    value_type_string = 13,    // wide text
    value_type_none = 17       // takes no value
};

// A builder for one option. It belongs to the parser that made it and lives as long as the parser.
// Every operation changes the option and answers the option itself, so that calls can be chained.
// Texts and values are copied. An allocation failure is thrown as std::bad_alloc, and a text longer
// than a string can be as std::length_error; the option is then as it was before the call.
class IOption
{
public:
    // Adds a further name by which the option answers on the command line.
    // name: not split and not checked against other names; null counts as empty.
    virtual IOption& addName(const wchar_t* name) = 0;

    // Adds a value to the list of values that the option accepts. An option without such a list
    // accepts every value of its type. A string option accepts any unambiguous prefix of an allowed
    // value and stores the full value. Where the separator is 0 it becomes ',' again.
    virtual IOption& addAllowedValue(const vexkit2::variant_t& value) = 0;

    // Declares oldValue deprecated: on the command line it is accepted, replaced by replacement,
    // and a warning goes to standard error. It takes effect once the option has an allowed value.
    // The first replacement of an old value stays.
    virtual IOption& addDeprecatedValue(const vexkit2::variant_t& oldValue,
                                        const vexkit2::variant_t& replacement) = 0;

    // Sets the value that a result reports when the option is not given, unless its text is empty
    // (null, a blob, an object, an empty text). The last call counts.
    virtual IOption& setDefaultValue(const vexkit2::variant_t& value) = 0;

    // Sets the character at which one argument is cut into several values.
    // separator: ',' unless the parser was created with flag 32; 0 means that values are not cut.
    virtual IOption& setSeparator(wchar_t separator) = 0;

    // Marks the option: the help listing leaves it out, and where it takes a value it is
    // positional.
    virtual IOption& setMarked() = 0;

    // Adds keywords. An action accepts a value option that has keywords only if it shares one with
    // it. A value option with the keyword "kexa_positional_option" is positional.
    // list: split at every ','; empty pieces are dropped, blanks are kept; null counts as empty.
    virtual IOption& addKeywords(const wchar_t* list) = 0;

    virtual ~IOption() = default;
};

// What declaring an option answers. The parser owns the record and overwrites it with the next
// declaration; the option in it stays valid as long as the parser.
struct Registration
{
    IOption* option;     // null when the declaration failed
    std::int32_t status; // 3: declared; 1: failed
};

} // namespace kexa_3_3

#endif
