#include "FaultySteps.h"

#include <utility>

#include <gtest/gtest.h>

#include "AllocationFaults.h"
#include "TextPrinting.h"

namespace faults
{

FaultySteps::FaultySteps(const Record* expected, std::function<std::wstring()> observe)
    : m_expected(expected), m_observe(std::move(observe))
{
}

void FaultySteps::step(const char* title, const std::function<Attempt()>& attempt,
                       Leftover leftover)
{
    SCOPED_TRACE(title);
    if (m_expected == nullptr && m_record.empty())
    {
        m_record.push_back({{}, m_observe()});
    }
    Attempt made = attempt();
    if (m_expected == nullptr)
    {
        ASSERT_FALSE(made.refused);
        m_record.push_back({made.returned, m_observe()});
        return;
    }
    ASSERT_LT(m_index, m_expected->size());
    const bool failed = lastCallFailed();
    if (made.refused)
    {
        EXPECT_TRUE(failed) << "refused although no allocation failed";
        if (leftover == Leftover::nothing)
        {
            EXPECT_EQ(m_observe(), (*m_expected)[m_index - 1].state)
                << "the failed step changed something";
        }
        made = attempt();
        EXPECT_FALSE(made.refused) << "the second attempt";
    }
    compareWithExpected(made, failed);
    ++m_index;
}

void FaultySteps::compareWithExpected(const Attempt& attempt, bool observed) const
{
    const Recorded& expected = (*m_expected)[m_index];
    EXPECT_EQ(attempt.returned, expected.returned);
    if (observed)
    {
        EXPECT_EQ(m_observe(), expected.state);
    }
}

} // namespace faults
