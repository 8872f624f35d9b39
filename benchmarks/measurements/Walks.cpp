// Measures reading all values of one option: the first time after a parse, and later times.
#include "measurements/Measurements.h"
#include "peers/KexaHost.h"
#include "support/ProcessorTime.h"

namespace benchmarks
{

namespace
{

void measureWalk(benchmark::State& state, Session& session, const std::string& name, bool first)
{
    const Workload& workload = session.workload(name);
    if (!session.isRight(state, allPeers().front(), workload))
    {
        return;
    }
    const Tally expected = expectedTally(workload);
    const auto parsed = [&]
    {
        auto host = std::make_unique<KexaHost>(workload);
        host->parse();
        return host;
    };
    std::unique_ptr<KexaHost> host = parsed();
    for (auto _ : state)
    {
        if (first)
        {
            host = parsed();
        }
        Tally tally;
        timeIteration(state, [&] { host->read(tally); });
        if (tally != expected)
        {
            session.fail(state, "wrong values read");
            return;
        }
    }
}

} // namespace

void registerWalks(Session& session, const Selection& selection)
{
    for (const std::size_t size : selection.sizes({100, 1000, 10000, 100000, 1000000}))
    {
        const std::string name = "values/" + std::to_string(size);
        for (const bool first : {true, false})
        {
            const std::string title = "walk/" + name + (first ? "/first walk" : "/later walk");
            benchmark::RegisterBenchmark(title.c_str(),
                                         [&session, name, first](benchmark::State& state)
                                         { measureWalk(state, session, name, first); })
                ->UseManualTime();
        }
    }
}

} // namespace benchmarks
