// What event handlers add to a parse, beside the bare calls of the same handlers.
#include <array>

#include "measurements/Session.h"
#include "peers/KexaHost.h"

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

constexpr std::size_t most_handlers = 4;

void measureHandlers(benchmark::State& state, Session& session, const std::string& name,
                     std::size_t count)
{
    const Workload& workload = session.workload(name);
    const Tally expected = expectedTally(workload);
    for (auto _ : state)
    {
        std::array<Counter, most_handlers> counters;
        Tally tally;
        {
            KexaHost host(workload);
            for (std::size_t i = 0; i < count; ++i)
            {
                host.parser().addEventHandler(&counters[i]);
            }
            host.parse();
            host.read(tally);
        }
        for (std::size_t i = 0; i < count; ++i)
        {
            if (counters[i].values() != workload.arguments().size() || tally != expected)
            {
                session.fail(state, "a handler missed an event");
                return;
            }
        }
    }
}

// Both events of each argument, called through the interface.
void measureCalls(benchmark::State& state, Session& session, const std::string& name)
{
    const std::size_t events = session.workload(name).arguments().size();
    Counter counter;
    kexa_3_3::EventHandler* handler = &counter;
    benchmark::DoNotOptimize(handler); // so that the calls stay virtual
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
        for (const std::size_t count : {std::size_t{0}, std::size_t{1}, std::size_t{4}})
        {
            const std::string title = "handlers/" + name + "/" + std::to_string(count);
            benchmark::RegisterBenchmark(title.c_str(),
                                         [&session, name, count](benchmark::State& state)
                                         { measureHandlers(state, session, name, count); });
        }
        const std::string title = "handlers/" + name + "/bare calls";
        benchmark::RegisterBenchmark(title.c_str(), [&session, name](benchmark::State& state)
                                     { measureCalls(state, session, name); });
    }
}

} // namespace benchmarks
