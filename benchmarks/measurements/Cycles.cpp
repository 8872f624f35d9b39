// Measures cycles (create, declare, parse, read everything, release) and declarations alone
// (create, declare, release).
#include "measurements/Measurements.h"

namespace benchmarks
{

namespace
{

void measureCycle(benchmark::State& state, Session& session, const Peer& peer,
                  const std::string& name)
{
    const Workload& workload = session.workload(name);
    // Where one cycle takes long, comparing the tally of the measured cycle is the only check.
    if (!peer.isSlow(name) && !session.isRight(state, peer, workload))
    {
        return;
    }
    const Tally expected = expectedTally(workload);
    for (auto _ : state)
    {
        if (peer.cycle(workload) != expected && peer.abilities.reads)
        {
            session.fail(state, "wrong values read");
            return;
        }
    }
}

void measureDeclarations(benchmark::State& state, Session& session, const Peer& peer,
                         const std::string& name)
{
    const Workload& workload = session.workload(name);
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(peer.declare(workload));
    }
}

template <class Measure>
void registerForPeers(const std::string& family, const std::string& name,
                      const Selection& selection, Measure measure)
{
    for (const Peer& peer : allPeers())
    {
        const bool slow = peer.isSlow(name);
        if (!peer.canRun(name) || (slow && !selection.slow))
        {
            continue;
        }
        const std::string title = family + "/" + name + "/" + peer.name;
        auto* const registered = benchmark::RegisterBenchmark(
            title.c_str(),
            [measure, &peer, name](benchmark::State& state) { measure(state, peer, name); });
        if (slow)
        {
            registered->Iterations(1);
        }
    }
}

} // namespace

void registerCycles(Session& session, const Selection& selection)
{
    const auto add = [&](const std::string& name)
    {
        registerForPeers(
            "cycle", name, selection,
            [&session](benchmark::State& state, const Peer& peer, const std::string& workload)
            { measureCycle(state, session, peer, workload); });
    };
    const auto addSizes = [&](const std::string& kind, const std::vector<std::size_t>& sizes)
    {
        for (const std::size_t size : selection.sizes(sizes))
        {
            add(kind + "/" + std::to_string(size));
        }
    };
    add("small");
    addSizes("arguments", {10, 100, 1000, 10000, 100000, 1000000});
    addSizes("options", {20, 200, 2000, 20000});
    addSizes("abbreviations", {20, 200, 2000, 20000});
    addSizes("typed", {70, 700, 7000, 70000});
    addSizes("texts", {100, 1000, 10000, 100000});
    addSizes("integers", {100, 1000, 10000, 100000});
    for (const std::size_t entries : selection.sizes({10, 100, 1000, 10000}))
    {
        addSizes("allowed/" + std::to_string(entries),
                 entries == 1000 ? std::vector<std::size_t>{1000, 10000, 100000}
                                 : std::vector<std::size_t>{10000});
        addSizes("allowed_prefix/" + std::to_string(entries), {10000});
    }
}

void registerDeclarations(Session& session, const Selection& selection)
{
    for (const std::size_t size : selection.sizes({20, 200, 2000, 20000}))
    {
        registerForPeers(
            "declare", "declarations/" + std::to_string(size), selection,
            [&session](benchmark::State& state, const Peer& peer, const std::string& workload)
            { measureDeclarations(state, session, peer, workload); });
    }
}

} // namespace benchmarks
