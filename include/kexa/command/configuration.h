// What every header of the command layer begins with: namespaces and the ways of building it.
//
// KEXA_COMMAND_HEADER_ONLY, defined by the program in all of its units: everything is compiled into
// the program, and the library kexa::command is not linked.
// KEXA_COMMAND_NO_PATHS: <filesystem> is not included, which takes half the time to compile.
#ifndef KEXA_COMMAND_CONFIGURATION_H
#define KEXA_COMMAND_CONFIGURATION_H

#if defined(__cpp_exceptions) || defined(_CPPUNWIND)
#define KEXA_COMMAND_EXCEPTIONS 1
#else
#define KEXA_COMMAND_EXCEPTIONS 0
#endif

namespace kexa
{
// The version of the layer is part of every mangled name, so that units that were compiled against
// different versions do not link.
inline namespace v1
{
}
} // namespace kexa

#endif
