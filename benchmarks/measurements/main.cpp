// Runs every measurement of time. Options besides those of Google Benchmark:
//
//   --smoke      only small sizes, each for a moment: checks that all run and read the right values
//   --skip-slow  without the combinations whose single cycle takes seconds
#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>

#include "measurements/Measurements.h"

namespace
{

// Removes the flag from the arguments and returns whether it was there.
bool takeFlag(std::vector<char*>& arguments, std::string_view flag)
{
    const auto kept = std::remove(arguments.begin(), arguments.end(), flag);
    const bool found = kept != arguments.end();
    arguments.erase(kept, arguments.end());
    return found;
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<char*> arguments(argv, argv + argc);
    benchmarks::Selection selection;
    selection.slow = !takeFlag(arguments, "--skip-slow");
    char shortest[] = "--benchmark_min_time=0.0001";
    if (takeFlag(arguments, "--smoke"))
    {
        selection.largest = 200;
        arguments.push_back(shortest);
    }

    benchmarks::Session session;
    benchmarks::registerCycles(session, selection);
    benchmarks::registerDeclarations(session, selection);
    benchmarks::registerHelp(session, selection);
    benchmarks::registerOptionFiles(session, selection);
    benchmarks::registerWalks(session, selection);
    benchmarks::registerHandlers(session, selection);

    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
    {
        return EXIT_FAILURE;
    }
    const std::size_t run = benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return run == 0 || session.failed() ? EXIT_FAILURE : EXIT_SUCCESS;
}
