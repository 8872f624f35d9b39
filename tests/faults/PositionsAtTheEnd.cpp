// Positions near 2147483647, which means "no position": the position before it is followed by 0.
#include <string>
#include <vector>

#include "Host.h"
#include "recognition/ValueStoring.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Positions = std::vector<std::int32_t>;

constexpr std::int32_t last = no_position - 1;

class PositionsAtTheEnd : public testing::Test
{
protected:
    PositionsAtTheEnd()
    {
        host.addOption(L"name");
        host.addOption(L"flag", value_type_none);
    }
    ~PositionsAtTheEnd() override { setNextSequenceNumber(0); }

    Positions positions(const wchar_t* name)
    {
        Positions found;
        host.result().isPresent(name, 0, no_position);
        for (std::int32_t position = host.result().getNextPosition(); position != no_position;
             position = host.result().getNextPosition())
        {
            found.push_back(position);
        }
        return found;
    }

    Host host;
};

} // namespace

TEST_F(PositionsAtTheEnd, AreFollowedByZero)
{
    setNextSequenceNumber(last - 1);
    ASSERT_EQ(host.parse({L"--name=a,b,c,d"}), result_success);
    EXPECT_EQ(positions(L"name"), (Positions{last - 1, last, 0, 1}));
    EXPECT_EQ(nextSequenceNumber(), 2);
}

TEST_F(PositionsAtTheEnd, OfOccurrencesWithoutAValueAreNeverNoPosition)
{
    setNextSequenceNumber(last);
    ASSERT_EQ(host.parse({L"--flag", L"--name=a", L"--flag", L"--name=b"}), result_success);
    EXPECT_EQ(positions(L"flag"), (Positions{last, 0}));
    EXPECT_EQ(positions(L"name"), (Positions{last, 0}));
}

TEST_F(PositionsAtTheEnd, ArePassedToHandlers)
{
    Events events;
    RecordingHandler handler(events);
    Positions passed;
    handler.answerValue = [&passed](const wchar_t*, const ValueRecord& value)
    {
        passed.push_back(value.sequenceNumber);
        return true;
    };
    host.parser().addEventHandler(&handler);
    setNextSequenceNumber(last);
    ASSERT_EQ(host.parse({L"--name=a,b"}), result_success);
    EXPECT_EQ(passed, (Positions{last, 0}));
}

TEST_F(PositionsAtTheEnd, AreFoundInTheRangesThatContainThem)
{
    setNextSequenceNumber(last - 1);
    ASSERT_EQ(host.parse({L"--name=a,b"}), result_success);
    struct Row
    {
        std::int32_t from;
        std::int32_t to;
        std::int32_t present;
        std::vector<std::wstring> texts;
    };
    const std::vector<Row> table = {
        {0, no_position, 1, {L"a", L"b"}},
        {last - 1, last, 1, {L"a", L"b"}}, // the upper bound is inclusive for values
        {last, no_position, 1, {L"b"}},
        {last, last, 0, {}},
        {no_position, no_position, 0, {}},
        {-no_position - 1, no_position, 1, {L"a", L"b"}},
        {no_position, -no_position - 1, 0, {}},
        {0, last - 1, 0, {}},
    };
    for (const Row& row : table)
    {
        SCOPED_TRACE(testing::Message() << row.from << " to " << row.to);
        EXPECT_EQ(host.result().isPresent(L"name", row.from, row.to), row.present);
        std::vector<std::wstring> texts;
        for (const ReadValue& value : readValues(host.result(), L"name", row.from, row.to))
        {
            texts.push_back(value.text);
        }
        EXPECT_EQ(texts, row.texts);
    }
}

TEST_F(PositionsAtTheEnd, AfterTheWrapAreFoundInTheWholeRange)
{
    setNextSequenceNumber(last);
    ASSERT_EQ(host.parse({L"--name=a", L"--name=b"}), result_success);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a", L"b"}));
    EXPECT_STREQ(getLastValue(&host.result(), L"name", 0, no_position).as<const wchar_t*>(), L"b");
}
