// Runs the steps of a cycle of library calls, one allocation of which may be made to fail, and
// compares each with the same cycle without a failure.
#ifndef KEXA_TESTS_TOOLBOX_FAULTY_STEPS_H
#define KEXA_TESTS_TOOLBOX_FAULTY_STEPS_H

#include <functional>
#include <string>
#include <vector>

namespace faults
{

// What a step led to. Refused: it failed in the way that the headers tell.
struct Attempt
{
    bool refused = false;
    std::wstring answer;
};

// What a step answered, and what a host could see of all objects afterwards.
struct Recorded
{
    std::wstring answer;
    std::wstring state;
};

using Record = std::vector<Recorded>; // the first entry tells the state before all steps

// What a refused step may leave behind.
enum class Leftover
{
    nothing,
    something // as the header tells
};

class FaultySteps
{
public:
    // expected: what the cycle without a failure recorded; null for that cycle itself.
    // observe:  tells all that a host can see; makes no difference to what it looks at.
    FaultySteps(const Record* expected, std::function<std::wstring()> observe);

    // Makes an attempt. Where an allocation fails in it and it is refused, everything must be as
    // before, and a second attempt must succeed as if the first had never been made.
    void step(const char* title, const std::function<Attempt()>& attempt,
              Leftover leftover = Leftover::nothing);

    const Record& record() const { return m_record; }

private:
    void compareWithExpected(const Attempt& attempt, bool observed) const;

    const Record* m_expected;
    std::function<std::wstring()> m_observe;
    Record m_record;
    std::size_t m_index = 1;
};

} // namespace faults

#endif
