// The Windows API without the macros that would rename others' functions.
#ifndef KEXA_COMMAND_PLATFORM_WINDOWS_H
#define KEXA_COMMAND_PLATFORM_WINDOWS_H

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#endif
