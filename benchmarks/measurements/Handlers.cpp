// Measures what event handlers add to a parse, and direct calls of the same handlers.
#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "measurements/Measurements.h"
#include "peers/KexaHost.h"
#include "support/ProcessorTime.h"

namespace benchmarks
{

namespace
{

class Counter final : public kexa_3_3::EventHandler
{
public:
    bool onOptionParsed(const wchar_t* name) override
    {
        m_seen += static_cast<std::size_t>(name[0]);
        return true;
    }
    bool onValueParsed(const wchar_t* /*name*/, const kexa_3_3::ValueRecord* value) override
    {
        m_seen += static_cast<std::size_t>(value->sequenceNumber);
        ++m_values;
        return true;
    }

    std::size_t values() const noexcept { return m_values; }

private:
    std::size_t m_seen = 0;
    std::size_t m_values = 0;
};

constexpr std::array<std::size_t, 3> handler_counts = {0, 1, 4};
constexpr int turns = 100; // even, so that both orders occur equally often

// Returns the seconds of a parse with that many handlers, a negative number where a handler missed
// an event or a value is wrong.
double parseTime(const Workload& workload, std::size_t count)
{
    std::array<Counter, handler_counts.back()> counters;
    KexaHost host(workload);
    for (std::size_t i = 0; i < count; ++i)
    {
        host.parser().addEventHandler(&counters.at(i));
    }
    const double begin = processorTime();
    host.parse();
    const double time = processorTime() - begin;
    Tally tally;
    host.read(tally);
    const bool right = std::all_of(counters.begin(), counters.begin() + count,
                                   [&workload](const Counter& counter)
                                   { return counter.values() == workload.arguments().size(); });
    return right && tally == expectedTally(workload) ? time : -1;
}

double medianNanoseconds(std::vector<double>& seconds)
{
    const auto middle = seconds.begin() + static_cast<std::ptrdiff_t>(seconds.size() / 2);
    std::nth_element(seconds.begin(), middle, seconds.end());
    return *middle * 1e9;
}

// Times the parse alone, with none, one and several handlers in turns: the differences are so small
// that changes in the speed of the machine must affect all of them alike. What one handler adds is
// the median of the differences between the parses with none and with one, which follow each other
// in alternating order.
//
// The report reads the times from the counters whose names begin with "ns ".
void measureHandlers(benchmark::State& state, Session& session, const std::string& name)
{
    const Workload& workload = session.workload(name);
    std::array<std::vector<double>, handler_counts.size()> times;
    std::vector<double> added;
    std::array<std::size_t, handler_counts.size()> order = {0, 1, 2};
    for (auto _ : state)
    {
        for (const std::size_t which : order)
        {
            const double time = parseTime(workload, handler_counts.at(which));
            if (time < 0)
            {
                session.fail(state, "a handler missed an event, or a value read is wrong");
                return;
            }
            times.at(which).push_back(time);
        }
        added.push_back(times[1].back() - times[0].back());
        std::swap(order[0], order[1]);
    }
    for (std::size_t i = 0; i < times.size(); ++i)
    {
        state.counters["ns " + std::to_string(handler_counts.at(i))] =
            medianNanoseconds(times.at(i));
    }
    state.counters["ns added"] = medianNanoseconds(added);
}

// Calls the handler directly, through its interface, for both events of each argument.
void measureCalls(benchmark::State& state, Session& session, const std::string& name)
{
    const std::size_t events = session.workload(name).arguments().size();
    Counter counter;
    kexa_3_3::EventHandler* handler = &counter;
    benchmark::DoNotOptimize(handler); // keeps the calls virtual
    const kexa_3_3::ValueRecord record = {L"name", vexkit2::variant_t(), 1};
    for (auto _ : state)
    {
        for (std::size_t i = 0; i < events; ++i)
        {
            handler->onOptionParsed(record.optionName);
            handler->onValueParsed(record.optionName, &record);
        }
    }
    benchmark::DoNotOptimize(counter);
}

} // namespace

void registerHandlers(Session& session, const Selection& selection)
{
    for (const std::size_t size : selection.sizes({100, 10000}))
    {
        const std::string name = "arguments/" + std::to_string(size);
        benchmark::RegisterBenchmark(("handlers/" + name + "/parses").c_str(),
                                     [&session, name](benchmark::State& state)
                                     { measureHandlers(state, session, name); })
            ->Iterations(turns);
        const std::string title = "handlers/" + name + "/bare calls";
        benchmark::RegisterBenchmark(title.c_str(), [&session, name](benchmark::State& state)
                                     { measureCalls(state, session, name); });
    }
}

} // namespace benchmarks
