/// @file
/// The declaration of one option, and what declaring it returns.
#ifndef KEXA_OPTION_H
#define KEXA_OPTION_H

#include <cstdint>

#include "kexa/variant.h"

namespace kexa_3_3
{

/// Value types that an option may have. The numbers are the variant kinds of its values.
enum value_type_t : std::int32_t
{
    value_type_boolean = 0,    ///< a switch, given as --name or --no-name
    value_type_integer = 6,    ///< vexkit2::s32_t, decimal
    value_type_unsigned = 7,   ///< vexkit2::u32_t, decimal
    value_type_integer64 = 8,  ///< vexkit2::s64_t, decimal
    value_type_unsigned64 = 9, ///< vexkit2::u64_t, decimal, 0x1F or 1Fh
    value_type_double = 11,    ///< double, decimal with optional exponent
    value_type_string = 13,    ///< wide text
    value_type_none = 17       ///< takes no value
};

/// A builder for one option.
///
/// Every operation changes the option and returns it, so that calls can be chained. Texts and
/// values are copied. Where memory runs out, std::bad_alloc is thrown, and std::length_error for a
/// text longer than a string can be; the option is then as it was before the call.
///
/// Ownership and threads: the parser that made the option owns it and keeps it as long as it lives.
/// It is used by the thread that uses the parser.
class IOption
{
public:
    /// Adds a further name under which the option is found on the command line.
    ///
    /// @param name  not split, and not checked against other names; null counts as empty
    virtual IOption& addName(const wchar_t* name) = 0;

    /// Adds a value to the list of values that the option accepts. An option without such a list
    /// accepts every value of its type. A string option accepts any unambiguous prefix of an
    /// allowed value and stores the full value. Where the separator is 0 it becomes ',' again.
    ///
    /// @param value  an allowed value; compared as `operator==` of variants does
    virtual IOption& addAllowedValue(const vexkit2::variant_t& value) = 0;

    /// Declares a value deprecated: on the command line it is accepted and replaced, and a warning
    /// goes to standard error. It takes effect once the option has an allowed value.
    ///
    /// @param oldValue     the deprecated value; its first replacement stays
    /// @param replacement  the value that is stored instead
    virtual IOption& addDeprecatedValue(const vexkit2::variant_t& oldValue,
                                        const vexkit2::variant_t& replacement) = 0;

    /// Sets the value that a result reports when the option is not given. The last call counts.
    ///
    /// @param value  the default; one whose text is empty (null, a blob, an object, an empty text)
    ///               is reported by no result
    virtual IOption& setDefaultValue(const vexkit2::variant_t& value) = 0;

    /// Sets the character at which one argument is split into several values. Initially ',', or 0
    /// under creation flag 32.
    ///
    /// @param separator  the character; 0 means that values are not split
    virtual IOption& setSeparator(wchar_t separator) = 0;

    /// Marks the option: the help listing leaves it out, and where it takes a value it is
    /// positional.
    virtual IOption& setMarked() = 0;

    /// Adds keywords. An action accepts a value option that has keywords only if it shares one with
    /// it. A value option with the keyword "kexa_positional_option" is positional.
    ///
    /// @param list  split at every ','; empty pieces are dropped, blanks are kept; null counts as
    ///              empty
    virtual IOption& addKeywords(const wchar_t* list) = 0;

    virtual ~IOption() = default;
};

/// What declaring an option returns. The parser owns the record and overwrites it with the next
/// declaration; the option in it stays valid as long as the parser.
struct Registration
{
    IOption* option;     ///< null when the declaration failed
    std::int32_t status; ///< 3: declared; 1: failed
};

} // namespace kexa_3_3

#endif
