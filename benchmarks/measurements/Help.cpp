// Measures making the full help of many options. Each iteration has a new parser, and only making
// the help is timed.
#include "measurements/Measurements.h"
#include "support/ProcessorTime.h"

namespace benchmarks
{

namespace
{

// Returns whether the help lists every option.
bool isComplete(const std::string& help, const Workload& workload)
{
    std::size_t position = 0;
    for (const Option& option : workload.options())
    {
        // Most peers list the options in the order of declaration, so the search begins there.
        const std::string name = "-" + option.name;
        std::size_t found = help.find(name, position);
        found = found == std::string::npos ? help.find(name) : found;
        if (found == std::string::npos)
        {
            return false;
        }
        position = found;
    }
    return true;
}

void measureHelp(benchmark::State& state, Session& session, const Peer& peer,
                 const std::string& name)
{
    const Workload& workload = session.workload(name);
    if (!isComplete(peer.declare(workload)->help(), workload))
    {
        session.fail(state, "the help leaves an option out");
        return;
    }
    for (auto _ : state)
    {
        const std::unique_ptr<Host> host = peer.declare(workload);
        timeIteration(state, [&] { benchmark::DoNotOptimize(host->makeHelp()); });
    }
}

} // namespace

void registerHelp(Session& session, const Selection& selection)
{
    for (const std::size_t size : selection.sizes({20, 200, 2000}))
    {
        const std::string name = "declarations/" + std::to_string(size);
        for (const Peer& peer : allPeers())
        {
            if (!peer.abilities.help)
            {
                continue;
            }
            const std::string title = "help/" + name + "/" + peer.name;
            benchmark::RegisterBenchmark(title.c_str(),
                                         [&session, &peer, name](benchmark::State& state)
                                         { measureHelp(state, session, peer, name); })
                ->UseManualTime();
        }
    }
}

} // namespace benchmarks
