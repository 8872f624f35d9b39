// From main() to the exit code.
#ifndef KEXA_COMMAND_RUN_H
#define KEXA_COMMAND_RUN_H

#include <type_traits>
#include <utility>

#include "kexa/command/command.h"

namespace kexa
{
inline namespace v1
{

// Prints what a parse without a struct has to say: help and version to standard output, an error to
// standard error. Returns the exit code: 0, or 2 for an error.
template <class Settings>
int report(const Parsed<Settings>& parsed)
{
    return detail::report(parsed.outcome());
}

// Parses the arguments of main() or wmain(), prints warnings to standard error and calls the body with the struct, or with the Parsed
// struct where it takes that. Returns the exit code: the body's own (0 where it returns nothing),
// else that of report(). Catches nothing that the body throws.
template <class Settings, class Character, class Body>
int run(Command<Settings>& command, int argc, Character** argv, Body&& body)
{
    Parsed<Settings> parsed = command.parse(argc, argv);
    if (!parsed)
    {
        return report(parsed);
    }
    detail::warn(parsed.outcome());
    const auto call = [](auto&& function, auto&& argument) -> int
    {
        if constexpr (std::is_void_v<decltype(function(argument))>)
        {
            function(argument);
            return 0;
        }
        else
        {
            return function(argument);
        }
    };
    if constexpr (std::is_invocable_v<Body&, Settings&>)
    {
        return call(body, parsed.value());
    }
    else
    {
        return call(body, parsed);
    }
}

} // namespace v1
} // namespace kexa

#endif
