/// @file
/// What a parser can be told when it is created.
#ifndef KEXA_CREATION_FLAGS_H
#define KEXA_CREATION_FLAGS_H

#include <cstdint>

namespace kexa_3_3
{

/// Bits of the flags word given to createParser. Other bits are kept and have no effect.
enum creation_flags_t : std::int32_t
{
    /// An argument that nothing takes ends the parse with code 2 and "Unknown option: ", unless an
    /// event handler takes it. Without this flag such an argument is dropped.
    flag_unknown_is_error = 2,

    /// Behind the end marker "--", flag 8 does not apply: arguments that begin with "-" are
    /// positional there.
    flag_any_positional_after_marker = 4,

    /// An argument that begins with "-" does not become positional by itself. Flag 16 still takes
    /// it as part of the rest, and flag 4 lifts this behind "--".
    flag_no_hyphen_positional = 8,

    /// The first positional argument takes all arguments behind it too.
    flag_positional_takes_rest = 16,

    /// Values are not split into lists: new options have no separator instead of ','.
    flag_no_value_lists = 32
};

} // namespace kexa_3_3

#endif
