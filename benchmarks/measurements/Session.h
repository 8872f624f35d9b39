// What all measurements share: the workload at hand, the check before timing, and failures.
#ifndef KEXA_BENCHMARKS_SESSION_H
#define KEXA_BENCHMARKS_SESSION_H

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "peers/Peer.h"
#include "workloads/Workload.h"

namespace benchmarks
{

// Which combinations are registered.
struct Selection
{
    std::size_t largest = static_cast<std::size_t>(-1); // size of a workload
    bool slow = true; // with the combinations of which one cycle takes seconds

    std::vector<std::size_t> sizes(std::vector<std::size_t> all) const;
};

class Session
{
public:
    // The workload with this name. Only the last one is kept: the large ones take a lot of memory.
    const Workload& workload(const std::string& name);

    // Whether the peer reads the right values; looked at once for each peer and workload.
    bool isRight(benchmark::State& state, const Peer& peer, const Workload& workload);

    // Ends a measurement that went wrong; the program then answers with a failure.
    void fail(benchmark::State& state, const std::string& reason);

    bool failed() const noexcept { return m_failed; }

private:
    std::unique_ptr<const Workload> m_workload;
    std::set<std::string> m_checked;
    bool m_failed = false;
};

// Names are "cycle/<workload>/<peer>", "declare/...", "help/...", "file/...", "walk/..." and
// "handlers/...". The session outlives the measurements.
void registerCycles(Session& session, const Selection& selection);
void registerDeclarations(Session& session, const Selection& selection);
void registerHelp(Session& session, const Selection& selection);
void registerOptionFiles(Session& session, const Selection& selection);
void registerWalks(Session& session, const Selection& selection);
void registerHandlers(Session& session, const Selection& selection);

} // namespace benchmarks

#endif
