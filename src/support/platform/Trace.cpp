#include "support/platform/Trace.h"

#include "support/platform/ConsoleStreams.h"

namespace kexa_3_3
{

namespace internal
{

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
std::atomic<bool> trace_switch{false};

} // namespace internal

namespace
{

// The stream is destroyed before its buffer.
struct NullStream
{
    NullStream() : stream(&buffer) {}

    internal::basic_nullbuf buffer;
    std::wostream stream;
};

} // namespace

std::wostream& traceStream()
{
    if (traceIsOn())
    {
        return ucout();
    }
    static NullStream discarding;
    return discarding.stream;
}

} // namespace kexa_3_3
