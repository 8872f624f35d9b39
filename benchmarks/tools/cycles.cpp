// Runs cycles of one peer over one workload without measuring them, for callgrind.
//
//   benchmark_cycles list                           names of the peers
//   benchmark_cycles check WORKLOAD...              fails unless every peer reads the right values
//   benchmark_cycles run PEER WORKLOAD COUNT        COUNT cycles
//   benchmark_cycles declare PEER WORKLOAD COUNT    COUNT declarations of all options
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <string>
#include <vector>

#include "peers/Peer.h"
#include "workloads/Catalogue.h"

namespace
{

using benchmarks::Peer;
using benchmarks::Workload;

int checkAll(const std::vector<std::string>& names)
{
    int failures = 0;
    for (const std::string& name : names)
    {
        const auto workload = benchmarks::makeWorkload(name);
        for (const Peer& peer : benchmarks::allPeers())
        {
            if (!peer.canRun(name))
            {
                continue;
            }
            const auto begin = std::chrono::steady_clock::now();
            const std::string difference = benchmarks::check(peer, *workload);
            const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
            std::printf("%-28s %-24s %9.3f s  %s\n", name.c_str(), peer.name.c_str(), time.count(),
                        difference.empty() ? "right" : difference.c_str());
            std::fflush(stdout);
            failures += difference.empty() ? 0 : 1;
        }
    }
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

int runCycles(const Peer& peer, const Workload& workload, long count)
{
    const benchmarks::Tally expected = benchmarks::expectedTally(workload);
    for (long i = 0; i < count; ++i)
    {
        if (peer.cycle(workload) != expected && peer.abilities.reads)
        {
            std::fprintf(stderr, "wrong values read\n");
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}

int dispatch(const std::vector<std::string>& arguments)
{
    const std::string& command = arguments.at(0);
    if (command == "list")
    {
        for (const Peer& peer : benchmarks::allPeers())
        {
            std::printf("%s\n", peer.name.c_str());
        }
        return EXIT_SUCCESS;
    }
    if (command == "check")
    {
        return checkAll({arguments.begin() + 1, arguments.end()});
    }
    const Peer& peer = benchmarks::peerNamed(arguments.at(1));
    const auto workload = benchmarks::makeWorkload(arguments.at(2));
    const long count = std::stol(arguments.at(3));
    if (command == "declare")
    {
        for (long i = 0; i < count; ++i)
        {
            peer.declare(*workload);
        }
        return EXIT_SUCCESS;
    }
    return runCycles(peer, *workload, count);
}

} // namespace

int main(int argc, char** argv)
{
    try
    {
        return dispatch({argv + 1, argv + argc});
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "benchmark_cycles: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
