/// @file
/// What a parse found, as a host reads it.
#ifndef KEXA_PARSE_RESULT_H
#define KEXA_PARSE_RESULT_H

#include <cstdint>

#include "kexa/result.h"
#include "kexa/value.h"

namespace kexa_3_3
{

/// The options, values and left-over arguments that one or several parses found.
///
/// Ownership: made by IParser::createParseResult, owned by the host, destroyed by release. It does
/// not need the parser once filled. Every text that it returns stays valid until it is released.
///
/// Positions: every converted value has one, its number among all values converted in this process;
/// an occurrence without a value has the number that the next value gets. The default of an option
/// that was not given has the position #no_position.
///
/// Names are compared in full, case-sensitive; every name of an option finds it. A null name is
/// unknown. A result has one query cursor, which isPresent and getFirstValue move: two walks cannot
/// be interleaved.
///
/// Threads: a result is used by one thread at a time. No operation throws.
class IParseResult
{
public:
    /// Destroys the result; the pointer must not be used afterwards.
    virtual void release() = 0;

    /// Returns whether an option was given, or has a default that stands in for it.
    ///
    /// @param name  any name of the option
    /// @param from  first position, inclusive
    /// @param to    end of the positions, exclusive
    /// @return 1 where the option occurred at a position p with from <= p < to, and, whatever the
    ///         range, where it did not occur at all and has a default whose text is not empty;
    ///         else 0
    virtual std::int32_t isPresent(const wchar_t* name, std::int32_t from, std::int32_t to) = 0;

    /// Begins a walk over the values of an option. Some occurrence must lie at a position p with
    /// from <= p < to; the walk then gives the values from `from` to `to`, both inclusive.
    ///
    /// An occurrence without a value gives its position, null data and a null variant. An option
    /// that did not occur gives its default, with position #no_position and whatever the range,
    /// unless the default's text is empty.
    ///
    /// @param[out] out  receives the value, or the not-found value with the returned code as its
    ///                  status; may be null
    /// @param name      any name of the option
    /// @param from      first position of the walk, inclusive
    /// @param to        end of the walk, see above
    /// @return 0 with a value, 1 when there is none, 3 after a standard exception
    virtual result_t getFirstValue(Value* out, const wchar_t* name, std::int32_t from,
                                   std::int32_t to) = 0;

    /// Continues the walk that getFirstValue or isPresent began.
    ///
    /// @param[out] out  as for getFirstValue
    /// @param name      ignored: the cursor holds the option
    /// @return 0 with a value, 1 at the end of the walk and where none was begun, 3 after a
    ///         standard exception
    virtual result_t getNextValue(Value* out, const wchar_t* name) = 0;

    /// Returns the next position of the walk's option, #no_position when there is none left or no
    /// walk was begun.
    virtual std::int32_t getNextPosition() = 0;

    /// Begins a walk over the arguments that were left over, in the order of the command line.
    ///
    /// @param[out] out  receives the argument; not written where the returned code is not 0; may be
    ///                  null
    /// @return 0 with an argument, 1 when there is none, 3 after a standard exception
    virtual result_t getFirstUnparsed(const wchar_t** out) = 0;

    /// Continues the walk that getFirstUnparsed began.
    ///
    /// @param[out] out  as for getFirstUnparsed
    /// @return as getFirstUnparsed
    virtual result_t getNextUnparsed(const wchar_t** out) = 0;

    virtual ~IParseResult() = default;
};

} // namespace kexa_3_3

#endif
