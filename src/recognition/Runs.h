// The ways in which the arguments of a parse are worked on.
#pragma once

namespace kexa_3_3
{

class IResultCollector;
class ParseResult;

// What is right for every parse: handlers may listen, who may switch the trace on and off at any
// event, and any collector is filled, or none.
struct AnyRun
{
    using Collector = IResultCollector;
    static constexpr bool mayBeWatched = true;
};

// What nearly all of them need, compiled by itself: nobody listens, the trace is off, and what is
// filled is a result of this library, or none. Trace lines then cost nothing, and calls of the
// result no detour.
struct UsualRun
{
    using Collector = ParseResult;
    static constexpr bool mayBeWatched = false;
};

} // namespace kexa_3_3
