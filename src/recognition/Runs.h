// The ways in which the arguments of a parse are worked on.
#pragma once

namespace kexa_3_3
{

class IResultCollector;
class ParseResult;

// Handlers listen, who may switch the trace on and off at any event, or the trace is on. What is
// filled is a collector of a type, or none.
template <class CollectorType>
struct WatchedRun
{
    using Collector = CollectorType;
    static constexpr bool mayBeWatched = true;
};

// What is right for every parse.
using AnyRun = WatchedRun<IResultCollector>;

// What nearly all of them need, compiled by itself: nobody listens, the trace is off, and what is
// filled is a result of this library, or none. Trace lines then cost nothing, and calls of the
// result no detour.
struct UsualRun
{
    using Collector = ParseResult;
    static constexpr bool mayBeWatched = false;
};

} // namespace kexa_3_3
