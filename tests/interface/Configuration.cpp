// Declaring options, and looking them up with hasOption.
#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

struct HasOptionCase
{
    const wchar_t* name;
    bool switchesOnly;
    const wchar_t* group;
    bool expected;
};

std::string show(const HasOptionCase& row)
{
    const auto text = [](const wchar_t* part)
    {
        return part == nullptr ? std::string("null") : "'" + toUtf8(part) + "'";
    };
    return text(row.name) + (row.switchesOnly ? ", switches, " : ", value options, ") +
           text(row.group);
}

} // namespace

TEST(AddOption, ReturnsStatusThreeAndTheOption)
{
    Host host;
    const Registration& registration =
        host.parser().addOption(L"name", L"the name", value_type_string, L"group");
    EXPECT_EQ(registration.status, 3);
    EXPECT_NE(registration.option, nullptr);
}

TEST(AddOption, DeclaresAnOptionThatTakesValues)
{
    Host host(2);
    host.parser().addOption(L"count,c", L"", value_type_integer, L"");
    EXPECT_TRUE(host.parser().hasOption(L"count", false, nullptr));
    EXPECT_FALSE(host.parser().hasOption(L"count", true, nullptr));
    EXPECT_EQ(host.parse({L"-c", L"5"}), 0);
    EXPECT_EQ(host.values(L"count").at(0).kind, value_type_integer);
}

TEST(AddOption, GivesTheOptionNoKeyword)
{
    Host host(2);
    host.addSwitch(L"list");
    host.parser().addOption(L"name", L"", value_type_string, L"");
    EXPECT_EQ(host.parse({L"--list", L"--name=a"}), 0);
    EXPECT_STREQ(host.parser().showRelatedHelp(L"list", false), L"");
}

TEST(AddSwitch, ReturnsStatusThreeAndTheOption)
{
    Host host;
    const Registration& registration =
        host.parser().addSwitch(L"list", L"lists", value_type_boolean, L"group");
    EXPECT_EQ(registration.status, 3);
    EXPECT_NE(registration.option, nullptr);
}

TEST(AddSwitch, DeclaresAnAction)
{
    Host host(2);
    host.parser().addSwitch(L"list,l", L"lists", value_type_boolean, L"");
    EXPECT_TRUE(host.parser().hasOption(L"list", true, nullptr));
    EXPECT_FALSE(host.parser().hasOption(L"list", false, nullptr));
    EXPECT_STREQ(host.parser().getTopicList(false), L"    list   lists\n");
    EXPECT_EQ(host.parse({L"-l"}), 0);
    EXPECT_TRUE(host.isPresent(L"list"));
}

TEST(AddSwitch, MakesItsNamesItsKeywords)
{
    Host host(2);
    host.addSwitch(L"list,l");
    host.addSwitch(L"sum");
    host.parser().addOptionWithKeywords(L"depth", L"l", L"", value_type_string, L"");
    EXPECT_EQ(host.parse({L"--list", L"--depth=1"}), 0);
    host.renewResult();
    EXPECT_EQ(host.parse({L"--sum", L"--depth=1"}), 2);
    EXPECT_EQ(host.message(), L"Action '-sum' doesn't accept option '-depth'");
}

TEST(AddOptionWithKeywords, ReturnsStatusThreeAndTheOption)
{
    Host host;
    const Registration& registration = host.parser().addOptionWithKeywords(
        L"depth", L"list", L"how deep", value_type_integer, L"group");
    EXPECT_EQ(registration.status, 3);
    EXPECT_NE(registration.option, nullptr);
}

TEST(AddOptionWithKeywords, DeclaresAnOptionThatTakesValues)
{
    Host host;
    host.parser().addOptionWithKeywords(L"depth", L"list", L"", value_type_integer, L"");
    EXPECT_TRUE(host.parser().hasOption(L"depth", false, nullptr));
    EXPECT_FALSE(host.parser().hasOption(L"depth", true, nullptr));
}

TEST(AddOptionWithKeywords, SplitsTheKeywordsAtEveryComma)
{
    Host host(2);
    host.addSwitch(L"list");
    host.addSwitch(L"sum");
    host.addSwitch(L"verify");
    host.parser().addOptionWithKeywords(L"depth", L"list,,verify,", L"", value_type_string, L"");
    EXPECT_EQ(host.parse({L"--list", L"--depth=1"}), 0);
    host.renewResult();
    EXPECT_EQ(host.parse({L"--verify", L"--depth=1"}), 0);
    host.renewResult();
    EXPECT_EQ(host.parse({L"--sum", L"--depth=1"}), 2);
}

TEST(AddOptionWithKeywords, NullKeywordsAreNone)
{
    Host host(2);
    host.addSwitch(L"list");
    EXPECT_EQ(
        host.parser().addOptionWithKeywords(L"depth", nullptr, L"", value_type_string, L"").status,
        3);
    EXPECT_EQ(host.parse({L"--list", L"--depth=1"}), 0);
}

TEST(Registrations, AFailureReturnsStatusOneAndNoOption)
{
    Host host;
    const Registration& registration =
        host.parser().addOption(L"a,b,c,d", L"", value_type_string, L"");
    EXPECT_EQ(registration.status, 1);
    EXPECT_EQ(registration.option, nullptr);
    EXPECT_FALSE(host.parser().hasOption(L"a", false, nullptr));
}

TEST(Registrations, OneRecordOfTheParserHoldsTheLatestRegistration)
{
    Host host;
    const Registration& first = host.parser().addOption(L"name", L"", value_type_string, L"");
    IOption* const option = first.option;
    const Registration& second = host.parser().addSwitch(L"list", L"", value_type_boolean, L"");
    EXPECT_EQ(&first, &second);
    EXPECT_NE(second.option, option);
    host.parser().addOptionWithKeywords(L"a,b,cde", L"x", L"", value_type_string, L"");
    EXPECT_EQ(first.status, 1);
    EXPECT_EQ(first.option, nullptr);
}

TEST(Registrations, NullTextsCountAsEmpty)
{
    Host host(2);
    EXPECT_EQ(host.parser().addOption(L"name", nullptr, value_type_string, nullptr).status, 3);
    EXPECT_TRUE(host.parser().hasOption(L"name", false, L""));
    EXPECT_EQ(host.parser().addOption(nullptr, L"", value_type_string, L"").status, 1);
}

TEST(Registrations, TextsAreCopied)
{
    std::wstring names = L"name";
    std::wstring group = L"files";
    Host host;
    host.parser().addOption(names.c_str(), L"", value_type_string, group.c_str());
    names = L"####";
    group = L"#####";
    EXPECT_TRUE(host.parser().hasOption(L"name", false, L"files"));
}

TEST(HasOption, ComparesKindNameAndGroup)
{
    Host host;
    host.parser().addOption(L"name,n", L"", value_type_string, L"files:Files to read");
    host.parser().addOption(L"quick", L"", value_type_boolean, L"");
    host.parser().addSwitch(L"list,l", L"", value_type_boolean, L"actions");
    host.parser().addSwitch(L"sort", L"", value_type_string, L"actions");
    const HasOptionCase rows[] = {
        {L"name", false, nullptr, true},
        {L"name", true, nullptr, false},
        {L"n", false, nullptr, true},
        {L"n", true, nullptr, false},
        {L"list", true, nullptr, true},
        {L"list", false, nullptr, false},
        {L"l", true, nullptr, true},
        // Decided by the operation that declared it, not by its type.
        {L"quick", false, nullptr, true},
        {L"quick", true, nullptr, false},
        {L"sort", true, nullptr, true},
        {L"sort", false, nullptr, false},
        // A group is found by the text before the colon, in full.
        {L"name", false, L"files", true},
        {L"n", false, L"files", true},
        {L"name", false, L"file", false},
        {L"name", false, L"Files", false},
        {L"name", false, L"files:Files to read", false},
        {L"name", false, L"", false},
        {L"name", true, L"files", false},
        {L"quick", false, L"", true},
        {L"quick", false, L"files", false},
        {L"list", true, L"actions", true},
        {L"list", true, L"files", false},
        {L"list", false, L"actions", false},
        // Names are compared in full and with case.
        {L"nam", false, nullptr, false},
        {L"names", false, nullptr, false},
        {L"Name", false, nullptr, false},
        {L"-name", false, nullptr, false},
        {L"no-list", true, nullptr, false},
        {L"name,n", false, nullptr, false},
        {L"", false, nullptr, false},
        {L"other", false, nullptr, false},
        {nullptr, false, nullptr, false},
        {nullptr, true, L"actions", false},
    };
    for (const HasOptionCase& row : rows)
    {
        SCOPED_TRACE(show(row));
        EXPECT_EQ(host.parser().hasOption(row.name, row.switchesOnly, row.group), row.expected);
    }
}

TEST(HasOption, AnEmptyParserHasNone)
{
    Host host;
    EXPECT_FALSE(host.parser().hasOption(L"name", false, nullptr));
    EXPECT_FALSE(host.parser().hasOption(L"name", true, nullptr));
    EXPECT_FALSE(host.parser().hasOption(nullptr, false, nullptr));
}

TEST(HasOption, ANameAddedLaterCounts)
{
    Host host;
    IOption& option = host.addOption(L"name");
    EXPECT_FALSE(host.parser().hasOption(L"alias", false, nullptr));
    option.addName(L"alias");
    EXPECT_TRUE(host.parser().hasOption(L"alias", false, nullptr));
    EXPECT_TRUE(host.parser().hasOption(L"alias", false, L""));
    EXPECT_FALSE(host.parser().hasOption(L"alias", true, nullptr));
}

TEST(HasOption, FindsALaterOptionOfTheNameInTheGivenGroup)
{
    Host host;
    host.parser().addOption(L"first", L"", value_type_string, L"one").option->addName(L"shared");
    host.parser().addOption(L"second", L"", value_type_string, L"two").option->addName(L"shared");
    host.parser().addSwitch(L"third", L"", value_type_boolean, L"three").option->addName(L"shared");
    EXPECT_TRUE(host.parser().hasOption(L"shared", false, L"one"));
    EXPECT_TRUE(host.parser().hasOption(L"shared", false, L"two"));
    EXPECT_FALSE(host.parser().hasOption(L"shared", false, L"three"));
    EXPECT_TRUE(host.parser().hasOption(L"shared", true, L"three"));
    EXPECT_FALSE(host.parser().hasOption(L"shared", true, L"one"));
}

TEST(HasOption, FindsNoOptionAsBothKinds)
{
    for (const std::int32_t type : {0, 6, 7, 8, 9, 11, 13, 17})
    {
        SCOPED_TRACE(type);
        Host host;
        host.addOption(L"option", type);
        host.addSwitch(L"switch", type);
        for (const wchar_t* name : {L"option", L"switch"})
        {
            EXPECT_NE(host.parser().hasOption(name, true, nullptr),
                      host.parser().hasOption(name, false, nullptr));
        }
    }
}
