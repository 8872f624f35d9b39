#include "workloads/Sinks.h"

#include <iomanip>
#include <sstream>

namespace benchmarks
{

namespace
{

std::string toText(const Reading& reading)
{
    std::ostringstream text;
    text << std::setprecision(17);
    switch (reading.kind)
    {
    case Type::integer64:
        text << reading.integer;
        break;
    case Type::natural64:
        text << reading.natural;
        break;
    case Type::real:
        text << reading.real;
        break;
    default:
        text << '\'' << reading.text << '\'';
        break;
    }
    return text.str();
}

} // namespace

std::string Record::difference(const Workload& workload) const
{
    for (std::size_t option = 0; option < m_options.size(); ++option)
    {
        const Entry& entry = m_options[option];
        const Expectation& expectation = workload.expectations().at(option);
        const std::string where = "option '" + workload.options().at(option).name + "': ";
        const bool expectAbsent = expectation.count == 0 && expectation.readings.empty();
        if (entry.wasAbsent != expectAbsent)
        {
            return where + (expectAbsent ? "must be absent" : "must be present");
        }
        if (entry.count != expectation.count)
        {
            return where + "read " + std::to_string(entry.count) + " occurrences instead of " +
                   std::to_string(expectation.count);
        }
        if (entry.readings.size() != expectation.readings.size())
        {
            return where + "read " + std::to_string(entry.readings.size()) + " values instead of " +
                   std::to_string(expectation.readings.size());
        }
        for (std::size_t i = 0; i < entry.readings.size(); ++i)
        {
            if (entry.readings[i] != expectation.readings[i])
            {
                return where + "value " + std::to_string(i) + " is " + toText(entry.readings[i]) +
                       " instead of " + toText(expectation.readings[i]);
            }
        }
    }
    return {};
}

} // namespace benchmarks
