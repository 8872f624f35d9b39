// The kinds of runs for which the argument parsers are compiled.
#pragma once

namespace kexa_3_3
{

class IResultCollector;
class ParseResult;

// A run that may be traced and may have handlers, which may switch the trace at any event.
//
// CollectorType: of the collector that receives the values. The collector may be null.
template <class CollectorType>
struct WatchedRun
{
    using Collector = CollectorType;
    static constexpr bool mayBeWatched = true;
};

// The kind that is right for every parse.
using AnyRun = WatchedRun<IResultCollector>;

// The kind of nearly all parses: the trace is off, and the collector is a result of this library or
// null. It is compiled separately, without trace lines and without virtual calls of the result.
// Where a handler is called the run continues as a WatchedRun: the handler may switch the trace on,
// and only a WatchedRun offers values to handlers.
struct UsualRun
{
    using Collector = ParseResult;
    static constexpr bool mayBeWatched = false;
};

} // namespace kexa_3_3
