#include "support/Session.h"

#include "workloads/Catalogue.h"

namespace benchmarks
{

std::vector<std::size_t> Selection::sizes(std::vector<std::size_t> all) const
{
    std::erase_if(all, [this](std::size_t size) { return size > largest; });
    return all;
}

const Workload& Session::workload(const std::string& name)
{
    if (m_workload == nullptr || m_workload->name() != name)
    {
        m_workload.reset();
        m_workload = makeWorkload(name);
    }
    return *m_workload;
}

bool Session::isRight(benchmark::State& state, const Peer& peer, const Workload& workload)
{
    if (!m_checked.insert(peer.name + "/" + workload.name()).second)
    {
        return true;
    }
    const std::string difference = check(peer, workload);
    if (!difference.empty())
    {
        fail(state, difference);
    }
    return difference.empty();
}

void Session::fail(benchmark::State& state, const std::string& reason)
{
    m_failed = true;
    state.SkipWithError(reason.c_str());
}

} // namespace benchmarks
