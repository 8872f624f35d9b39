// The help of a command.
#ifndef KEXA_COMMAND_PRIVATE_HELP_H
#define KEXA_COMMAND_PRIVATE_HELP_H

#include <cstddef>
#include <string>

#include "State.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Returns what stands at the left of an entry: "  -m, --mode=VALUE".
std::string leadOf(const Definition& definition, const Declaration& declaration);

// Returns what stands at the right: the description, and in brackets what else there is to know.
std::string textOfEntry(const State& state, const Declaration& declaration);

// Returns a positional argument as the usage line shows it: "path...", "[target]".
std::string argumentForm(const Declaration& declaration);

// Returns the whole help, or that of one topic, which may be abbreviated. width: in cells.
// Precondition: the state is prepared.
std::string helpText(const State& state, std::size_t width);
std::string topicText(const State& state, std::string_view topic, std::size_t width);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
