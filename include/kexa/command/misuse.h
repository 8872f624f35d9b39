// Reports mistakes in declarations.
#ifndef KEXA_COMMAND_MISUSE_H
#define KEXA_COMMAND_MISUSE_H

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "kexa/command/configuration.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Throws std::logic_error with the text. Without exceptions: prints it on standard error and
// aborts. In a header, so that the program's own mode counts.
[[noreturn]] inline void raiseMisuse(const std::string& text)
{
#if KEXA_COMMAND_EXCEPTIONS
    throw std::logic_error(text);
#else
    std::fprintf(stderr, "%s\n", text.c_str());
    std::abort();
#endif
}

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
