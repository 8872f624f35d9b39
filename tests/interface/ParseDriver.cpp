// Parsing an argument vector: order, end marker, first error, and results of other kinds.
#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

class ParseDriver : public testing::Test
{
protected:
    ParseDriver()
    {
        host.addOption(L"name");
        host.addOption(L"count", value_type_integer);
        host.parser().addEventHandler(&handler);
    }

    result_t parseVector(std::int32_t argc, const wchar_t* const* argv)
    {
        return host.parser().parse(argc, argv, &host.result());
    }

    Events events;
    RecordingHandler handler{events};
    Host host{2};
};

// A host's own result. The library can query it but not store into it.
class OwnResult : public IParseResult
{
public:
    void release() override {}
    std::int32_t isPresent(const wchar_t*, std::int32_t, std::int32_t) override
    {
        return queried();
    }
    result_t getFirstValue(Value*, const wchar_t*, std::int32_t, std::int32_t) override
    {
        return queried();
    }
    result_t getNextValue(Value*, const wchar_t*) override { return queried(); }
    std::int32_t getNextPosition() override { return queried(); }
    result_t getFirstUnparsed(const wchar_t**) override { return queried(); }
    result_t getNextUnparsed(const wchar_t**) override { return queried(); }

    int queries = 0;

private:
    result_t queried()
    {
        ++queries;
        return result_nothing;
    }
};

} // namespace

TEST_F(ParseDriver, FewerThanTwoArgumentsAreAnEmptyCommandLine)
{
    const wchar_t* const argv[] = {L"--name=a", L"--name=b"};
    for (const std::int32_t argc : {1, 0, -1, -2147483647 - 1})
    {
        SCOPED_TRACE(argc);
        EXPECT_EQ(parseVector(argc, argv), 0);
        EXPECT_TRUE(events.empty());
        EXPECT_FALSE(host.isPresent(L"name"));
    }
}

TEST_F(ParseDriver, AnEmptyCommandLinePassesTheActionCheck)
{
    host.addSwitch(L"list");
    const wchar_t* const argv[] = {L"program"};
    EXPECT_EQ(parseVector(1, argv), 0);
    EXPECT_EQ(parseVector(0, argv), 0);
    EXPECT_EQ(host.message(), L"");
}

TEST_F(ParseDriver, ANullVectorIsAnEmptyCommandLine)
{
    EXPECT_EQ(parseVector(0, nullptr), 0);
    EXPECT_EQ(parseVector(5, nullptr), 0);
    EXPECT_TRUE(events.empty());
}

TEST_F(ParseDriver, TheProgramNameIsNeverParsed)
{
    const wchar_t* const argv[] = {L"--name=program", L"--name=a"};
    EXPECT_EQ(parseVector(2, argv), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a"}));
}

TEST_F(ParseDriver, TheProgramNameMayBeNull)
{
    const wchar_t* const argv[] = {nullptr, L"--name=a"};
    EXPECT_EQ(parseVector(2, argv), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a"}));
}

TEST_F(ParseDriver, NothingBehindArgcIsRead)
{
    const wchar_t* const argv[] = {L"program", L"--name=a", L"--name=b"};
    EXPECT_EQ(parseVector(2, argv), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a"}));
}

TEST_F(ParseDriver, AMutableVectorIsTakenAndLeftAsItWas)
{
    std::wstring program = L"program";
    std::wstring argument = L"--name=a";
    wchar_t* argv[] = {program.data(), argument.data(), nullptr};
    EXPECT_EQ(host.parser().parse(2, argv, &host.result()), 0);
    EXPECT_EQ(argument, L"--name=a");
    EXPECT_EQ(argv[0], program.data());
    EXPECT_EQ(argv[1], argument.data());
    EXPECT_EQ(argv[2], nullptr);
}

TEST_F(ParseDriver, ANullEntryCountsAsAnEmptyArgument)
{
    EXPECT_EQ(host.parse({L"--name=a", nullptr, L"--name=b"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: ");
    EXPECT_EQ(events, (Events{L"option name", L"value name 'a'", L"unknown "}));
}

TEST_F(ParseDriver, AnEmptyArgumentIsUnknownWhenNothingTakesIt)
{
    EXPECT_EQ(host.parse({L""}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: ");
}

TEST_F(ParseDriver, OptionsArePassedInTheOrderOfTheArguments)
{
    EXPECT_EQ(host.parse({L"--count=2", L"--name", L"a", L"--count", L"1"}), 0);
    EXPECT_EQ(events, (Events{L"option count", L"value count 2", L"option name", L"value name 'a'",
                              L"option count", L"value count 1"}));
}

TEST_F(ParseDriver, TheFirstErrorEndsTheWalkAndKeepsWhatCameBefore)
{
    EXPECT_EQ(host.parse({L"--name=a", L"--count=x", L"--name=b"}), 2);
    EXPECT_EQ(host.message(), L"Value validation problem in argument '--count=x': Option 'count' "
                              L"can not parse 'x' value, requires a type 'integer' here.");
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a"}));
    EXPECT_FALSE(host.isPresent(L"count"));
}

TEST_F(ParseDriver, AnErrorLeavesTheArgumentsBehindTheMarkerAlone)
{
    EXPECT_EQ(host.parse({L"x", L"--", L"y"}), 2);
    EXPECT_TRUE(host.unparsed().empty());
}

TEST_F(ParseDriver, ALeadingEndMarkerRunsNoArgumentParser)
{
    EXPECT_EQ(host.parse({L"--", L"--name=a", L"x"}), 0);
    EXPECT_TRUE(events.empty());
    EXPECT_FALSE(host.isPresent(L"name"));
    EXPECT_EQ(host.unparsed(), (std::vector<std::wstring>{L"--name=a", L"x"}));
}

TEST_F(ParseDriver, TheEndMarkerStopsTheWalkWhereItStands)
{
    EXPECT_EQ(host.parse({L"--name=a", L"--", L"--name=b"}), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a"}));
    EXPECT_EQ(host.unparsed(), (std::vector<std::wstring>{L"--name=b"}));
}

TEST_F(ParseDriver, TheEndMarkerIsNoValueOfTheOptionBeforeIt)
{
    EXPECT_EQ(host.parse({L"--name", L"--", L"a"}), 2);
    EXPECT_EQ(
        host.message(),
        L"Option 'name' received value from the next argument: '--', but it seems to be an "
        L"option. Use '-option=value' declaration form or make sure that value is not missed");
}

TEST_F(ParseDriver, TheEndMarkerMayBeTheLastArgument)
{
    EXPECT_EQ(host.parse({L"--"}), 0);
    EXPECT_TRUE(host.unparsed().empty());
}

TEST_F(ParseDriver, OnlyTwoPlainHyphensAreTheEndMarker)
{
    for (const wchar_t* argument : {L"-", L"---", L"-- ", L" --", L"\u2014\u2014", L"-\u2014"})
    {
        SCOPED_TRACE(toUtf8(argument));
        host.renewResult();
        EXPECT_EQ(host.parse({argument, L"--name=a"}), 2);
        EXPECT_TRUE(host.unparsed().empty());
    }
}

TEST_F(ParseDriver, TheAbbreviationParserTakesPrecedenceOverThePositionalParser)
{
    host.addPositional(L"path");
    EXPECT_EQ(host.parse({L"--name=a", L"b"}), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a"}));
    EXPECT_EQ(host.texts(L"path"), (std::vector<std::wstring>{L"b"}));
}

TEST_F(ParseDriver, WhatTheAbbreviationParserDeclinesIsPositional)
{
    host.addPositional(L"path");
    EXPECT_EQ(host.parse({L"--other", L"-", L"---x"}), 0);
    EXPECT_EQ(host.texts(L"path"), (std::vector<std::wstring>{L"--other", L"-", L"---x"}));
}

TEST_F(ParseDriver, AnAmbiguousOptionIsAnErrorEvenWherePositionalArgumentsAreTaken)
{
    host.addOption(L"names");
    host.addPositional(L"path");
    EXPECT_EQ(host.parse({L"--nam=a"}), 2);
    EXPECT_EQ(host.message(),
              L"Ambiguous option 'nam' in argument: '--nam=a', could be: 'name', 'names'");
}

TEST_F(ParseDriver, AParseWithoutAResultSendsEventsAndReportsErrors)
{
    EXPECT_EQ(toolbox::parse(host.parser(), {L"--name=a", L"--", L"x"}, nullptr), 0);
    EXPECT_EQ(events, (Events{L"option name", L"value name 'a'"}));
    EXPECT_EQ(toolbox::parse(host.parser(), {L"x"}, nullptr), 2);
    EXPECT_EQ(host.message(), L"Unknown option: x");
    EXPECT_EQ(host.parser().parseCommandLine(L"--count=x", nullptr), 2);
    EXPECT_EQ(host.message(), L"Value validation problem in argument '--count=x': Option 'count' "
                              L"can not parse 'x' value, requires a type 'integer' here.");
}

TEST_F(ParseDriver, AParseWithoutAResultSkipsTheActionCheck)
{
    host.addSwitch(L"list");
    host.addSwitch(L"sum");
    EXPECT_EQ(toolbox::parse(host.parser(), {L"--list", L"--sum", L"--name=a"}, nullptr), 0);
}

TEST_F(ParseDriver, NothingIsStoredIntoAHostsOwnResult)
{
    OwnResult own;
    EXPECT_EQ(toolbox::parse(host.parser(), {L"--name=a", L"--", L"x"}, &own), 0);
    EXPECT_EQ(events, (Events{L"option name", L"value name 'a'"}));
    EXPECT_EQ(toolbox::parse(host.parser(), {L"x"}, &own), 2);
    EXPECT_EQ(host.message(), L"Unknown option: x");
    EXPECT_EQ(host.parser().parseCommandLine(L"--name=b", &own), 0);
    EXPECT_EQ(own.queries, 0);
}

TEST_F(ParseDriver, AHostsOwnResultGetsNoDefaults)
{
    host.addOption(L"mode").setDefaultValue(vexkit2::variant_t(L"fast"));
    OwnResult own;
    EXPECT_EQ(toolbox::parse(host.parser(), {L"--name=a"}, &own), 0);
    EXPECT_EQ(toolbox::parse(host.parser(), {L"--name=a"}, nullptr), 0);
    EXPECT_EQ(own.queries, 0);
    EXPECT_EQ(host.parse({}), 0);
    EXPECT_EQ(host.texts(L"mode"), std::vector<std::wstring>{L"fast"});
}
