// Variables of the process's environment.
#ifndef KEXA_COMMAND_PLATFORM_ENVIRONMENT_H
#define KEXA_COMMAND_PLATFORM_ENVIRONMENT_H

#include <optional>
#include <string>
#include <string_view>

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Returns the value of a variable; nothing where it is not set. A variable that is set to nothing
// has an empty value.
//
// Names and values are UTF-8 on Windows, where case does not count in names, and bytes as they are
// elsewhere. No variable has a name that is empty or holds '=' or a zero character.
//
// Not to be called while another thread changes the environment.
[[nodiscard]] std::optional<std::string> environmentVariable(std::string_view name);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
