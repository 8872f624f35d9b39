#include "support/Trace.h"

#include "support/ConsoleStreams.h"

namespace kexa_3_3
{

namespace internal
{

bool trace_switch = false; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

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
    if (internal::trace_switch)
    {
        return ucout();
    }
    static NullStream discarding;
    return discarding.stream;
}

} // namespace kexa_3_3
