// The hyphens before an option name: which characters, and how many.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;

using Texts = std::vector<std::wstring>;

// Hyphen-minus, figure dash, en dash, em dash, horizontal bar, swung dash.
const Texts hyphens = {L"-", L"\u2012", L"\u2013", L"\u2014", L"\u2015", L"\u2053"};

// Similar characters that begin no option: hyphen, non-breaking hyphen, minus sign, small and
// fullwidth hyphen-minus, soft hyphen, two-em dash, hyphen bullet, overline, low line, tilde.
const Texts look_alikes = {L"\u2010", L"\u2011", L"\u2212", L"\uFE63", L"\uFF0D", L"\u00AD",
                           L"\u2E3A", L"\u2043", L"\u203E", L"_",      L"~",      L"/"};

// Parses one argument, with unknown ones reported as errors. Returns the values of "name" or the
// message.
Texts outcomeOf(const std::wstring& argument)
{
    Host host(flag_unknown_is_error);
    host.addOption(L"name");
    host.addOption(L"verbose", value_type_boolean);
    return host.parse({argument.c_str()}) == 0 ? host.texts(L"name") : Texts{host.message()};
}

TEST(HyphenPrefixes, OneOfTheSixIsEnough)
{
    for (const std::wstring& hyphen : hyphens)
    {
        EXPECT_EQ(outcomeOf(hyphen + L"name=v"), Texts{L"v"}) << toUtf8(hyphen);
    }
}

TEST(HyphenPrefixes, TwoOfTheSixInAnyMixAreOne)
{
    for (const std::wstring& first : hyphens)
    {
        for (const std::wstring& second : hyphens)
        {
            EXPECT_EQ(outcomeOf(first + second + L"name=v"), Texts{L"v"}) << toUtf8(first + second);
        }
    }
}

TEST(HyphenPrefixes, ThreeMakeNoOption)
{
    for (const std::wstring& hyphen : hyphens)
    {
        for (const std::wstring& two : {std::wstring(L"--"), std::wstring(L"\u2014\u2014")})
        {
            const std::wstring argument = two + hyphen + L"name=v";
            EXPECT_EQ(outcomeOf(argument), Texts{L"Unknown option: " + argument});
        }
    }
}

TEST(HyphenPrefixes, LookAlikesAreNoHyphens)
{
    for (const std::wstring& character : look_alikes)
    {
        for (const std::wstring& prefix : {character, character + L"-", L"-" + character})
        {
            const std::wstring argument = prefix + L"name=v";
            EXPECT_EQ(outcomeOf(argument), Texts{L"Unknown option: " + argument});
        }
    }
}

TEST(HyphenPrefixes, ArgumentWithoutAHyphenIsNoOption)
{
    for (const wchar_t* argument : {L"name=v", L"name", L" -name=v", L"n", L"", L"=v"})
    {
        EXPECT_EQ(outcomeOf(argument), Texts{std::wstring(L"Unknown option: ") + argument});
    }
}

TEST(HyphenPrefixes, LoneHyphenIsNoOption)
{
    for (const std::wstring& hyphen : hyphens)
    {
        EXPECT_EQ(outcomeOf(hyphen), Texts{L"Unknown option: " + hyphen});
    }
}

TEST(HyphenPrefixes, HyphensAloneAreAnUnknownOption)
{
    // An empty name is a prefix of every name: the argument is taken for an option, then refused.
    EXPECT_EQ(outcomeOf(L"-\u2014"), Texts{L"Unknown option '-\u2014'"});
    EXPECT_EQ(outcomeOf(L"\u2014\u2014"), Texts{L"Unknown option '\u2014\u2014'"});
    EXPECT_EQ(outcomeOf(L"\u2053-"), Texts{L"Unknown option '\u2053-'"});
}

TEST(HyphenPrefixes, ValueWithoutANameIsAnUnknownOption)
{
    for (const wchar_t* argument :
         {L"--=5", L"-=5", L"\u2014=5", L"-- 5", L"- 5", L"--=", L"-=", L"--\t", L"-\u2013 5"})
    {
        EXPECT_EQ(outcomeOf(argument), Texts{std::wstring(L"Unknown option '") + argument + L"'"});
    }
}

TEST(HyphenPrefixes, EmptyNameOfASingleOptionIsUnknownToo)
{
    Host host;
    host.addOption(L"name");
    EXPECT_EQ(host.parse({L"--=5"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option '--=5'");
}

TEST(HyphenPrefixes, EmptyNameWithoutAnyOptionIsAnUnknownArgument)
{
    Host host(flag_unknown_is_error);
    EXPECT_EQ(host.parse({L"--=5"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: --=5");
}

TEST(HyphenPrefixes, NameThatBeginsWithAHyphenIsClaimedAndRefused)
{
    Host host;
    host.addOption(L"-name");
    for (const wchar_t* argument : {L"---name=v", L"---na", L"\u2014\u2014-name", L"---=5"})
    {
        EXPECT_EQ(host.parse({argument}), 2) << toUtf8(argument);
        EXPECT_EQ(host.message(), std::wstring(L"Unknown option '") + argument + L"'");
    }
    EXPECT_FALSE(host.isPresent(L"-name"));
}

TEST(HyphenPrefixes, NameThatBeginsWithADashIsAnOptionBehindTwo)
{
    Host host;
    host.addOption(L"\u2014name");
    EXPECT_EQ(host.parse({L"--\u2014name=v", L"-\u2013\u2014na=w"}), 0);
    EXPECT_EQ(host.texts(L"\u2014name"), (Texts{L"v", L"w"}));
}

TEST(HyphenPrefixes, AddedEmptyNameIsNeverTyped)
{
    Host host;
    host.addOption(L"name").addName(L"");
    EXPECT_EQ(host.parse({L"--=5"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option '--=5'");
}

} // namespace
