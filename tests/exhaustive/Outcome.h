// Everything that a host can observe of one parse, by the library or by the naive implementation.
#ifndef NAIVE_OUTCOME_H
#define NAIVE_OUTCOME_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "NaiveParser.h"

namespace naive
{

// The results of all queries for one name in one range of positions.
struct QueriedName
{
    std::wstring name;
    std::int32_t from = 0;
    std::int32_t to = no_position;
    bool present = false;
    std::vector<QueriedValue> afterPresent; // getNextValue after isPresent, up to the first failure
    std::vector<QueriedValue> values;       // getFirstValue, then getNextValue up to a failure
    std::vector<std::int32_t> positions; // getNextPosition after getFirstValue, up to no_position
    QueriedValue last;                   // getLastValue
};

struct Outcome
{
    std::int32_t code = 0;
    std::wstring message; // of getErrorMessage(), also after success
    std::vector<Event> events;
    std::vector<std::wstring> unparsed;
    std::vector<QueriedName> names;
    std::int32_t nextPosition = 0; // of the next converted value
};

// The ranges of positions that are queried for each name.
enum class QueryRanges
{
    wholeRange,
    severalRanges
};

bool operator==(const Event& left, const Event& right);
bool operator==(const QueriedValue& left, const QueriedValue& right);
bool operator==(const QueriedName& left, const QueriedName& right);
bool operator==(const Outcome& left, const Outcome& right);
inline bool operator!=(const Outcome& left, const Outcome& right)
{
    return !(left == right);
}

// Formats an outcome for a failure message.
std::wstring describe(const Outcome& outcome);

// Returns all names of all options, in the order of declaration.
std::vector<std::wstring> namesOf(const Registry& registry);

// A walk of this length is taken for endless. No parse of these tests stores as many values.
constexpr std::size_t endlessWalk = 10000;

// Runs all queries for a name. SomeResult: naive::Result, or a class with the same operations.
template <class SomeResult>
QueriedName queryName(SomeResult& result, const std::wstring& name, std::int32_t from,
                      std::int32_t to)
{
    QueriedName queried;
    queried.name = name;
    queried.from = from;
    queried.to = to;
    queried.present = result.isPresent(name, from, to);
    do
    {
        queried.afterPresent.push_back(result.getNextValue());
    } while (queried.afterPresent.back().code == 0 && queried.afterPresent.size() < endlessWalk);
    // getNextValue is called even if getFirstValue fails, because it also returns a value at `to`
    // itself.
    queried.values.push_back(result.getFirstValue(name, from, to));
    do
    {
        queried.values.push_back(result.getNextValue());
    } while (queried.values.back().code == 0 && queried.values.size() < endlessWalk);
    result.getFirstValue(name, from, to);
    do
    {
        queried.positions.push_back(result.getNextPosition());
    } while (queried.positions.back() != no_position && queried.positions.size() < endlessWalk);
    if (queried.values.size() < endlessWalk)
    {
        queried.last = result.getLastValue(name, from, to);
    }
    return queried;
}

template <class SomeResult>
std::vector<QueriedName> queryResult(SomeResult& result, const std::vector<std::wstring>& names,
                                     std::int32_t firstPosition, QueryRanges ranges)
{
    std::vector<QueriedName> queried;
    for (const std::wstring& name : names)
    {
        queried.push_back(queryName(result, name, 0, no_position));
        if (ranges == QueryRanges::severalRanges)
        {
            queried.push_back(queryName(result, name, firstPosition, firstPosition));
            queried.push_back(queryName(result, name, firstPosition, firstPosition + 1));
            queried.push_back(queryName(result, name, firstPosition + 1, firstPosition + 2));
            queried.push_back(queryName(result, name, no_position, no_position));
        }
    }
    return queried;
}

} // namespace naive

#endif
