// State that all measurements share: the current workload, the checks done, and whether one failed.
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

// Selects the combinations of workload and peer to register.
struct Selection
{
    std::size_t largest = static_cast<std::size_t>(-1); // size of a workload, inclusive
    bool slow = true; // whether to include combinations whose single cycle takes seconds

    // Returns those of the sizes that are selected.
    std::vector<std::size_t> sizes(std::vector<std::size_t> all) const;
};

class Session
{
public:
    // Returns the workload with the name, valid until the next call: only one workload is kept,
    // since the large ones take a lot of memory.
    const Workload& workload(const std::string& name);

    // Returns whether the peer reads the right values, and fails the measurement if not. Checks
    // each peer and workload only once.
    bool isRight(benchmark::State& state, const Peer& peer, const Workload& workload);

    // Ends a measurement with an error. The program's exit status is then a failure.
    void fail(benchmark::State& state, const std::string& reason);

    bool failed() const noexcept { return m_failed; }

private:
    std::unique_ptr<const Workload> m_workload;
    std::set<std::string> m_checked;
    bool m_failed = false;
};

} // namespace benchmarks

#endif
