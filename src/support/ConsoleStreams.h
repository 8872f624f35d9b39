// Wide output streams to standard output and standard error.
#pragma once

#include <ostream>
#include <string_view>

namespace kexa_3_3
{

// Write UTF-8 whatever the locale; a Windows console gets UTF-16. Lone surrogates are written as
// U+FFFD, but the halves of a pair may come in two insertions. Every insertion is written at once,
// so that the order with flushed C and C++ streams over the same descriptor is kept. The streams
// are made on first use and live until the process ends. A failed write sets the stream's bad bit,
// until the stream is asked for again. They are shared by all threads and guarded by nothing.
std::wostream& ucout();
std::wostream& ucerr();

namespace internal
{

enum class ConsoleTarget
{
    output,
    error
};

// Writes all of the text to the target as described above. Answers whether that succeeded; throws
// std::bad_alloc. Any thread may call it at any time. One of these for each platform.
bool writeConsole(ConsoleTarget target, std::wstring_view text);

} // namespace internal

} // namespace kexa_3_3
