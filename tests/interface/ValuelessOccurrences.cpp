// Occurrences without a value, such as an empty positional argument, among occurrences with one.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;

using Positions = std::vector<std::int32_t>;
using Values = std::vector<ReadValue>;

// Positions from the first one in the range to the last one of all.
Positions positions(IParseResult& result, std::int32_t from = 0, std::int32_t to = no_position)
{
    Positions all;
    if (result.isPresent(L"file", from, to) == 0)
    {
        return all;
    }
    for (std::int32_t next = result.getNextPosition(); next != no_position;
         next = result.getNextPosition())
    {
        all.push_back(next);
    }
    return all;
}

// An occurrence without a value has the number that the next value gets.
TEST(ValuelessOccurrences, AreWalkedByPositionWhileValuesAreWalkedAlone)
{
    Host host;
    host.addPositional(L"file");
    const std::int32_t base = nextPosition();
    ASSERT_EQ(host.parse({L"a", L"", L"b", L"", L"", L"c", L""}), 0);
    EXPECT_EQ(positions(host.result()),
              (Positions{base, base + 1, base + 1, base + 2, base + 2, base + 2, base + 3}));
    EXPECT_EQ(host.values(L"file"),
              (Values{{L"a", 13, base}, {L"b", 13, base + 1}, {L"c", 13, base + 2}}));
}

TEST(ValuelessOccurrences, AreReturnedWhereThereAreNoValues)
{
    Host host;
    host.addPositional(L"file");
    const std::int32_t base = nextPosition();
    ASSERT_EQ(host.parse({L"", L"", L""}), 0);
    EXPECT_EQ(positions(host.result()), (Positions{base, base, base}));
    EXPECT_EQ(host.values(L"file"), (Values{{L"", 17, base}, {L"", 17, base}, {L"", 17, base}}));
    Value value;
    ASSERT_EQ(host.result().getFirstValue(&value, L"file", 0, no_position), 0);
    EXPECT_EQ(value.data, nullptr);
}

TEST(ValuelessOccurrences, AreHiddenByALaterValue)
{
    Host host;
    host.addPositional(L"file");
    const std::int32_t base = nextPosition();
    ASSERT_EQ(host.parse({L"", L""}), 0);
    EXPECT_EQ(host.values(L"file"), (Values{{L"", 17, base}, {L"", 17, base}}));
    ASSERT_EQ(host.parse({L"x", L""}), 0);
    EXPECT_EQ(host.values(L"file"), (Values{{L"x", 13, base}}));
    EXPECT_EQ(positions(host.result()), (Positions{base, base, base, base + 1}));
}

TEST(ValuelessOccurrences, MayBeTheOnlyOnesInARange)
{
    Host host;
    host.addPositional(L"file");
    const std::int32_t base = nextPosition();
    ASSERT_EQ(host.parse({L"", L"a", L"b", L"", L""}), 0); // positions 0, 0, 1, 2, 2
    EXPECT_EQ(positions(host.result(), base + 2), (Positions{base + 2, base + 2}));
    EXPECT_EQ(readValues(host.result(), L"file", base + 2), Values());
    EXPECT_EQ(host.result().isPresent(L"file", base + 2, base + 3), 1);
    EXPECT_EQ(host.result().isPresent(L"file", base + 3, no_position), 0);
    EXPECT_EQ(readValues(host.result(), L"file", base + 1, base + 2),
              (Values{{L"b", 13, base + 1}}));
    EXPECT_EQ(readValues(host.result(), L"file", base, base + 1),
              (Values{{L"a", 13, base}, {L"b", 13, base + 1}}));
}

TEST(ValuelessOccurrences, WalksOfValuesAndPositionsDoNotDisturbEachOther)
{
    Host host;
    host.addPositional(L"file");
    const std::int32_t base = nextPosition();
    ASSERT_EQ(host.parse({L"", L"a", L"", L"b"}), 0);
    IParseResult& result = host.result();
    Value value;
    ASSERT_EQ(result.getFirstValue(&value, L"file", 0, no_position), 0);
    EXPECT_STREQ(value.as<const wchar_t*>(), L"a");
    EXPECT_EQ(result.getNextPosition(), base);
    EXPECT_EQ(result.getNextPosition(), base);
    ASSERT_EQ(result.getNextValue(&value, nullptr), 0);
    EXPECT_STREQ(value.as<const wchar_t*>(), L"b");
    EXPECT_EQ(result.getNextPosition(), base + 1);
    EXPECT_EQ(result.getNextValue(&value, nullptr), 1);
    EXPECT_EQ(result.getNextPosition(), base + 1);
    EXPECT_EQ(result.getNextPosition(), no_position);
}

TEST(ValuelessOccurrences, MayBeAnyAmongThousands)
{
    Host host;
    host.addPositional(L"file");
    std::vector<const wchar_t*> arguments;
    Values values;
    Positions expected;
    std::int32_t next = nextPosition();
    for (int number = 0; number < 6000; ++number)
    {
        // Runs of 500 without and with a value, then mixed.
        const bool hasValue = number < 4000 ? number / 500 % 2 == 1 : number % 3 != 0;
        arguments.push_back(hasValue ? L"x" : L"");
        expected.push_back(next);
        if (hasValue)
        {
            values.push_back({L"x", 13, next});
            ++next;
        }
    }
    ASSERT_EQ(parse(host.parser(), arguments, &host.result()), 0);
    EXPECT_EQ(host.values(L"file"), values);
    EXPECT_EQ(positions(host.result()), expected);
}

// Each value of a list is an occurrence.
TEST(ValuelessOccurrences, StandBetweenTheValuesOfLists)
{
    Host host;
    host.addPositional(L"file");
    const std::int32_t base = nextPosition();
    ASSERT_EQ(host.parse({L"a,b,c", L"", L"d,e"}), 0);
    EXPECT_EQ(positions(host.result()),
              (Positions{base, base + 1, base + 2, base + 3, base + 3, base + 4}));
    EXPECT_EQ(host.texts(L"file"), (std::vector<std::wstring>{L"a", L"b", L"c", L"d", L"e"}));
}

} // namespace
