// Lists of values in one argument, refused values, and the numbers of values.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::variant_t;

using Texts = std::vector<std::wstring>;

Texts outcomeOf(const wchar_t* argument, int expectedCode = 0)
{
    Host host;
    host.addOption(L"list,l");
    EXPECT_EQ(host.parse({argument}), expectedCode) << toUtf8(argument);
    EXPECT_EQ(host.isPresent(L"list"), expectedCode == 0) << toUtf8(argument);
    return expectedCode == 0 ? host.texts(L"list") : Texts{host.message()};
}

TEST(ValueLists, PiecesAreTheRunsWithoutASeparator)
{
    const struct
    {
        const wchar_t* argument;
        Texts pieces;
    } rows[] = {
        {L"--list=a", {L"a"}},
        {L"--list=a,b", {L"a", L"b"}},
        {L"--list=a,b,c", {L"a", L"b", L"c"}},
        {L"--list=a,,b", {L"a", L"b"}},
        {L"--list=,a,", {L"a"}},
        {L"--list=,,,a,,,b,,,", {L"a", L"b"}},
        {L"--list=,a", {L"a"}},
        {L"--list=a,", {L"a"}},
        {L"--list= a , b ", {L" a ", L" b "}},
        {L"--list= , ", {L" ", L" "}},
        {L"--list=a,a,a", {L"a", L"a", L"a"}},
        {L"--list a,b", {L"a", L"b"}},
        {L"--list=\u2014,\U0001F600", {L"\u2014", L"\U0001F600"}},
        {L"--list=a;b\uFF0Cc", {L"a;b\uFF0Cc"}},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(outcomeOf(row.argument), row.pieces) << toUtf8(row.argument);
    }
}

TEST(ValueLists, SeparatorsAloneAreRefused)
{
    EXPECT_EQ(outcomeOf(L"--list=,", 2),
              Texts{L"No value parsed in argument ',' for option 'list'"});
    EXPECT_EQ(outcomeOf(L"--list=,,,,", 2),
              Texts{L"No value parsed in argument ',,,,' for option 'list'"});
    EXPECT_EQ(outcomeOf(L"-l ,,", 2), Texts{L"No value parsed in argument ',,' for option 'list'"});
}

TEST(ValueLists, SeparatorsAloneInTheNextArgumentAreRefused)
{
    Host host;
    host.addOption(L"list").setSeparator(L';');
    EXPECT_EQ(host.parse({L"--list", L";;"}), 2);
    EXPECT_EQ(host.message(), L"No value parsed in argument ';;' for option 'list'");
    EXPECT_EQ(host.parse({L"--list", L","}), 0);
}

TEST(ValueLists, ManyPiecesAreKeptInOrder)
{
    std::wstring argument = L"--number=";
    Texts expected;
    for (int index = 0; index < 10000; ++index)
    {
        expected.push_back(std::to_wstring(index));
        argument += expected.back() + L",";
    }
    Host host;
    host.addOption(L"number", value_type_integer);
    EXPECT_EQ(host.parse({argument.c_str()}), 0);
    EXPECT_EQ(host.texts(L"number"), expected);
}

TEST(ValueLists, OnePieceThatDoesNotConvertRefusesTheOccurrence)
{
    Host host;
    host.addOption(L"number", value_type_integer);
    EXPECT_EQ(host.parse({L"--number=1", L"--number=2,3,x,4", L"--number=5"}), 2);
    EXPECT_EQ(host.message(), L"Value validation problem in argument '--number=2,3,x,4': Option "
                              L"'number' can not parse 'x' value, requires a type 'integer' here.");
    EXPECT_EQ(host.texts(L"number"), Texts{L"1"});
}

TEST(RefusedValues, HandlerEndsTheParseWithCodeOne)
{
    Host host;
    host.addOption(L"list,l");
    Events events;
    RecordingHandler handler(events);
    handler.answerValue = [](const wchar_t*, const ValueRecord& value)
    {
        return value.value != variant_t(L"b");
    };
    host.parser().addEventHandler(&handler);

    EXPECT_EQ(host.parse({L"-l=before", L"--list=a,b,c", L"-l=after", L"--", L"left"}), 1);
    EXPECT_EQ(host.message(),
              L"Value 'a,b,c' is not valid for option 'list' in argument '--list=a,b,c'");
    EXPECT_EQ(host.texts(L"list"), Texts{L"before"});
    EXPECT_EQ(host.unparsed(), Texts());
    EXPECT_EQ(events, (Events{L"option list", L"value list 'before'", L"option list",
                              L"value list 'a'", L"value list 'b'"}));
}

TEST(RefusedValues, NextArgumentIsNamedAsTheValue)
{
    Host host;
    host.addOption(L"name").setSeparator(0);
    Events events;
    RecordingHandler handler(events);
    handler.answerValue = [](const wchar_t*, const ValueRecord&)
    {
        return false;
    };
    host.parser().addEventHandler(&handler);
    EXPECT_EQ(host.parse({L"--name", L"a,b"}), 1);
    EXPECT_EQ(host.message(), L"Value 'a,b' is not valid for option 'name' in argument '--name'");
    EXPECT_FALSE(host.isPresent(L"name"));
}

TEST(RefusedValues, BooleanAndPositionalValuesAreRefusedAlike)
{
    Host host;
    host.addOption(L"flag", value_type_boolean);
    host.addPositional(L"file");
    Events events;
    RecordingHandler handler(events);
    handler.answerValue = [](const wchar_t*, const ValueRecord&)
    {
        return false;
    };
    host.parser().addEventHandler(&handler);
    EXPECT_EQ(host.parse({L"--no-flag"}), 1);
    EXPECT_EQ(host.message(), L"Value '0' is not valid for option 'flag' in argument '--no-flag'");
    EXPECT_EQ(host.parse({L"x"}), 1);
    EXPECT_EQ(host.message(), L"Value 'x' is not valid for option 'file' in argument 'x'");
}

TEST(RefusedValues, FailingFirstOccurrenceLeavesTheDefault)
{
    Host host;
    host.addOption(L"number", value_type_integer).setDefaultValue(variant_t(vexkit2::s32_t{7}));
    EXPECT_EQ(host.parse({L"--number=1,x"}), 2);
    EXPECT_EQ(host.values(L"number"), (std::vector<ReadValue>{{L"7", 6, no_position}}));
}

// The numbers of all values in the order of their events.
std::vector<std::int32_t> sequenceNumbers(Host& host,
                                          std::initializer_list<const wchar_t*> arguments)
{
    std::vector<std::int32_t> numbers;
    Events events;
    RecordingHandler handler(events);
    handler.answerValue = [&numbers](const wchar_t*, const ValueRecord& value)
    {
        numbers.push_back(value.sequenceNumber);
        return true;
    };
    host.parser().addEventHandler(&handler);
    host.parse(arguments);
    host.parser().removeEventHandler(&handler);
    return numbers;
}

TEST(SequenceNumbers, EveryValueGetsTheNextAcrossOptionsParsesAndParsers)
{
    Host host;
    host.addOption(L"list");
    host.addOption(L"flag", value_type_boolean);
    host.addPositional(L"file");
    Host other;
    other.addOption(L"number", value_type_integer);
    const std::int32_t base = nextPosition();
    EXPECT_EQ(sequenceNumbers(host, {L"--list=a,b", L"--flag", L"x", L"--list=c"}),
              (std::vector<std::int32_t>{base, base + 1, base + 2, base + 3, base + 4}));
    EXPECT_EQ(sequenceNumbers(other, {L"--number=5"}), std::vector<std::int32_t>{base + 5});
    EXPECT_EQ(sequenceNumbers(host, {L"--no-flag"}), std::vector<std::int32_t>{base + 6});
    EXPECT_EQ(
        host.values(L"list"),
        (std::vector<ReadValue>{{L"a", 13, base}, {L"b", 13, base + 1}, {L"c", 13, base + 4}}));
    EXPECT_EQ(host.values(L"flag"),
              (std::vector<ReadValue>{{L"1", 0, base + 2}, {L"0", 0, base + 6}}));
}

TEST(SequenceNumbers, ValueThatDoesNotConvertTakesNoNumber)
{
    Host host;
    host.addOption(L"number", value_type_integer);
    host.addOption(L"mode").addAllowedValue(variant_t(L"a"));
    const std::int32_t base = nextPosition();
    host.parse({L"--number=x"});
    host.parse({L"--mode=x"});
    host.parse({L"--mode=,"});
    host.parse({L"--number=1,2,x"});
    EXPECT_EQ(nextPosition(), base + 3); // one each for 1, 2 and this query
}

TEST(SequenceNumbers, RefusedValueTakesANumber)
{
    Host host;
    host.addOption(L"list");
    Events events;
    RecordingHandler handler(events);
    handler.answerValue = [](const wchar_t*, const ValueRecord&)
    {
        return false;
    };
    host.parser().addEventHandler(&handler);
    const std::int32_t base = nextPosition();
    EXPECT_EQ(host.parse({L"--list=a,b"}), 1);
    host.parser().removeEventHandler(&handler);
    EXPECT_EQ(host.parse({L"--list=c"}), 0);
    EXPECT_EQ(host.values(L"list"), (std::vector<ReadValue>{{L"c", 13, base + 1}}));
}

TEST(SequenceNumbers, OccurrenceWithoutAValueHasTheNextNumberWithoutTakingIt)
{
    Host host;
    host.addOption(L"flag", value_type_none);
    host.addOption(L"name");
    const std::int32_t base = nextPosition();
    EXPECT_EQ(host.parse({L"--flag", L"--flag", L"--name=a", L"--flag", L"--name=b"}), 0);
    EXPECT_EQ(host.values(L"flag"),
              (std::vector<ReadValue>{{L"", 17, base}, {L"", 17, base}, {L"", 17, base + 1}}));
    EXPECT_EQ(host.values(L"name"),
              (std::vector<ReadValue>{{L"a", 13, base}, {L"b", 13, base + 1}}));
}

TEST(ValueRecords, HandlerSeesThePrimaryNameTheValueAndTheNumber)
{
    Host host;
    host.addOption(L"number,n", value_type_unsigned64);
    Events events;
    RecordingHandler handler(events);
    const std::int32_t base = nextPosition();
    int seen = 0;
    handler.answerValue = [&](const wchar_t* name, const ValueRecord& value)
    {
        EXPECT_STREQ(name, L"number");
        EXPECT_STREQ(value.optionName, L"number");
        EXPECT_EQ(value.value.kind(), 9);
        EXPECT_EQ(value.value.get<vexkit2::u64_t>(), 31U);
        EXPECT_EQ(value.sequenceNumber, base);
        ++seen;
        return true;
    };
    host.parser().addEventHandler(&handler);
    EXPECT_EQ(host.parse({L"-n=0x1F"}), 0);
    EXPECT_EQ(seen, 1);
}

TEST(EmptyValues, EmptyPositionalArgumentIsAnOccurrenceWithoutAValue)
{
    Host host;
    host.addPositional(L"file");
    Events events;
    RecordingHandler handler(events);
    host.parser().addEventHandler(&handler);
    const std::int32_t base = nextPosition();
    EXPECT_EQ(host.parse({L"", L"a", L""}), 0);
    EXPECT_EQ(events, (Events{L"option file", L"option file", L"value file 'a'", L"option file"}));
    EXPECT_EQ(host.values(L"file"), (std::vector<ReadValue>{{L"a", 13, base}}));
    EXPECT_TRUE(host.isPresent(L"file"));
}

} // namespace
