// Sinks, which receive what a contestant reads: a Tally while time is measured, a Record while the
// readings are checked. A contestant calls a sink for every option in the order of declaration, and
// for the values of an option in the order given.
#ifndef KEXA_BENCHMARKS_SINKS_H
#define KEXA_BENCHMARKS_SINKS_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "workloads/Workload.h"

namespace benchmarks
{

// Adds up every value and stores none, so that nearly all of the time measured is the contestant's.
class Tally
{
public:
    // Whether the contestant also looks for further values of options that are given once at most.
    static constexpr bool wants_all = false;

    void absent(std::size_t) noexcept { m_sum += 1; }
    void flag(std::size_t option, std::uint64_t count) noexcept { m_sum += (option + 7) * count; }
    void integer(std::size_t option, std::int64_t value) noexcept
    {
        m_sum += (option + 3) * static_cast<std::uint64_t>(value);
    }
    void natural(std::size_t option, std::uint64_t value) noexcept
    {
        m_sum += (option + 5) * value;
    }
    void real(std::size_t, double value) noexcept { m_real += value; }

    // Reads the first character and whether there is a second one: that costs as little for a
    // null-terminated string as for a counted one.
    template <class Character>
    void text(std::size_t option, const Character* value) noexcept
    {
        const auto first = static_cast<std::uint64_t>(value[0]);
        m_sum += (option + 11) * (first * 2 + (first != 0 && value[1] != 0 ? 1 : 0));
    }

    friend bool operator==(const Tally&, const Tally&) = default;

private:
    std::uint64_t m_sum = 0;
    double m_real = 0;
};

// Stores every reading.
class Record
{
public:
    static constexpr bool wants_all = true;

    explicit Record(std::size_t optionCount) : m_options(optionCount) {}

    void absent(std::size_t option) { m_options.at(option).wasAbsent = true; }
    void flag(std::size_t option, std::uint64_t count) { m_options.at(option).count += count; }
    void integer(std::size_t option, std::int64_t value) { add(option, Reading(value)); }
    void natural(std::size_t option, std::uint64_t value) { add(option, Reading(value)); }
    void real(std::size_t option, double value) { add(option, Reading(value)); }
    void text(std::size_t option, const char* value) { add(option, Reading(std::string(value))); }
    void text(std::size_t option, const wchar_t* value) { add(option, Reading(narrow(value))); }

    // Returns the first difference from what the workload expects, empty when there is none.
    std::string difference(const Workload& workload) const;

private:
    struct Entry
    {
        bool wasAbsent = false;
        std::uint64_t count = 0;
        std::vector<Reading> readings;
    };

    void add(std::size_t option, Reading reading)
    {
        m_options.at(option).readings.push_back(std::move(reading));
    }

    std::vector<Entry> m_options;
};

// Passes to a sink what a contestant must pass to it.
template <class Sink>
void replay(const Workload& workload, Sink& sink)
{
    for (std::size_t option = 0; option < workload.options().size(); ++option)
    {
        const Expectation& expectation = workload.expectations()[option];
        if (expectation.count == 0 && expectation.readings.empty())
        {
            sink.absent(option);
        }
        if (expectation.count != 0)
        {
            sink.flag(option, expectation.count);
        }
        for (const Reading& reading : expectation.readings)
        {
            switch (reading.kind)
            {
            case Type::integer64:
                sink.integer(option, reading.integer);
                break;
            case Type::natural64:
                sink.natural(option, reading.natural);
                break;
            case Type::real:
                sink.real(option, reading.real);
                break;
            default:
                sink.text(option, reading.text.c_str());
                break;
            }
        }
    }
}

// Returns the tally that a cycle over the workload must give.
inline Tally expectedTally(const Workload& workload)
{
    Tally tally;
    replay(workload, tally);
    return tally;
}

} // namespace benchmarks

#endif
