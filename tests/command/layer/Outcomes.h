// Parses a command line written as in a shell and shows all that came of it as one text.
#ifndef KEXA_TESTS_COMMAND_LAYER_OUTCOMES_H
#define KEXA_TESTS_COMMAND_LAYER_OUTCOMES_H

#include <string>

#include "kexa/command.h"

namespace toolbox
{

// Returns an error as "code message | hint | option index file:line"; what is absent is left out.
std::string shown(const kexa::Error& error);

// Returns `values` where the line is right, else the error or the text that was asked for.
template <class Settings, class Values>
std::string outcomeOf(kexa::Command<Settings>& command, const std::string& line,
                      const Values& values)
{
    const kexa::Parsed<Settings> parsed = command.parseLine(line);
    if (parsed)
    {
        return values(*parsed);
    }
    return parsed.status() == kexa::Status::error ? shown(parsed.error()) : parsed.text();
}

} // namespace toolbox

#endif
