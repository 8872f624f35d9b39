// Runs the steps of a cycle of library calls, in which one allocation may fail, and compares each
// step with the record of a cycle without a failure.
#ifndef KEXA_TESTS_TOOLBOX_FAULTY_STEPS_H
#define KEXA_TESTS_TOOLBOX_FAULTY_STEPS_H

#include <functional>
#include <string>
#include <vector>

namespace faults
{

// The outcome of a step. refused: it failed in a way that the headers document.
struct Attempt
{
    bool refused = false;
    std::wstring returned;
};

// What a step returned, and what a host can observe of all objects after it.
struct Recorded
{
    std::wstring returned;
    std::wstring state;
};

using Record = std::vector<Recorded>; // the first entry is the state before all steps

// What a refused step may have changed.
enum class Leftover
{
    nothing,
    something // as the header documents
};

class FaultySteps
{
public:
    // expected: the record of a cycle without a failure; null for that cycle itself.
    // observe:  returns everything that a host can observe, without changing it.
    FaultySteps(const Record* expected, std::function<std::wstring()> observe);

    // Runs a step. If an allocation fails and the step is refused, nothing may have changed, and a
    // second attempt must succeed with the expected outcome.
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
