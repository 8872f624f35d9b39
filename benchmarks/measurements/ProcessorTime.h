// Time that this thread spent on a processor: what else the machine does meanwhile counts little.
#ifndef KEXA_BENCHMARKS_PROCESSOR_TIME_H
#define KEXA_BENCHMARKS_PROCESSOR_TIME_H

#include <ctime>

#include <benchmark/benchmark.h>

namespace benchmarks
{

// In seconds, from an arbitrary start.
inline double processorTime()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// Runs the action and counts it as the time of one iteration (needs UseManualTime).
template <class Action>
void timeIteration(benchmark::State& state, Action action)
{
    const double begin = processorTime();
    action();
    state.SetIterationTime(processorTime() - begin);
}

} // namespace benchmarks

#endif
