/// @file
/// What a host implements to watch a parse, and to refuse values or take unknown arguments.
#ifndef KEXA_EVENT_HANDLER_H
#define KEXA_EVENT_HANDLER_H

#include <cstdint>

#include "kexa/variant.h"

namespace kexa_3_3
{

/// One converted value, as an event handler receives it.
struct ValueRecord
{
    /// The option's primary (first) name. Owned by the parser; lives as long as the parser.
    const wchar_t* optionName;

    /// The value in the option's type, after completion of an abbreviation and replacement of a
    /// deprecated value.
    vexkit2::variant_t value;

    /// The number of the value among all values converted in this process, from 0. It is the
    /// position that the parse result reports for the value. After 2147483646 it starts at 0 again.
    std::int32_t sequenceNumber;
};

/// Receives the events of a parse. Each operation does nothing and returns true unless overridden.
///
/// Ownership: a handler is registered with IParser::addEventHandler and belongs to the host, which
/// keeps it alive until it is removed or the parser is released.
///
/// Order and threads: several handlers are called in the order of their addresses, on the thread
/// that parses.
///
/// Exceptions: a handler may throw. A standard exception ends the parse with code 3, any other with
/// code 4.
///
/// During an event a handler may query, parse, declare, and add or remove handlers, itself
/// included; docs/reliability.md lists when each of these takes effect. It must not release the
/// parser, nor the result that is being filled.
class EventHandler
{
public:
    /// An option was recognised; its value is not yet converted.
    ///
    /// @param name  the option's primary name; lives as long as the parser
    /// @return ignored
    virtual bool onOptionParsed(const wchar_t* name)
    {
        static_cast<void>(name);
        return true;
    }

    /// A value was converted and passed the option's own checks.
    ///
    /// @param name   the option's primary name; lives as long as the parser
    /// @param value  the value, never null; valid during the call only
    /// @return false to refuse the value: the parse then ends with code 1 and a message, and
    ///         handlers with a higher address are not called
    virtual bool onValueParsed(const wchar_t* name, const ValueRecord* value)
    {
        static_cast<void>(name);
        static_cast<void>(value);
        return true;
    }

    /// No option and no positional option took the argument. Every handler is called.
    ///
    /// @param argument  the argument as given; lives as long as the parser
    /// @return false to take the argument: it is then no error, even under creation flag 2
    virtual bool onUnknownArgument(const wchar_t* argument)
    {
        static_cast<void>(argument);
        return true;
    }

protected:
    // Handlers are never destroyed through this interface. No operation is added here: IParser's
    // slots begin right after the three above.
    ~EventHandler() = default;
    EventHandler() = default;
    /// Copies nothing: the base has no members. A copy is not registered.
    EventHandler(const EventHandler&) = default;
    /// Copies nothing: the base has no members.
    EventHandler& operator=(const EventHandler&) = default;
};

} // namespace kexa_3_3

#endif
