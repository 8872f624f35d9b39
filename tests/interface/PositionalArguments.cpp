// Arguments without an option name, and the positional option that takes them.
#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;

struct PositionalCase
{
    int flags;
    const wchar_t* argument;
    bool positional;
};

std::string show(const PositionalCase& row)
{
    return "flags " + std::to_string(row.flags) + ", [" + toUtf8(row.argument) + "]";
}

} // namespace

TEST(PositionalArguments, WithoutAPositionalOptionEveryOneIsUnknown)
{
    for (const int flags : {2, 2 | 4, 2 | 8, 2 | 16, 2 | 4 | 8 | 16})
    {
        SCOPED_TRACE(flags);
        Host host(flags);
        host.addOption(L"name");
        host.addSwitch(L"list").setMarked(); // a switch is never positional
        host.addSwitch(L"sum").addKeywords(L"kexa_positional_option");
        EXPECT_EQ(host.parse({L"x"}), 2);
        EXPECT_EQ(host.message(), L"Unknown option: x");
    }
}

TEST(PositionalArguments, GoToAMarkedOption)
{
    Host host(2);
    host.addOption(L"path").setMarked();
    EXPECT_EQ(host.parse({L"x", L"y"}), 0);
    EXPECT_EQ(host.texts(L"path"), (Texts{L"x", L"y"}));
}

TEST(PositionalArguments, GoToAnOptionWithTheKeyword)
{
    Host host(2);
    host.parser().addOptionWithKeywords(L"path", L"files,kexa_positional_option", L"",
                                        value_type_string, L"");
    EXPECT_EQ(host.parse({L"x", L"y"}), 0);
    EXPECT_EQ(host.texts(L"path"), (Texts{L"x", L"y"}));
}

TEST(PositionalArguments, GoToAnOptionThatGetsTheKeywordLater)
{
    Host host(2);
    host.addOption(L"path").addKeywords(L"kexa_positional_option");
    EXPECT_EQ(host.parse({L"x"}), 0);
    EXPECT_EQ(host.texts(L"path"), (Texts{L"x"}));
}

TEST(PositionalArguments, AllGoToTheFirstOfSeveralPositionalOptions)
{
    Host host(2);
    host.addOption(L"name");
    host.addOption(L"zeta").setMarked();
    host.addOption(L"alpha").setMarked();
    EXPECT_EQ(host.parse({L"x", L"--alpha=a", L"y", L"--", L"z"}), 0);
    EXPECT_EQ(host.texts(L"zeta"), (Texts{L"x", L"y", L"z"}));
    EXPECT_EQ(host.texts(L"alpha"), (Texts{L"a"}));
}

TEST(PositionalArguments, APositionalOptionMayAlsoBeNamed)
{
    Host host(2);
    host.addPositional(L"path,p");
    EXPECT_EQ(host.parse({L"x", L"--path=y", L"z", L"-p", L"w"}), 0);
    EXPECT_EQ(host.texts(L"path"), (Texts{L"x", L"y", L"z", L"w"}));
}

TEST(PositionalArguments, StandAnywhereAmongTheOptions)
{
    Host host(2);
    host.addOption(L"name");
    host.addPositional(L"path");
    EXPECT_EQ(host.parse({L"x", L"--name", L"a", L"y", L"--name=b", L"z"}), 0);
    EXPECT_EQ(host.texts(L"path"), (Texts{L"x", L"y", L"z"}));
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a", L"b"}));
}

TEST(PositionalArguments, AreTakenUnchanged)
{
    for (const wchar_t* argument :
         {L"a=b", L" a b ", L"=", L"\"a\"", L"\U0001F600", L"no-name", L"name", L"a\nb"})
    {
        SCOPED_TRACE(toUtf8(argument));
        Host host(2);
        host.addOption(L"name");
        host.addOption(L"names");
        host.addPositional(L"path");
        EXPECT_EQ(host.parse({argument}), 0);
        EXPECT_EQ(host.texts(L"path"), (Texts{argument}));
    }
}

// Flag 8 excludes arguments that begin with a hyphen-minus, not with other dashes.
TEST(PositionalArguments, Flag8DeclinesALeadingHyphen)
{
    const PositionalCase rows[] = {
        {2, L"x", true},           {2, L"-x", true},
        {2, L"-", true},           {2, L"--other=1", true},
        {2, L"---", true},         {2, L"\u2014x", true},
        {2 | 8, L"x", true},       {2 | 8, L"-x", false},
        {2 | 8, L"-", false},      {2 | 8, L"--other", false},
        {2 | 8, L"---", false},    {2 | 8, L"\u2014x", true},
        {2 | 8, L"x-", true},      {2 | 8, L" -x", true},
        {2 | 4 | 8, L"-x", false}, {2 | 8 | 16, L"-x", false},
        {2 | 16, L"-x", true},
    };
    for (const PositionalCase& row : rows)
    {
        SCOPED_TRACE(show(row));
        Host host(row.flags);
        host.addOption(L"name");
        host.addPositional(L"path");
        EXPECT_EQ(host.parse({row.argument}), row.positional ? 0 : 2);
        EXPECT_EQ(host.message(),
                  row.positional ? L"" : std::wstring(L"Unknown option: ") + row.argument);
        EXPECT_EQ(host.texts(L"path"), row.positional ? Texts{row.argument} : Texts{});
    }
}

TEST(PositionalArguments, ADeclinedHyphenIsLeftToTheOptions)
{
    Host host(2 | 8);
    host.addOption(L"name");
    host.addPositional(L"path");
    EXPECT_EQ(host.parse({L"-name=a", L"x"}), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a"}));
    EXPECT_EQ(host.texts(L"path"), (Texts{L"x"}));
}

TEST(PositionalArguments, WithoutFlag16OneIsTakenAtATime)
{
    Host host(2);
    host.addOption(L"name");
    host.addPositional(L"path");
    EXPECT_EQ(host.parse({L"x", L"--name=a", L"--", L"--name=b"}), 0);
    EXPECT_EQ(host.texts(L"path"), (Texts{L"x", L"--name=b"}));
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a"}));
}

TEST(PositionalArguments, WithFlag16AllAfterTheFirstArePositional)
{
    for (const int flags : {2 | 16, 2 | 8 | 16, 2 | 4 | 8 | 16})
    {
        SCOPED_TRACE(flags);
        Host host(flags);
        host.addOption(L"name");
        host.addPositional(L"path");
        EXPECT_EQ(host.parse({L"--name=a", L"x", L"--name=b", L"-y", L"--", L"z"}), 0);
        EXPECT_EQ(host.texts(L"name"), (Texts{L"a"}));
        EXPECT_EQ(host.texts(L"path"), (Texts{L"x", L"--name=b", L"-y", L"--", L"z"}));
        EXPECT_TRUE(host.unparsed().empty());
    }
}

TEST(PositionalArguments, WithFlag16AFailureKeepsTheValuesBeforeIt)
{
    Events events;
    RecordingHandler handler(events);
    Host host(2 | 16);
    host.addOption(L"number", value_type_integer).setMarked();
    ASSERT_TRUE(host.parser().addEventHandler(&handler));
    EXPECT_EQ(host.parse({L"1", L"2", L"x", L"3"}), 2);
    EXPECT_EQ(host.message(), L"Value validation problem in argument 'x': Option 'number' can not "
                              L"parse 'x' value, requires a type 'integer' here.");
    EXPECT_EQ(host.texts(L"number"), (Texts{L"1", L"2"}));
    EXPECT_EQ(events, (Events{L"option number", L"value number 1", L"option number",
                              L"value number 2", L"option number"}));
}

TEST(PositionalArguments, EachSendsItsEvents)
{
    for (const int flags : {2, 2 | 16})
    {
        SCOPED_TRACE(flags);
        Events events;
        RecordingHandler handler(events);
        Host host(flags);
        host.addPositional(L"path,p");
        ASSERT_TRUE(host.parser().addEventHandler(&handler));
        EXPECT_EQ(host.parse({L"x", L"y"}), 0);
        EXPECT_EQ(events,
                  (Events{L"option path", L"value path 'x'", L"option path", L"value path 'y'"}));
    }
}

TEST(PositionalArguments, ARefusedOneEndsTheParseWithOne)
{
    Events events;
    RecordingHandler handler(events);
    handler.answerValue = [](const wchar_t*, const ValueRecord&)
    {
        return false;
    };
    Host host(2);
    host.addPositional(L"path");
    ASSERT_TRUE(host.parser().addEventHandler(&handler));
    EXPECT_EQ(host.parse({L"x,y"}), 1);
    EXPECT_EQ(host.message(), L"Value 'x,y' is not valid for option 'path' in argument 'x,y'");
    EXPECT_FALSE(host.isPresent(L"path"));
}

TEST(PositionalArguments, AreSplitAtTheSeparatorOfTheOption)
{
    Host host(2);
    host.addPositional(L"path").setSeparator(L':');
    EXPECT_EQ(host.parse({L"a:b,c::d", L":"}), 2);
    EXPECT_EQ(host.message(), L"No value parsed in argument ':' for option 'path'");
    EXPECT_EQ(host.texts(L"path"), (Texts{L"a", L"b,c", L"d"}));
}

TEST(PositionalArguments, AreCheckedAgainstTheAllowedValues)
{
    Host host(2);
    host.addPositional(L"mode")
        .addAllowedValue(vexkit2::variant_t(L"fast"))
        .addAllowedValue(vexkit2::variant_t(L"slow"));
    EXPECT_EQ(host.parse({L"f", L"x"}), 2);
    EXPECT_EQ(host.message(), L"Value validation problem in argument 'x': Option 'mode' does not "
                              L"allow value 'x'. Possible values follows: 'fast', 'slow'");
    EXPECT_EQ(host.texts(L"mode"), (Texts{L"fast"}));
}

TEST(PositionalArguments, MayBeOfTypeBoolean)
{
    Host host(2);
    host.addOption(L"answer", value_type_boolean).setMarked();
    const std::int32_t base = nextPosition();
    EXPECT_EQ(host.parse({L"true", L"0"}), 0);
    EXPECT_EQ(host.values(L"answer"),
              (std::vector<ReadValue>{{L"true", value_type_boolean, base},
                                      {L"0", value_type_boolean, base + 1}}));
}

TEST(PositionalArguments, AnEmptyOneIsAnOccurrenceWithoutAValue)
{
    Events events;
    RecordingHandler handler(events);
    Host host(2 | 8);
    host.addPositional(L"path");
    ASSERT_TRUE(host.parser().addEventHandler(&handler));
    const std::int32_t base = nextPosition();
    EXPECT_EQ(host.parse({L""}), 0);
    EXPECT_EQ(host.values(L"path"), (std::vector<ReadValue>{{L"", value_type_none, base}}));
    EXPECT_EQ(events, (Events{L"option path"}));
}
