// All function bodies of the command layer, for header-only mode.
#ifndef KEXA_COMMAND_BODIES_H
#define KEXA_COMMAND_BODIES_H

#ifndef KEXA_COMMAND_HEADER_ONLY
#error "Bodies.h is for header-only mode: define KEXA_COMMAND_HEADER_ONLY in the whole program"
#endif

#include "text/CodePoints.cpp"
#include "text/DisplayWidth.cpp"
#include "text/EditDistance.cpp"
#include "text/Encoding.cpp"
#include "text/LineSplitting.cpp"
#include "text/OptionFileReading.cpp"
#include "text/WindowsCommandLine.cpp"
#include "text/Wrapping.cpp"

#ifdef _WIN32
#include "platform/Environment_windows.cpp"
#include "platform/FileReading_windows.cpp"
#include "platform/ProcessArguments_windows.cpp"
#include "platform/StandardStreams_windows.cpp"
#include "platform/TerminalWidth_windows.cpp"
#else
#include "platform/Environment_posix.cpp"
#include "platform/FileReading_posix.cpp"
#include "platform/ProcessArguments_posix.cpp"
#include "platform/StandardStreams_posix.cpp"
#include "platform/TerminalWidth_posix.cpp"
#endif

#endif
