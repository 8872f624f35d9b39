// What a parse result holds: aliases, defaults, several parses, left-over arguments, and how long
// its texts live.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::s32_t;
using vexkit2::variant_t;

using Texts = std::vector<std::wstring>;

// How often the walk of "mode" gives its default after the query that began it.
int defaultsAfter(IParseResult& result)
{
    int count = 0;
    Value value;
    while (result.getNextValue(&value, L"mode") == 0 && count < 10)
    {
        EXPECT_STREQ(value.as<const wchar_t*>(), L"fast");
        EXPECT_EQ(value.position, no_position);
        ++count;
    }
    return count;
}

class DefaultHost : public Host
{
public:
    DefaultHost() : option(addOption(L"mode,m"))
    {
        option.setDefaultValue(variant_t(L"fast"));
        EXPECT_EQ(parse({}), 0);
    }

    IOption& option;
};

TEST(ResultContents, OptionDeclaredAfterManyHasValuesOfItsOwn)
{
    for (const int before : {30, 31, 32, 33, 64, 100})
    {
        Host host;
        for (int number = 0; number < before; ++number)
        {
            host.addOption((L"o" + std::to_wstring(number)).c_str());
        }
        host.addOption(L"late");
        EXPECT_EQ(host.parse({L"-o0=first"}), 0) << before;
        EXPECT_EQ(host.parse({L"-late=second"}), 0) << before;
        Value value;
        EXPECT_EQ(host.result().getFirstValue(&value, L"late", 0, no_position), 0) << before;
        EXPECT_STREQ(value.as<const wchar_t*>(), L"second") << before;
        EXPECT_NE(host.result().getNextValue(&value, L"late"), 0) << before;
        EXPECT_EQ(host.result().getFirstValue(&value, L"o0", 0, no_position), 0) << before;
        EXPECT_STREQ(value.as<const wchar_t*>(), L"first") << before;
        EXPECT_NE(host.result().getNextValue(&value, L"o0"), 0) << before;
    }
}

// The last one is stored first: what comes then needs the memory behind a table that was too small.
TEST(ResultContents, OptionsOfALargeTableAreStoredInAnyOrder)
{
    constexpr int count = 300;
    Host host;
    std::vector<std::wstring> arguments;
    for (int number = 0; number < count; ++number)
    {
        const std::wstring name = L"o" + std::to_wstring(number);
        host.addOption(name.c_str());
        arguments.insert(arguments.begin(), L"-" + name + L"=" + std::to_wstring(number));
    }
    std::vector<const wchar_t*> pointers;
    for (const std::wstring& argument : arguments)
    {
        pointers.push_back(argument.c_str());
    }
    for (int time = 1; time <= 2; ++time)
    {
        ASSERT_EQ(parse(host.parser(), pointers, &host.result()), 0);
        for (int number = 0; number < count; ++number)
        {
            const Texts expected(static_cast<std::size_t>(time), std::to_wstring(number));
            EXPECT_EQ(host.texts((L"o" + std::to_wstring(number)).c_str()), expected) << number;
        }
    }
}

// As many as no table of a result has room for at first, nor when it has grown once.
TEST(ResultContents, EachOfManyNamesFindsTheValue)
{
    constexpr int count = 300;
    Host host;
    IOption& option = host.addOption(L"n0");
    for (int number = 1; number < count; ++number)
    {
        option.addName((L"n" + std::to_wstring(number)).c_str());
    }
    host.addOption(L"other");
    ASSERT_EQ(host.parse({L"-n7=value", L"-other=another", L"-n8=further"}), 0);
    for (int number = 0; number < count; ++number)
    {
        EXPECT_EQ(host.texts((L"n" + std::to_wstring(number)).c_str()),
                  (Texts{L"value", L"further"}))
            << number;
    }
    EXPECT_EQ(host.texts(L"other"), Texts{L"another"});
}

TEST(ResultDefaults, DefaultIsGivenWhateverTheRange)
{
    DefaultHost host;
    for (const std::int32_t from : {-1, 0, 5, 2147483647})
    {
        for (const std::int32_t to : {-1, 0, 5, 2147483647})
        {
            Value value;
            EXPECT_EQ(host.result().isPresent(L"mode", from, to), 1) << from << ", " << to;
            EXPECT_EQ(host.result().getFirstValue(&value, L"m", from, to), 0) << from << ", " << to;
            EXPECT_EQ(value.status, 0);
            EXPECT_STREQ(value.as<const wchar_t*>(), L"fast");
            EXPECT_EQ(value.value.kind(), 13);
            EXPECT_EQ(value.position, no_position);
            EXPECT_EQ(host.result().getNextPosition(), no_position);
        }
    }
}

TEST(ResultDefaults, NextValueGivesItOnceMoreForTheHighestBoundsOnly)
{
    DefaultHost host;
    const struct
    {
        std::int32_t from;
        std::int32_t to;
        int expected;
    } rows[] = {{0, no_position, 0}, {0, 0, 0}, {no_position, 0, 0}, {no_position, no_position, 1}};
    for (const auto& row : rows)
    {
        host.result().getFirstValue(nullptr, L"mode", row.from, row.to);
        EXPECT_EQ(defaultsAfter(host.result()), row.expected) << row.from << ", " << row.to;
    }
}

TEST(ResultDefaults, PresenceQueryIsFollowedByTheDefaultOnce)
{
    DefaultHost host;
    for (const std::int32_t bound : {0, 5, 2147483647})
    {
        EXPECT_EQ(host.result().isPresent(L"mode", bound, bound), 1) << bound;
        EXPECT_EQ(defaultsAfter(host.result()), 1) << bound;
    }
}

TEST(ResultDefaults, OccurrenceHidesTheDefault)
{
    DefaultHost host;
    const std::int32_t base = nextPosition();
    EXPECT_EQ(host.parse({L"-m=slow"}), 0);
    EXPECT_EQ(host.values(L"mode"), (std::vector<ReadValue>{{L"slow", 13, base}}));
    EXPECT_EQ(readValues(host.result(), L"mode", base + 1, no_position), std::vector<ReadValue>());
    EXPECT_EQ(host.result().isPresent(L"mode", base + 1, no_position), 0);
}

TEST(ResultDefaults, OccurrenceWithoutAValueHidesTheDefaultToo)
{
    Host host;
    host.addOption(L"flag", value_type_none).setDefaultValue(variant_t(L"default"));
    EXPECT_EQ(host.parse({}), 0);
    EXPECT_EQ(host.texts(L"flag"), Texts{L"default"});
    EXPECT_EQ(host.parse({L"--flag"}), 0);
    EXPECT_EQ(host.texts(L"flag"), Texts{L""});
}

TEST(ResultDefaults, DefaultWithoutATextIsNotFound)
{
    const std::vector<variant_t> without_text = {variant_t(L""), variant_t(), variant_t(""),
                                                 variant_t::blob("x", 1)};
    for (const variant_t& value : without_text)
    {
        Host host;
        host.addOption(L"mode").setDefaultValue(value);
        EXPECT_EQ(host.parse({}), 0);
        EXPECT_FALSE(host.isPresent(L"mode")) << value.kind();
        EXPECT_EQ(host.values(L"mode"), std::vector<ReadValue>()) << value.kind();
    }
}

TEST(ResultDefaults, FirstStoredDefaultStays)
{
    DefaultHost host;
    host.option.setDefaultValue(variant_t(L"slow"));
    EXPECT_EQ(host.parse({}), 0);
    EXPECT_EQ(host.texts(L"mode"), Texts{L"fast"});
    host.renewResult();
    EXPECT_EQ(host.parse({}), 0);
    EXPECT_EQ(host.texts(L"mode"), Texts{L"slow"});
}

TEST(ResultDefaults, CommandLineTextHandsNoDefaults)
{
    Host host;
    host.addOption(L"mode").setDefaultValue(variant_t(L"fast"));
    EXPECT_EQ(host.parseLines(L""), 0);
    EXPECT_FALSE(host.isPresent(L"mode"));
}

TEST(ResultDefaults, DefaultIsHandedOverThoughTheParseFails)
{
    Host host(flag_unknown_is_error);
    host.addOption(L"mode").setDefaultValue(variant_t(L"fast"));
    EXPECT_EQ(host.parse({L"unknown"}), 2);
    EXPECT_EQ(host.texts(L"mode"), Texts{L"fast"});
}

TEST(ResultAccumulation, SeveralParsesAppend)
{
    Host host;
    host.addOption(L"name,n");
    const std::int32_t base = nextPosition();
    EXPECT_EQ(host.parse({L"--name=1", L"--", L"left"}), 0);
    EXPECT_EQ(host.parse({L"-n=2,3", L"--", L"over", L"again"}), 0);
    EXPECT_EQ(host.parseLines(L"--name 4"), 0);
    const std::vector<ReadValue> expected = {
        {L"1", 13, base}, {L"2", 13, base + 1}, {L"3", 13, base + 2}, {L"4", 13, base + 3}};
    EXPECT_EQ(host.values(L"name"), expected);
    EXPECT_EQ(host.values(L"n"), expected);
    EXPECT_EQ(host.unparsed(), (Texts{L"left", L"over", L"again"}));
}

TEST(ResultAccumulation, ResultsOfOneParserAreIndependent)
{
    Host host;
    host.addOption(L"name");
    const ResultOwner other = createResult(host.parser());
    EXPECT_EQ(host.parse({L"--name=1"}), 0);
    EXPECT_EQ(toolbox::parse(host.parser(), {L"--name=2"}, other.get()), 0);
    EXPECT_EQ(host.texts(L"name"), Texts{L"1"});
    EXPECT_EQ(readTexts(*other, L"name"), Texts{L"2"});
}

TEST(ResultAccumulation, OneResultMayBeFilledByTwoParsers)
{
    Host first;
    first.addOption(L"name");
    Host second;
    second.addOption(L"name");
    EXPECT_EQ(first.parse({L"--name=1"}), 0);
    EXPECT_EQ(toolbox::parse(second.parser(), {L"--name=2"}, &first.result()), 0);
    EXPECT_EQ(first.texts(L"name"), (Texts{L"1", L"2"}));
}

TEST(ResultUnparsed, LeftOverArgumentsAreWalkedInOrder)
{
    Host host;
    EXPECT_EQ(host.parse({L"dropped", L"--", L"a", L"-b", L"", L"a", L"--"}), 0);
    EXPECT_EQ(host.unparsed(), (Texts{L"a", L"-b", L"", L"a", L"--"}));
    EXPECT_EQ(host.unparsed(), (Texts{L"a", L"-b", L"", L"a", L"--"})); // begun again
}

TEST(ResultUnparsed, WalkEndsWithOneAndLeavesTheOutAlone)
{
    Host host;
    EXPECT_EQ(host.parse({L"--", L"a", L"b"}), 0);
    const wchar_t* text = nullptr;
    EXPECT_EQ(host.result().getFirstUnparsed(&text), 0);
    EXPECT_STREQ(text, L"a");
    EXPECT_EQ(host.result().getNextUnparsed(&text), 0);
    EXPECT_STREQ(text, L"b");
    EXPECT_EQ(host.result().getNextUnparsed(&text), 1);
    EXPECT_EQ(host.result().getNextUnparsed(&text), 1);
    EXPECT_STREQ(text, L"b");
    EXPECT_EQ(host.result().getFirstUnparsed(nullptr), 0);
    EXPECT_EQ(host.result().getNextUnparsed(nullptr), 0);
    EXPECT_EQ(host.result().getNextUnparsed(nullptr), 1);
}

TEST(ResultUnparsed, WalkIsApartFromTheValueQueries)
{
    Host host;
    host.addOption(L"name");
    EXPECT_EQ(host.parse({L"--name=1,2", L"--", L"a", L"b"}), 0);
    const wchar_t* text = nullptr;
    Value value;
    host.result().getFirstUnparsed(&text);
    host.result().getFirstValue(&value, L"name", 0, no_position);
    EXPECT_EQ(host.result().getNextUnparsed(&text), 0);
    EXPECT_STREQ(text, L"b");
    EXPECT_EQ(host.result().getNextValue(&value, L"name"), 0);
    EXPECT_STREQ(value.as<const wchar_t*>(), L"2");
}

TEST(ResultTexts, TextsStayValidAfterLaterQueriesAndWithoutTheParser)
{
    ParserOwner parser = toolbox::createParser();
    const ResultOwner result = createResult(*parser);
    parser->addOption(L"name", L"", value_type_string, L"");
    parser->addOption(L"mode", L"", value_type_double, L"").option->setDefaultValue(variant_t(2.5));
    parser->addOption(L"colour", L"", value_type_string, L"")
        .option->addAllowedValue(variant_t(L"magenta"));
    ASSERT_EQ(toolbox::parse(*parser, {L"--name=first,second", L"--colour=m", L"--", L"left"},
                             result.get()),
              0);
    parser.reset();
    Value first;
    Value second;
    Value mode;
    Value colour;
    const wchar_t* left = nullptr;
    ASSERT_EQ(result->getFirstValue(&first, L"name", 0, no_position), 0);
    ASSERT_EQ(result->getNextValue(&second, L"name"), 0);
    ASSERT_EQ(result->getFirstValue(&mode, L"mode", 0, no_position), 0);
    ASSERT_EQ(result->getFirstValue(&colour, L"colour", 0, no_position), 0);
    ASSERT_EQ(result->getFirstUnparsed(&left), 0);
    for (int round = 0; round < 100; ++round)
    {
        readTexts(*result, L"name");
        readUnparsed(*result);
    }
    EXPECT_STREQ(first.as<const wchar_t*>(), L"first");
    EXPECT_STREQ(second.as<const wchar_t*>(), L"second");
    EXPECT_STREQ(mode.as<const wchar_t*>(), L"2.5");
    EXPECT_STREQ(colour.as<const wchar_t*>(), L"magenta");
    EXPECT_STREQ(colour.value.get<const wchar_t*>(), L"magenta");
    EXPECT_STREQ(left, L"left");
}

TEST(ResultTexts, TextsStayValidWhileTheResultIsFilledAgain)
{
    Host host;
    host.addOption(L"name").setSeparator(0);
    ASSERT_EQ(host.parse({L"--name=first", L"--", L"left"}), 0);
    Value value;
    const wchar_t* left = nullptr;
    host.result().getFirstValue(&value, L"name", 0, no_position);
    host.result().getFirstUnparsed(&left);
    for (int index = 0; index < 1000; ++index)
    {
        const std::wstring argument = L"--name=" + std::to_wstring(index);
        const std::wstring rest = L"rest " + std::to_wstring(index);
        ASSERT_EQ(host.parse({argument.c_str(), L"--", rest.c_str()}), 0);
    }
    EXPECT_STREQ(value.as<const wchar_t*>(), L"first");
    EXPECT_STREQ(left, L"left");
    EXPECT_EQ(host.texts(L"name").size(), 1001U);
}

TEST(ResultTexts, TextIsThePieceAsWritten)
{
    Host host;
    host.addOption(L"number", value_type_integer);
    host.addOption(L"ratio", value_type_double);
    host.addOption(L"hex", value_type_unsigned64);
    ASSERT_EQ(host.parse({L"--number= 007 ,+5", L"--ratio=1e0", L"--hex=0X1f"}), 0);
    EXPECT_EQ(host.texts(L"number"), (Texts{L" 007 ", L"+5"}));
    EXPECT_EQ(host.texts(L"ratio"), Texts{L"1e0"});
    EXPECT_EQ(host.texts(L"hex"), Texts{L"0X1f"});
    EXPECT_EQ(getLastValue(&host.result(), L"hex", 0, no_position).as<s32_t>(), 31);
}

} // namespace
