// Processor time of this thread, which other load on the machine disturbs less than it does elapsed
// time.
#ifndef KEXA_BENCHMARKS_PROCESSOR_TIME_H
#define KEXA_BENCHMARKS_PROCESSOR_TIME_H

#include <ctime>

#include <benchmark/benchmark.h>

namespace benchmarks
{

// Returns seconds since an arbitrary start.
inline double processorTime()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// Runs the action and reports its processor time as that of one iteration. Precondition: the
// benchmark was registered with UseManualTime().
template <class Action>
void timeIteration(benchmark::State& state, Action action)
{
    const double begin = processorTime();
    action();
    state.SetIterationTime(processorTime() - begin);
}

} // namespace benchmarks

#endif
