// Command lines of C++ programs: a struct whose members are bound to options, actions and
// positional arguments. Include this header alone.
#ifndef KEXA_COMMAND_H
#define KEXA_COMMAND_H

#include "kexa/command/run.h"
#include "kexa/kexa.h"

#if defined(KEXA_COMMAND_HEADER_ONLY)
#include "kexa/command/header_only.h"
#endif

#endif
