// All that a host can see of one parse, from the library or from the naive implementation.
#ifndef NAIVE_OUTCOME_H
#define NAIVE_OUTCOME_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "NaiveParser.h"

namespace naive
{

// The answers to every query about one name in one range of positions.
struct NameAnswers
{
    std::wstring name;
    std::int32_t from = 0;
    std::int32_t to = no_position;
    bool present = false;
    std::vector<ValueAnswer> afterPresent; // getNextValue behind isPresent, up to its refusal
    std::vector<ValueAnswer> values;       // getFirstValue, then getNextValue up to its refusal
    std::vector<std::int32_t> positions;   // getNextPosition behind a getFirstValue, up to its end
    ValueAnswer last;                      // getLastValue
};

struct Outcome
{
    std::int32_t code = 0;
    std::wstring message; // as the parser gives it, also after success
    std::vector<Event> events;
    std::vector<std::wstring> unparsed;
    std::vector<NameAnswers> names;
    std::int32_t nextNumber = 0; // the number that the next converted value gets
};

// How much is asked of a result.
enum class Questions
{
    wholeRange, // every name, over all positions
    severalRanges
};

bool operator==(const Event& left, const Event& right);
bool operator==(const ValueAnswer& left, const ValueAnswer& right);
bool operator==(const NameAnswers& left, const NameAnswers& right);
bool operator==(const Outcome& left, const Outcome& right);
inline bool operator!=(const Outcome& left, const Outcome& right)
{
    return !(left == right);
}

// The outcome for a reader, one fact in each line.
std::wstring describe(const Outcome& outcome);

// Every name of every option, in table order.
std::vector<std::wstring> namesOf(const Registry& registry);

// No parse here gives as many answers: a walk that gets there does not end.
constexpr std::size_t endlessWalk = 10000;

// Asks a result: naive::Result, or anything with its query operations.
template <class SomeResult>
NameAnswers askName(SomeResult& result, const std::wstring& name, std::int32_t from,
                    std::int32_t to)
{
    NameAnswers answers;
    answers.name = name;
    answers.from = from;
    answers.to = to;
    answers.present = result.isPresent(name, from, to);
    do
    {
        answers.afterPresent.push_back(result.getNextValue());
    } while (answers.afterPresent.back().code == 0 && answers.afterPresent.size() < endlessWalk);
    // The walk goes on behind a first refusal: a value at exactly `to` is still given.
    answers.values.push_back(result.getFirstValue(name, from, to));
    do
    {
        answers.values.push_back(result.getNextValue());
    } while (answers.values.back().code == 0 && answers.values.size() < endlessWalk);
    result.getFirstValue(name, from, to);
    do
    {
        answers.positions.push_back(result.getNextPosition());
    } while (answers.positions.back() != no_position && answers.positions.size() < endlessWalk);
    if (answers.values.size() < endlessWalk)
    {
        answers.last = result.getLastValue(name, from, to);
    }
    return answers;
}

template <class SomeResult>
std::vector<NameAnswers> askResult(SomeResult& result, const std::vector<std::wstring>& names,
                                   std::int32_t firstNumber, Questions questions)
{
    std::vector<NameAnswers> answers;
    for (const std::wstring& name : names)
    {
        answers.push_back(askName(result, name, 0, no_position));
        if (questions == Questions::severalRanges)
        {
            answers.push_back(askName(result, name, firstNumber, firstNumber));
            answers.push_back(askName(result, name, firstNumber, firstNumber + 1));
            answers.push_back(askName(result, name, firstNumber + 1, firstNumber + 2));
            answers.push_back(askName(result, name, no_position, no_position));
        }
    }
    return answers;
}

} // namespace naive

#endif
