// Queries for the values and positions of one option.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;

using Texts = std::vector<std::wstring>;
using Numbers = std::vector<std::int32_t>;

Numbers restOfPositions(IParseResult& result)
{
    Numbers positions;
    for (std::int32_t next = result.getNextPosition(); next != no_position;
         next = result.getNextPosition())
    {
        positions.push_back(next);
    }
    return positions;
}

// A result with four values of "name", from arguments 0, 1 and 2,3. `base`: position of the first.
class QueryHost : public Host
{
public:
    QueryHost() : base(prepare()) { EXPECT_EQ(parse({L"--name=0", L"-n=1", L"--name=2,3"}), 0); }

    Texts walk(std::int32_t from, std::int32_t to)
    {
        Texts texts;
        for (const ReadValue& value : readValues(result(), L"name", base + from, base + to))
        {
            texts.push_back(value.text);
        }
        return texts;
    }

    const std::int32_t base;

private:
    std::int32_t prepare()
    {
        addOption(L"name,n");
        addOption(L"other").setDefaultValue(vexkit2::variant_t(L"default"));
        return nextPosition();
    }
};

TEST(ResultQueries, EveryNameWalksAllValuesInOrder)
{
    QueryHost host;
    const std::vector<ReadValue> expected = {{L"0", 13, host.base},
                                             {L"1", 13, host.base + 1},
                                             {L"2", 13, host.base + 2},
                                             {L"3", 13, host.base + 3}};
    EXPECT_EQ(host.values(L"name"), expected);
    EXPECT_EQ(host.values(L"n"), expected);
}

TEST(ResultQueries, WalkEndsWithCodeOneAndTheNotFoundValue)
{
    QueryHost host;
    Value value;
    EXPECT_EQ(host.result().getFirstValue(&value, L"name", 0, no_position), 0);
    EXPECT_EQ(value.status, 0);
    EXPECT_STREQ(static_cast<const wchar_t*>(value.data), L"0");
    for (int index = 1; index < 4; ++index)
    {
        EXPECT_EQ(host.result().getNextValue(&value, L"name"), 0);
    }
    for (int again = 0; again < 2; ++again)
    {
        EXPECT_EQ(host.result().getNextValue(&value, L"name"), 1);
        EXPECT_EQ(value.status, 1);
        EXPECT_EQ(value.data, nullptr);
        EXPECT_EQ(value.position, no_position);
        EXPECT_EQ(value.value.kind(), 17);
    }
}

TEST(ResultQueries, UnknownNameIsNotFound)
{
    QueryHost host;
    for (const wchar_t* name : {L"", L"nam", L"Name", L"names", L" name"})
    {
        Value value;
        value.data = name;
        EXPECT_EQ(host.result().isPresent(name, 0, no_position), 0) << toUtf8(name);
        EXPECT_EQ(host.result().getFirstValue(&value, name, 0, no_position), 1) << toUtf8(name);
        EXPECT_EQ(value.status, 1);
        EXPECT_EQ(value.data, nullptr);
        EXPECT_EQ(host.result().getNextValue(&value, name), 1) << toUtf8(name);
        EXPECT_EQ(host.result().getNextPosition(), no_position) << toUtf8(name);
    }
    EXPECT_EQ(host.result().isPresent(nullptr, 0, no_position), 0);
    EXPECT_EQ(host.result().getFirstValue(nullptr, nullptr, 0, no_position), 1);
}

TEST(ResultQueries, UnknownNameEndsThePreviousWalk)
{
    QueryHost host;
    EXPECT_EQ(host.result().getFirstValue(nullptr, L"name", 0, no_position), 0);
    EXPECT_EQ(host.result().isPresent(L"unknown", 0, no_position), 0);
    EXPECT_EQ(host.result().getNextValue(nullptr, L"name"), 1);
    EXPECT_EQ(host.result().getNextPosition(), no_position);
}

TEST(ResultQueries, QueriesOfANewResultFindNothing)
{
    Host host;
    Value value;
    const wchar_t* text = L"untouched";
    EXPECT_EQ(host.result().getNextValue(&value, L"name"), 1);
    EXPECT_EQ(host.result().getNextPosition(), no_position);
    EXPECT_EQ(host.result().isPresent(L"name", 0, no_position), 0);
    EXPECT_EQ(host.result().getFirstUnparsed(&text), 1);
    EXPECT_EQ(host.result().getNextUnparsed(&text), 1);
    EXPECT_STREQ(text, L"untouched");
}

TEST(ResultQueries, NullOutIsAllowed)
{
    QueryHost host;
    EXPECT_EQ(host.result().getFirstValue(nullptr, L"name", 0, no_position), 0);
    Value value;
    EXPECT_EQ(host.result().getNextValue(nullptr, L"name"), 0);
    EXPECT_EQ(host.result().getNextValue(&value, L"name"), 0);
    EXPECT_STREQ(value.as<const wchar_t*>(), L"2");
    EXPECT_EQ(host.result().getNextValue(nullptr, L"name"), 0);
    EXPECT_EQ(host.result().getNextValue(nullptr, L"name"), 1);
    EXPECT_EQ(host.result().getFirstValue(nullptr, L"other", 0, no_position), 0);
}

TEST(ResultQueries, NextValueIgnoresItsName)
{
    QueryHost host;
    Value value;
    host.result().getFirstValue(nullptr, L"name", 0, no_position);
    for (const wchar_t* name : {L"other", L"unknown", static_cast<const wchar_t*>(nullptr)})
    {
        EXPECT_EQ(host.result().getNextValue(&value, name), 0);
    }
    EXPECT_STREQ(value.as<const wchar_t*>(), L"3");
}

TEST(ResultRanges, FirstOccurrenceLiesBelowTheEndWhileAValueMayLieOnIt)
{
    QueryHost host;
    const struct
    {
        std::int32_t from;
        std::int32_t to;
        bool present;
        Texts values;
    } rows[] = {
        {0, 4, true, {L"0", L"1", L"2", L"3"}},
        {0, 3, true, {L"0", L"1", L"2", L"3"}},
        {0, 2, true, {L"0", L"1", L"2"}},
        {0, 1, true, {L"0", L"1"}},
        {0, 0, false, {}},
        {1, 1, false, {}},
        {1, 2, true, {L"1", L"2"}},
        {1, 4, true, {L"1", L"2", L"3"}},
        {3, 4, true, {L"3"}},
        {3, 3, false, {}},
        {4, 9, false, {}},
        {2, 1, false, {}},
        {-9, 1, true, {L"0", L"1"}},
        {-9, 0, false, {}},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(std::to_string(row.from) + " to " + std::to_string(row.to));
        EXPECT_EQ(host.result().isPresent(L"name", host.base + row.from, host.base + row.to),
                  row.present ? 1 : 0);
        EXPECT_EQ(host.walk(row.from, row.to), row.values);
    }
}

TEST(ResultRanges, HighestEndIsExcludedLikeAnyOther)
{
    QueryHost host;
    EXPECT_EQ(host.result().isPresent(L"name", 0, no_position), 1);
    EXPECT_EQ(host.result().isPresent(L"name", no_position, no_position), 0);
    EXPECT_EQ(host.result().isPresent(L"name", -2147483647 - 1, -1), 0);
}

TEST(ResultRanges, LaterPositionsOfAValuelessOptionAreNotBounded)
{
    Host host;
    host.addOption(L"flag", value_type_none);
    host.addOption(L"name");
    const std::int32_t base = nextPosition();
    ASSERT_EQ(host.parse({L"--name=0,1", L"--flag", L"--name=2,3,4", L"--flag"}), 0);
    EXPECT_EQ(readValues(host.result(), L"flag", base, base + 4),
              (std::vector<ReadValue>{{L"", 17, base + 2}, {L"", 17, base + 5}}));
    EXPECT_EQ(readValues(host.result(), L"flag", base + 3, base + 9),
              (std::vector<ReadValue>{{L"", 17, base + 5}}));
    EXPECT_EQ(readValues(host.result(), L"flag", base + 3, base + 5), std::vector<ReadValue>());
    EXPECT_EQ(host.result().isPresent(L"flag", base, base + 2), 0);
    EXPECT_EQ(host.result().isPresent(L"flag", base, base + 3), 1);
}

TEST(ResultPositions, WalkGoesFromTheFirstInTheRangeToTheLastOfAll)
{
    QueryHost host;
    const std::int32_t base = host.base;
    ASSERT_EQ(host.result().isPresent(L"name", base + 1, base + 2), 1);
    EXPECT_EQ(restOfPositions(host.result()), (Numbers{base + 1, base + 2, base + 3}));
    EXPECT_EQ(host.result().getNextPosition(), no_position);
}

TEST(ResultPositions, ValuesAndPositionsAreWalkedIndependently)
{
    QueryHost host;
    const std::int32_t base = host.base;
    Value value;
    host.result().getFirstValue(&value, L"name", 0, no_position);
    EXPECT_EQ(host.result().getNextPosition(), base);
    host.result().getNextValue(&value, L"name");
    EXPECT_EQ(value.position, base + 1);
    EXPECT_EQ(restOfPositions(host.result()), (Numbers{base + 1, base + 2, base + 3}));
    host.result().getNextValue(&value, L"name");
    EXPECT_EQ(value.position, base + 2);
}

TEST(ResultPositions, ValuelessOptionIsWalkedByEither)
{
    Host host;
    host.addOption(L"flag", value_type_none);
    host.addOption(L"name");
    const std::int32_t base = nextPosition();
    ASSERT_EQ(host.parse({L"--flag", L"--name=x", L"--flag", L"--name=x", L"--flag"}), 0);
    Value value;
    host.result().getFirstValue(&value, L"flag", 0, no_position);
    EXPECT_EQ(value.position, base);
    EXPECT_EQ(host.result().getNextPosition(), base + 1);
    host.result().getNextValue(&value, L"flag");
    EXPECT_EQ(value.position, base + 2);
    EXPECT_EQ(host.result().getNextPosition(), no_position);
    EXPECT_EQ(host.result().getNextValue(&value, L"flag"), 1);
}

TEST(ResultPositions, OutOfRangeQueryLeavesNoPosition)
{
    QueryHost host;
    EXPECT_EQ(host.result().isPresent(L"name", host.base + 7, no_position), 0);
    EXPECT_EQ(host.result().getNextPosition(), no_position);
}

TEST(ResultCursor, EveryQueryReplacesTheOneCursor)
{
    Host host;
    host.addOption(L"first");
    host.addOption(L"second");
    ASSERT_EQ(host.parse({L"--first=1,2", L"--second=3,4"}), 0);
    Value value;
    host.result().getFirstValue(&value, L"first", 0, no_position);
    host.result().getFirstValue(&value, L"second", 0, no_position);
    host.result().getNextValue(&value, L"first");
    EXPECT_STREQ(value.as<const wchar_t*>(), L"4");

    host.result().getFirstValue(&value, L"first", 0, no_position);
    host.result().isPresent(L"second", 0, no_position);
    host.result().getNextValue(&value, L"first");
    EXPECT_STREQ(value.as<const wchar_t*>(), L"3"); // the walk starts again after isPresent
}

TEST(ResultCursor, LastValueMovesTheCursorToo)
{
    QueryHost host;
    Value value;
    host.result().getFirstValue(&value, L"name", 0, no_position);
    getLastValue(&host.result(), L"name", 0, no_position);
    EXPECT_EQ(host.result().getNextValue(&value, L"name"), 1);
}

} // namespace
