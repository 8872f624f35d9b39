// The contents of a parse result: many options, several parses, left-over arguments, lifetime of
// texts.
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

// The option declared last is stored first, so the table of the result is large from the start.
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

// More names than the table of a result holds at first or after one growth.
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
    EXPECT_EQ(host.unparsed(),
              (Texts{L"a", L"-b", L"", L"a", L"--"})); // a new walk starts at the first
}

TEST(ResultUnparsed, WalkEndsWithOneAndLeavesTheOutputUnchanged)
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

TEST(ResultUnparsed, WalkIsIndependentOfTheValueQueries)
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
