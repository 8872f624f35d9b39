// Options that an action accepts, and which options the action check counts as given.
#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

struct AcceptanceCase
{
    std::vector<const wchar_t*> arguments;
    std::wstring message; // empty: the parse succeeds
};

std::string show(const AcceptanceCase& row)
{
    std::string text;
    for (const wchar_t* argument : row.arguments)
    {
        text += "[" + toUtf8(argument) + "] ";
    }
    return text;
}

std::wstring notAccepted(const std::wstring& action, const std::wstring& option)
{
    return L"Action '-" + action + L"' doesn't accept option '-" + option + L"'";
}

class ActionAcceptance : public testing::Test
{
protected:
    ActionAcceptance()
    {
        host.addSwitch(L"list,l");
        host.addSwitch(L"sum").addKeywords(L"files");
        addWithKeywords(L"depth,d", L"list");
        addWithKeywords(L"long", L"l");
        addWithKeywords(L"check", L"sum");
        addWithKeywords(L"filter", L"other,files");
        addWithKeywords(L"zone,b", L"other");
        host.addOption(L"name");
    }

    void addWithKeywords(const wchar_t* names, const wchar_t* keywords)
    {
        host.parser().addOptionWithKeywords(names, keywords, L"", value_type_string, L"");
    }

    void check(const AcceptanceCase& row)
    {
        SCOPED_TRACE(show(row));
        host.renewResult();
        const std::wstring before = host.message();
        EXPECT_EQ(parse(host.parser(), row.arguments, &host.result()), row.message.empty() ? 0 : 2);
        EXPECT_EQ(host.message(), row.message.empty() ? before : row.message);
    }

    Host host{2};
};

} // namespace

TEST_F(ActionAcceptance, AnOptionThatSharesAKeywordIsAccepted)
{
    // Every name of a switch is one of its keywords.
    const AcceptanceCase rows[] = {
        {{L"--list", L"--depth=1"}, L""}, {{L"-l", L"-d", L"1"}, L""},
        {{L"--list", L"--long=1"}, L""},  {{L"--sum", L"--filter=1"}, L""},
        {{L"--sum", L"--check=1"}, L""},
    };
    for (const AcceptanceCase& row : rows)
    {
        check(row);
    }
}

TEST_F(ActionAcceptance, AnOptionThatSharesNoKeywordIsNot)
{
    const AcceptanceCase rows[] = {
        {{L"--sum", L"--depth=1"}, notAccepted(L"sum", L"depth")},
        {{L"--depth=1", L"--sum"}, notAccepted(L"sum", L"depth")},
        {{L"-l", L"--check=1"}, notAccepted(L"list", L"check")},
        {{L"--list", L"-b=1"}, notAccepted(L"list", L"zone")},
        {{L"--list", L"--filter=1"}, notAccepted(L"list", L"filter")},
    };
    for (const AcceptanceCase& row : rows)
    {
        check(row);
    }
}

TEST_F(ActionAcceptance, AnOptionWithoutKeywordsIsAlwaysAccepted)
{
    check({{L"--list", L"--name=a"}, L""});
    check({{L"--sum", L"--name=a"}, L""});
}

// Names are checked in sorted order, all names of an option included: "b" is a name of zone.
TEST_F(ActionAcceptance, TheFirstNameInOrderIsReported)
{
    check({{L"--list", L"--filter=1", L"--check=1"}, notAccepted(L"list", L"check")});
    check({{L"--list", L"--check=1", L"--filter=1"}, notAccepted(L"list", L"check")});
    check({{L"--list", L"--check=1", L"--zone=1"}, notAccepted(L"list", L"zone")});
    check({{L"--list", L"--zone=1", L"--check=1"}, notAccepted(L"list", L"zone")});
}

TEST_F(ActionAcceptance, AnOptionWithKeywordsAloneStillNeedsAnAction)
{
    check({{L"--depth=1"}, L"No action defined."});
}

TEST_F(ActionAcceptance, TheChosenOneOfCompatibleActionsDecides)
{
    host.parser().addCompatibleActions({L"list", L"sum"});
    check({{L"--list", L"--sum", L"--depth=1"}, L""});
    check({{L"--sum", L"--list", L"--check=1"}, notAccepted(L"list", L"check")});
}

TEST_F(ActionAcceptance, IncompatibleActionsComeBeforeUnacceptedOptions)
{
    check({{L"--list", L"--sum", L"--zone=1"},
           L"Action '-sum' and action '-list' were defined, but only one action possible."});
}

TEST_F(ActionAcceptance, KeywordsAddedLaterCount)
{
    host.addOption(L"later").addKeywords(L"sum,more");
    check({{L"--list", L"--later=1"}, notAccepted(L"list", L"later")});
    check({{L"--sum", L"--later=1"}, L""});
}

TEST_F(ActionAcceptance, ThePositionalKeywordIsAKeywordLikeAnyOther)
{
    addWithKeywords(L"path", L"kexa_positional_option");
    check({{L"--list", L"x"}, notAccepted(L"list", L"path")});
    host.addSwitch(L"walk").addKeywords(L"kexa_positional_option");
    check({{L"--walk", L"x"}, L""});
    check({{L"--sum", L"x"}, notAccepted(L"sum", L"path")});
}

TEST_F(ActionAcceptance, AMarkedPositionalOptionHasNoKeyword)
{
    host.addPositional(L"path");
    check({{L"--list", L"x"}, L""});
}

TEST_F(ActionAcceptance, AnOccurrenceWithoutAValueCountsAsGiven)
{
    host.parser().addOptionWithKeywords(L"quiet", L"sum", L"", value_type_none, L"");
    check({{L"--list", L"--quiet"}, notAccepted(L"list", L"quiet")});
    check({{L"--sum", L"--quiet"}, L""});
}

TEST_F(ActionAcceptance, OptionFilesTakePartInTheCheck)
{
    const TemporaryFolder folder;
    host.parser().enableOptionFiles(L"", L"");
    const std::wstring argument = L"--option-file=" + folder.write(L"file", "--list\n--check=1");
    check({{argument.c_str()}, notAccepted(L"list", L"check")});
    check({{argument.c_str(), L"--sum"},
           L"Action '-sum' and action '-list' were defined, but only one action possible."});
    folder.write(L"file", "--sum\n--check=1");
    check({{argument.c_str()}, L""});
}

TEST(DefaultsAndActions, ADefaultedSwitchIsNoGivenAction)
{
    Host host(2);
    host.addSwitch(L"list").setDefaultValue(vexkit2::variant_t(true));
    host.addSwitch(L"sum");
    host.addOption(L"name");
    EXPECT_EQ(host.parse({L"--name=a"}), 2);
    EXPECT_EQ(host.message(), L"No action defined.");
    host.renewResult();
    EXPECT_EQ(host.parse({L"--sum", L"--name=a"}), 0);
    EXPECT_TRUE(host.isPresent(L"list"));
}

TEST(DefaultsAndActions, ADefaultedOptionIsNoGivenOption)
{
    Host host(2);
    host.addSwitch(L"list");
    host.addSwitch(L"sum");
    host.parser()
        .addOptionWithKeywords(L"depth", L"list", L"", value_type_string, L"")
        .option->setDefaultValue(vexkit2::variant_t(L"1"));
    EXPECT_EQ(host.parse({}), 0);
    EXPECT_EQ(host.parse({L"--sum"}), 0);
    EXPECT_EQ(host.texts(L"depth"), (std::vector<std::wstring>{L"1"}));
    EXPECT_EQ(host.parse({L"--sum", L"--depth=2"}), 2);
    EXPECT_EQ(host.message(), L"Action '-sum' doesn't accept option '-depth'");
}

TEST(ResultsOfOtherParsers, AnOptionThatTheParserDoesNotKnowEndsTheCheckWithOne)
{
    Host other;
    other.addOption(L"strange");
    Host host(2);
    host.addSwitch(L"list");
    EXPECT_EQ(other.parse({L"--strange=1"}), 0);
    EXPECT_EQ(parse(host.parser(), {L"--list"}, &other.result()), 1);
    EXPECT_EQ(host.message(), L"");
}

TEST(ResultsOfOtherParsers, AnActionOfAnEarlierParseCounts)
{
    Host host(2);
    host.addSwitch(L"list");
    host.addSwitch(L"sum");
    EXPECT_EQ(host.parse({L"--list"}), 0);
    EXPECT_EQ(host.parse({L"--sum"}), 2);
    EXPECT_EQ(host.message(),
              L"Action '-sum' and action '-list' were defined, but only one action possible.");
}
