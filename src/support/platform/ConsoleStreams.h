// Wide output streams to standard output and standard error.
#pragma once

#include <ostream>
#include <string_view>

namespace kexa_3_3
{

// Return the stream to standard output or standard error. It writes UTF-8 in every locale, and
// UTF-16 to a Windows console. A lone surrogate is written as U+FFFD; the halves of a pair may come
// in two insertions.
//
// Insertions are not buffered, so that output keeps its order with that of C and C++ streams which
// flush to the same descriptor. A failed write sets the stream's bad bit; the next call of ucout()
// or ucerr() clears it. The streams are created on first use and live until the process ends. All
// threads share them; they are not synchronized.
std::wostream& ucout();
std::wostream& ucerr();

namespace internal
{

enum class ConsoleTarget
{
    output,
    error
};

// Writes all of the text to the target, encoded as above, and returns whether that succeeded.
// Throws std::bad_alloc. Has no state of its own, so it may be called on any thread. Implemented by
// ConsoleStreams_posix.cpp and ConsoleStreams_windows.cpp.
bool writeConsole(ConsoleTarget target, std::wstring_view text);

} // namespace internal

} // namespace kexa_3_3
