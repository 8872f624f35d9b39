// The arguments of main as the user typed them.
#ifndef KEXA_COMMAND_PLATFORM_PROCESS_ARGUMENTS_H
#define KEXA_COMMAND_PLATFORM_PROCESS_ARGUMENTS_H

#include <optional>
#include <string>
#include <vector>

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Returns the wide texts behind the arguments argv[1] to argv[argc - 1] of a narrow main, or
// nothing where these are UTF-8 (or other bytes) and to be taken as they are.
//
// Windows hands a narrow main its command line in the code page of the system, which loses what
// that page does not hold. Where the arguments are exactly what the code page makes of the last
// ones of the process's command line, they are read again from that line. A host may have dropped
// arguments from the front; argv[0] is not looked at. Arguments that the host has changed or made,
// and those that a C runtime has expanded from wildcards, are not those of the line.
//
// Elsewhere there is nothing to read again.
//
// argc, argv: as main has them; nothing is read where argc is below 2. A null argument is not one
// of
//             the line's.
[[nodiscard]] std::optional<std::vector<std::wstring>> rereadArguments(int argc,
                                                                       const char* const* argv);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
