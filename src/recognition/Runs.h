// The ways in which the arguments of a parse are worked on.
#pragma once

namespace kexa_3_3
{

class IResultCollector;
class ParseResult;

// The trace is on, or a handler listens, which may switch it on and off at any event. What is
// filled is a collector of a type, or none.
template <class CollectorType>
struct WatchedRun
{
    using Collector = CollectorType;
    static constexpr bool mayBeWatched = true;
};

// What is right for every parse.
using AnyRun = WatchedRun<IResultCollector>;

// What nearly all of them need, compiled by itself: the trace is off, and what is filled is a
// result of this library, or none. Trace lines then cost nothing, and calls of the result no
// detour. It ends at the first event that a handler listens to: what follows is a watched run,
// since only that offers values to handlers.
struct UsualRun
{
    using Collector = ParseResult;
    static constexpr bool mayBeWatched = false;
};

} // namespace kexa_3_3
