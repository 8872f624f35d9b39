// Options found by a full name or by a prefix of only one name.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;

using Texts = std::vector<std::wstring>;

std::wstring ambiguous(const std::wstring& name, const std::wstring& argument,
                       const std::wstring& candidates)
{
    return L"Ambiguous option '" + name + L"' in argument: '" + argument + L"', could be: " +
           candidates;
}

// Parses one argument and returns the error message, or "OK".
std::wstring outcomeOf(Host& host, const std::wstring& argument)
{
    host.renewResult();
    return host.parse({argument.c_str()}) == 0 ? std::wstring(L"OK") : host.message();
}

TEST(OptionAbbreviations, EveryUniquePrefixFindsTheOption)
{
    Host host(flag_unknown_is_error);
    host.addOption(L"output");
    host.addOption(L"input");
    for (const wchar_t* name : {L"o", L"ou", L"out", L"outp", L"outpu", L"output"})
    {
        EXPECT_EQ(outcomeOf(host, std::wstring(L"--") + name + L"=v"), L"OK") << toUtf8(name);
        EXPECT_EQ(host.texts(L"output"), Texts{L"v"}) << toUtf8(name);
    }
    for (const wchar_t* name : {L"outputs", L"utput", L"O", L"oUt", L"Output", L"ot"})
    {
        const std::wstring argument = std::wstring(L"--") + name + L"=v";
        EXPECT_EQ(outcomeOf(host, argument), L"Unknown option: " + argument);
    }
}

TEST(OptionAbbreviations, AnyNameMayBeAbbreviated)
{
    Host host;
    host.addOption(L"output,destination,o");
    EXPECT_EQ(host.parse({L"--dest=1", L"-d=2", L"-o=3", L"--out=4"}), 0);
    EXPECT_EQ(host.texts(L"output"), (Texts{L"1", L"2", L"3", L"4"}));
}

TEST(OptionAbbreviations, AbbreviationSharedByTwoOptionsListsBoth)
{
    Host host;
    host.addOption(L"verbose", value_type_boolean);
    host.addOption(L"version");
    EXPECT_EQ(outcomeOf(host, L"--verb"), L"OK");
    EXPECT_TRUE(host.isPresent(L"verbose"));
    EXPECT_EQ(outcomeOf(host, L"--ver"),
              L"Ambiguous option 'ver' in argument: '--ver', could be: 'verbose', 'version'");
    EXPECT_EQ(outcomeOf(host, L"-ver=5"), ambiguous(L"ver", L"-ver=5", L"'verbose', 'version'"));
    EXPECT_EQ(outcomeOf(host, L"\u2014\u2014v x"),
              ambiguous(L"v", L"\u2014\u2014v x", L"'verbose', 'version'"));
}

TEST(OptionAbbreviations, CandidatesAreListedInTheOrderOfDeclaration)
{
    Host host;
    host.addOption(L"xz,xb,xa");
    host.addOption(L"xy", value_type_boolean);
    host.addOption(L"no-x");
    host.addOption(L"xc").addName(L"x0");
    EXPECT_EQ(outcomeOf(host, L"--x"),
              ambiguous(L"x", L"--x", L"'xz', 'xb', 'xa', 'xy', 'xc', 'x0'"));
    EXPECT_EQ(outcomeOf(host, L"--n"), ambiguous(L"n", L"--n", L"'no-xy', 'no-x'"));
}

TEST(OptionAbbreviations, NegatedNamesFollowEachNameOfABoolean)
{
    Host host;
    host.addOption(L"one,other", value_type_boolean);
    host.addOption(L"once", value_type_boolean);
    EXPECT_EQ(outcomeOf(host, L"--no"),
              ambiguous(L"no", L"--no", L"'no-one', 'no-other', 'no-once'"));
    EXPECT_EQ(outcomeOf(host, L"--no-on"), ambiguous(L"no-on", L"--no-on", L"'no-one', 'no-once'"));
    host.addOption(L"noon");
    EXPECT_EQ(outcomeOf(host, L"--no"),
              ambiguous(L"no", L"--no", L"'no-one', 'no-other', 'no-once', 'noon'"));
}

TEST(OptionAbbreviations, NamesAndNegatedNamesMixInTableOrder)
{
    Host host;
    host.addOption(L"n", value_type_boolean);
    host.addOption(L"nb");
    host.addOption(L"m", value_type_boolean);
    EXPECT_EQ(outcomeOf(host, L"--n"), L"OK"); // exact
    host.addOption(L"no");
    EXPECT_EQ(outcomeOf(host, L"--no-"), ambiguous(L"no-", L"--no-", L"'no-n', 'no-m'"));
    EXPECT_EQ(outcomeOf(host, L"--no"), L"Option 'no' requires a value in argument: '--no'");
}

TEST(OptionAbbreviations, TwoNamesOfOneOptionAreTwoCandidates)
{
    Host host;
    host.addOption(L"color,colour");
    EXPECT_EQ(outcomeOf(host, L"--col=red"), ambiguous(L"col", L"--col=red", L"'color', 'colour'"));
    EXPECT_EQ(outcomeOf(host, L"--colou=red"), L"OK");
}

TEST(OptionAbbreviations, FullNameBeatsALongerOne)
{
    Host host;
    host.addOption(L"version");
    host.addOption(L"ver");
    host.addOption(L"versions");
    EXPECT_EQ(host.parse({L"--ver=1", L"--version=2", L"--versions=3"}), 0);
    EXPECT_EQ(host.texts(L"ver"), Texts{L"1"});
    EXPECT_EQ(host.texts(L"version"), Texts{L"2"});
    EXPECT_EQ(host.texts(L"versions"), Texts{L"3"});
    EXPECT_EQ(outcomeOf(host, L"--vers=1"),
              ambiguous(L"vers", L"--vers=1", L"'version', 'versions'"));
}

TEST(OptionAbbreviations, NameAddedTwiceIsFoundInFullAtTheFirstOption)
{
    Host host;
    host.addOption(L"first").addName(L"same");
    host.addOption(L"second").addName(L"same");
    EXPECT_EQ(outcomeOf(host, L"--same=v"), L"OK");
    EXPECT_EQ(host.texts(L"first"), Texts{L"v"});
    EXPECT_FALSE(host.isPresent(L"second"));
    EXPECT_EQ(outcomeOf(host, L"--sam=v"), ambiguous(L"sam", L"--sam=v", L"'same', 'same'"));
}

TEST(OptionAbbreviations, PlainNameAddedLaterThanANegatedOneComesSecond)
{
    Host host;
    host.addOption(L"cache", value_type_boolean);
    host.addOption(L"no-cache");
    EXPECT_EQ(outcomeOf(host, L"--no-cache"), L"OK");
    EXPECT_EQ(host.texts(L"cache"), Texts{L"0"});
    EXPECT_FALSE(host.isPresent(L"no-cache"));
    EXPECT_EQ(outcomeOf(host, L"--no-cach=v"),
              ambiguous(L"no-cach", L"--no-cach=v", L"'no-cache', 'no-cache'"));
}

TEST(OptionAbbreviations, PlainNameDeclaredBeforeANegatedOneWins)
{
    Host host;
    host.addOption(L"no-cache");
    host.addOption(L"cache", value_type_boolean);
    EXPECT_EQ(outcomeOf(host, L"--no-cache=v"), L"OK");
    EXPECT_EQ(host.texts(L"no-cache"), Texts{L"v"});
    EXPECT_FALSE(host.isPresent(L"cache"));
}

TEST(OptionAbbreviations, NamesMayHoldAnyCharacters)
{
    Host host;
    host.addOption(L"\u00E9t\u00E9");
    host.addOption(L"\U0001F600\U0001F601");
    host.addOption(L"name with/odd:characters");
    EXPECT_EQ(host.parse({L"--\u00E9=1", L"--\U0001F600=2"}), 0);
    EXPECT_EQ(host.texts(L"\u00E9t\u00E9"), Texts{L"1"});
    EXPECT_EQ(host.texts(L"\U0001F600\U0001F601"), Texts{L"2"});
    // A blank or an equals sign ends the typed name: only a prefix finds a name that contains one.
    EXPECT_EQ(host.parse({L"--name with/odd:characters"}), 0);
    EXPECT_EQ(host.texts(L"name with/odd:characters"), Texts{L"with/odd:characters"});
}

TEST(OptionAbbreviations, SwitchesAndOptionsShareTheirNames)
{
    Host host;
    host.addSwitch(L"list");
    host.addOption(L"limit");
    EXPECT_EQ(outcomeOf(host, L"--li"), ambiguous(L"li", L"--li", L"'list', 'limit'"));
    EXPECT_EQ(outcomeOf(host, L"--no-l"), L"OK");
}

TEST(OptionAbbreviations, OptionDeclaredBetweenParsesCounts)
{
    Host host(flag_unknown_is_error);
    host.addOption(L"version");
    EXPECT_EQ(outcomeOf(host, L"--ver=1"), L"OK");
    host.addOption(L"verbose", value_type_boolean);
    EXPECT_EQ(outcomeOf(host, L"--ver=1"), ambiguous(L"ver", L"--ver=1", L"'version', 'verbose'"));
    EXPECT_EQ(outcomeOf(host, L"--no"), L"OK");
    EXPECT_EQ(host.texts(L"verbose"), Texts{L"0"});
}

} // namespace
