// Wide output streams to standard output and standard error.
#pragma once

#include <ostream>
#include <string_view>

namespace kexa_3_3
{

// Write UTF-8 whatever the locale; a Windows console gets UTF-16. Lone surrogates are written as
// U+FFFD, but the halves of a pair may come in two insertions. Every insertion is written at once,
// so that the order with flushed C and C++ streams over the same descriptor is kept. The streams
// are made on first use and live until the process ends. A failed write sets the stream's bad bit.
std::wostream& ucout();
std::wostream& ucerr();

namespace internal
{

enum class ConsoleTarget
{
    output,
    error
};

// Writes all of the text to the target as described above. Answers whether that succeeded. One of
// these for each platform.
bool writeConsole(ConsoleTarget target, std::wstring_view text);

} // namespace internal

} // namespace kexa_3_3
