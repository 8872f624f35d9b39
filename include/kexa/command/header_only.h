// The bodies of everything that the layer compiles, for programs that define
// KEXA_COMMAND_HEADER_ONLY. Included by kexa/command.h, last.
#ifndef KEXA_COMMAND_HEADER_ONLY_H
#define KEXA_COMMAND_HEADER_ONLY_H

#include "kexa/command/source/Binder.cpp"
#include "kexa/command/source/Core.cpp"
#include "kexa/command/source/Declaring.cpp"
#include "kexa/command/source/Elements.cpp"
#include "kexa/command/source/Help.cpp"
#include "kexa/command/source/HelpEntries.cpp"
#include "kexa/command/source/Hints.cpp"
#include "kexa/command/source/LineBinding.cpp"
#include "kexa/command/source/LineChecks.cpp"
#include "kexa/command/source/Messages.cpp"
#include "kexa/command/source/Names.cpp"
#include "kexa/command/source/NameTable.cpp"
#include "kexa/command/source/Numbers.cpp"
#include "kexa/command/source/Parse.cpp"
#include "kexa/command/source/Report.cpp"
#include "kexa/command/source/Scan.cpp"
#include "kexa/command/source/ScanBundles.cpp"
#include "kexa/command/source/ScanFiles.cpp"
#include "kexa/command/source/ScanOptions.cpp"
#include "kexa/command/source/ScanPositionals.cpp"
#include "kexa/command/source/State.cpp"
#include "kexa/command/source/text/CodePoints.cpp"
#include "kexa/command/source/text/DisplayWidth.cpp"
#include "kexa/command/source/text/EditDistance.cpp"
#include "kexa/command/source/text/Encoding.cpp"
#include "kexa/command/source/text/LineSplitting.cpp"
#include "kexa/command/source/text/OptionFileReading.cpp"
#include "kexa/command/source/text/WindowsCommandLine.cpp"
#include "kexa/command/source/text/Wrapping.cpp"

#if defined(_WIN32)
#include "kexa/command/source/platform/Environment_windows.cpp"
#include "kexa/command/source/platform/FileReading_windows.cpp"
#include "kexa/command/source/platform/ProcessArguments_windows.cpp"
#include "kexa/command/source/platform/StandardStreams_windows.cpp"
#include "kexa/command/source/platform/TerminalWidth_windows.cpp"
#else
#include "kexa/command/source/platform/Environment_posix.cpp"
#include "kexa/command/source/platform/FileReading_posix.cpp"
#include "kexa/command/source/platform/ProcessArguments_posix.cpp"
#include "kexa/command/source/platform/StandardStreams_posix.cpp"
#include "kexa/command/source/platform/TerminalWidth_posix.cpp"
#endif

#endif
