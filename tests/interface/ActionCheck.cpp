// Which actions may be given together.
#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Arguments = std::vector<const wchar_t*>;
using Groups = std::vector<std::set<std::wstring>>;

struct ActionCase
{
    Groups compatible;
    Arguments arguments;
    std::wstring message; // empty: the parse succeeds
};

std::string show(const ActionCase& row)
{
    std::string text;
    for (const auto& group : row.compatible)
    {
        text += "{";
        for (const std::wstring& name : group)
        {
            text += " " + toUtf8(name);
        }
        text += " } ";
    }
    for (const wchar_t* argument : row.arguments)
    {
        text += " [" + toUtf8(argument) + "]";
    }
    return text;
}

std::wstring onlyOne(const std::wstring& action, const std::wstring& chosen)
{
    return L"Action '-" + action + L"' and action '-" + chosen +
           L"' were defined, but only one action possible.";
}

void declare(Host& host)
{
    host.addSwitch(L"list,l");
    host.addSwitch(L"sum,s");
    host.addSwitch(L"verify,a");
    host.addSwitch(L"zero", value_type_none);
    host.addOption(L"name");
}

void check(const ActionCase& row)
{
    SCOPED_TRACE(show(row));
    Host host(2);
    declare(host);
    for (const auto& group : row.compatible)
    {
        host.parser().addCompatibleActions(group);
    }
    EXPECT_EQ(parse(host.parser(), row.arguments, &host.result()), row.message.empty() ? 0 : 2);
    EXPECT_EQ(host.message(), row.message);
}

} // namespace

TEST(ActionCheck, OneActionPasses)
{
    const ActionCase rows[] = {
        {{}, {L"--list"}, L""},
        {{}, {L"--zero"}, L""},
        {{}, {L"--list", L"--name=a"}, L""},
        {{}, {L"--name=a", L"--list"}, L""},
        {{}, {}, L""},
    };
    for (const ActionCase& row : rows)
    {
        check(row);
    }
}

TEST(ActionCheck, OneActionGivenSeveralTimesIsOne)
{
    const ActionCase rows[] = {
        {{}, {L"--list", L"--list"}, L""},
        {{}, {L"--list", L"-l"}, L""},
        {{}, {L"-a", L"--verify", L"-a"}, L""},
        {{}, {L"--list", L"--no-list"}, L""},
    };
    for (const ActionCase& row : rows)
    {
        check(row);
    }
}

TEST(ActionCheck, TwoActionsAreOneTooMany)
{
    const ActionCase rows[] = {
        {{}, {L"--list", L"--sum"}, onlyOne(L"sum", L"list")},
        {{}, {L"-l", L"-s"}, onlyOne(L"sum", L"list")},
        {{}, {L"--list", L"--zero"}, onlyOne(L"zero", L"list")},
        // A negated action counts as given.
        {{}, {L"--no-list", L"--sum"}, onlyOne(L"sum", L"list")},
        {{}, {L"--list", L"--sum", L"--name=a"}, onlyOne(L"sum", L"list")},
    };
    for (const ActionCase& row : rows)
    {
        check(row);
    }
}

// Names are checked in sorted order, all names of an option included: verify comes first by its
// name "a".
TEST(ActionCheck, TheFirstNameInOrderIsTheChosenActionWhateverTheOrderOfTheArguments)
{
    const ActionCase rows[] = {
        {{}, {L"--sum", L"--list"}, onlyOne(L"sum", L"list")},
        {{}, {L"--zero", L"--sum"}, onlyOne(L"zero", L"sum")},
        {{}, {L"--list", L"--verify"}, onlyOne(L"list", L"verify")},
        {{}, {L"--verify", L"--list"}, onlyOne(L"list", L"verify")},
        {{}, {L"--zero", L"--verify", L"--sum", L"--list"}, onlyOne(L"list", L"verify")},
    };
    for (const ActionCase& row : rows)
    {
        check(row);
    }
}

TEST(ActionCheck, CompatibleActionsMayStandTogether)
{
    const ActionCase rows[] = {
        {{{L"list", L"sum"}}, {L"--list", L"--sum"}, L""},
        {{{L"list", L"sum"}}, {L"-s", L"-l", L"--name=a"}, L""},
        {{{L"list", L"sum"}}, {L"--list", L"-l", L"--sum", L"-s"}, L""},
        {{{L"list", L"sum", L"zero"}}, {L"--list", L"--zero"}, L""},
        {{{L"list", L"sum", L"zero"}}, {L"--list", L"--zero", L"--sum"}, L""},
        {{{L"list", L"zero"}, {L"list", L"sum"}}, {L"--list", L"--sum"}, L""},
        {{{L"list", L"sum", L"unknown"}}, {L"--list", L"--sum"}, L""},
    };
    for (const ActionCase& row : rows)
    {
        check(row);
    }
}

TEST(ActionCheck, OneGroupMustHoldAllActionsGiven)
{
    const ActionCase rows[] = {
        {{{L"list", L"sum"}}, {L"--list", L"--zero"}, onlyOne(L"zero", L"list")},
        {{{L"list", L"sum"}}, {L"--list", L"--sum", L"--zero"}, onlyOne(L"zero", L"list")},
        // Each pair is compatible, but no group holds all three. The first action is the chosen
        // one.
        {{{L"list", L"sum"}, {L"sum", L"zero"}, {L"list", L"zero"}},
         {L"--list", L"--sum", L"--zero"},
         onlyOne(L"zero", L"list")},
        {{{L"list"}, {L"sum"}}, {L"--list", L"--sum"}, onlyOne(L"sum", L"list")},
        {{{}}, {L"--list", L"--sum"}, onlyOne(L"sum", L"list")},
    };
    for (const ActionCase& row : rows)
    {
        check(row);
    }
}

TEST(ActionCheck, GroupsHoldPrimaryNames)
{
    const ActionCase rows[] = {
        {{{L"l", L"s"}}, {L"-l", L"-s"}, onlyOne(L"sum", L"list")},
        {{{L"list", L"s"}}, {L"--list", L"--sum"}, onlyOne(L"sum", L"list")},
        {{{L"List", L"Sum"}}, {L"--list", L"--sum"}, onlyOne(L"sum", L"list")},
    };
    for (const ActionCase& row : rows)
    {
        check(row);
    }
}

TEST(ActionCheck, AGroupAddedTwiceCountsAsOnce)
{
    const ActionCase rows[] = {
        {{{L"list", L"sum"}, {L"list", L"sum"}}, {L"--list", L"--sum"}, L""},
        {{{L"list", L"sum"}, {L"list", L"sum"}},
         {L"--list", L"--sum", L"--zero"},
         onlyOne(L"zero", L"list")},
        {{{L"list", L"sum"}, {L"list", L"sum"}}, {L"--list", L"--zero"}, onlyOne(L"zero", L"list")},
    };
    for (const ActionCase& row : rows)
    {
        check(row);
    }
}

TEST(ActionCheck, AGroupIsCopiedWhenItIsAdded)
{
    Host host(2);
    declare(host);
    std::set<std::wstring> group = {L"list", L"sum"};
    host.parser().addCompatibleActions(group);
    group = {L"list", L"zero"};
    EXPECT_EQ(host.parse({L"--list", L"--sum"}), 0);
    host.renewResult();
    EXPECT_EQ(host.parse({L"--list", L"--zero"}), 2);
    EXPECT_EQ(host.message(), onlyOne(L"zero", L"list"));
}

TEST(ActionCheck, AGroupMayBeAddedBetweenParses)
{
    Host host(2);
    declare(host);
    EXPECT_EQ(host.parse({L"--list", L"--sum"}), 2);
    host.parser().addCompatibleActions({L"list", L"sum"});
    host.renewResult();
    EXPECT_EQ(host.parse({L"--list", L"--sum"}), 0);
}

TEST(ActionCheck, ValueOptionsAloneNeedAnAction)
{
    const ActionCase rows[] = {
        {{}, {L"--name=a"}, L"No action defined."},
        {{{L"list", L"sum"}}, {L"--name=a", L"--name=b"}, L"No action defined."},
    };
    for (const ActionCase& row : rows)
    {
        check(row);
    }
}

TEST(ActionCheck, AParserWithoutActionsNeedsNone)
{
    Host host(2);
    host.addOption(L"name");
    EXPECT_EQ(host.parse({L"--name=a"}), 0);
}

TEST(ActionCheck, ABooleanValueOptionIsNoAction)
{
    Host host(2);
    host.addSwitch(L"list");
    host.addOption(L"quick", value_type_boolean);
    host.addOption(L"quiet", value_type_none);
    EXPECT_EQ(host.parse({L"--quick", L"--quiet"}), 2);
    EXPECT_EQ(host.message(), L"No action defined.");
    EXPECT_EQ(host.parse({L"--quick", L"--quiet", L"--list"}), 0);
}

TEST(ActionCheck, ASwitchThatTakesAValueIsAnAction)
{
    Host host(2);
    host.addSwitch(L"list");
    host.addSwitch(L"sort", value_type_string);
    EXPECT_EQ(host.parse({L"--sort=name"}), 0);
    EXPECT_EQ(host.texts(L"sort"), (std::vector<std::wstring>{L"name"}));
    host.renewResult();
    EXPECT_EQ(host.parse({L"--sort=name", L"--list"}), 2);
    EXPECT_EQ(host.message(), onlyOne(L"sort", L"list"));
}

TEST(ActionCheck, PositionalArgumentsAloneNeedAnActionToo)
{
    Host host(2);
    host.addSwitch(L"list");
    host.addPositional(L"path");
    EXPECT_EQ(host.parse({L"x"}), 2);
    EXPECT_EQ(host.message(), L"No action defined.");
    host.renewResult();
    EXPECT_EQ(host.parse({L"--", L"x"}), 2);
    EXPECT_EQ(host.message(), L"No action defined.");
}

TEST(ActionCheck, LeftOverArgumentsNeedNoAction)
{
    Host host(2);
    host.addSwitch(L"list");
    EXPECT_EQ(host.parse({L"--", L"--name=a"}), 0);
}

TEST(ActionCheck, ACommandLineTextIsCheckedToo)
{
    Host host(2);
    declare(host);
    EXPECT_EQ(host.parseLines(L"--list\n--sum"), 2);
    EXPECT_EQ(host.message(), onlyOne(L"sum", L"list"));
}

TEST(ActionCheck, AnEarlierErrorComesFirst)
{
    Host host(2);
    declare(host);
    EXPECT_EQ(host.parse({L"--list", L"--sum", L"x"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: x");
}
