// The list of topics, and the message for a topic that does not exist.
#include <string>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;

TEST(TopicList, WithoutATopicIsEmpty)
{
    Host host;
    EXPECT_STREQ(host.parser().getTopicList(false), L"");
    host.addOption(L"option");
    EXPECT_STREQ(host.parser().getTopicList(false), L"");
    EXPECT_STREQ(host.parser().getTopicList(true), L"");
}

TEST(TopicList, DescriptionsBeginBehindTheLongestName)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"a", L"first", value_type_boolean, L"");
    parser->addSwitch(L"abcd", L"second", value_type_boolean, L"");
    EXPECT_STREQ(parser->getTopicList(false), L"    a      first\n"
                                              L"    abcd   second\n");
}

TEST(TopicList, SwitchesAreListedByNameWhateverTheirGroupAndOrder)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"verify,v", L"Verifies.", value_type_boolean, L"work");
    parser->addOption(L"bytes", L"No topic.", value_type_integer, L"work");
    parser->addSwitch(L"list,l", L"Lists.", value_type_none, L"show:Showing");
    parser->addSwitch(L"Zip", L"Zips.", value_type_string, L"");
    parser->addSwitch(L"add", L"", value_type_boolean, L"work");
    EXPECT_STREQ(parser->getTopicList(false), L"    Zip      Zips.\n"
                                              L"    add      \n"
                                              L"    list     Lists.\n"
                                              L"    verify   Verifies.\n");
}

TEST(TopicList, OnlyPrimaryNamesOfListedTopicsMakeTheColumn)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"a,longer", L"first", value_type_boolean, L"")
        .option->addName(L"the longest of all");
    parser->addSwitch(L"secret-topic", L"second", value_type_boolean, L"kexa_hidden");
    parser->addOption(L"value-option", L"third", value_type_boolean, L"");
    EXPECT_STREQ(parser->getTopicList(false), L"    a   first\n");
}

TEST(TopicList, DescriptionIsNotWrapped)
{
    const ParserOwner parser = toolbox::createParser();
    const std::wstring description(200, L'x');
    parser->addSwitch(L"long", (description + L"\nsecond line").c_str(), value_type_boolean, L"");
    EXPECT_EQ(std::wstring(parser->getTopicList(false)),
              L"    long   " + description + L"\nsecond line\n");
}

TEST(TopicList, MarkedSwitchIsListed)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"a", L"first", value_type_boolean, L"").option->setMarked();
    EXPECT_STREQ(parser->getTopicList(false), L"    a   first\n");
}

TEST(TopicList, HiddenTopicsAreListedOnRequestOnly)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"shown", L"first", value_type_boolean, L"group");
    parser->addSwitch(L"secret-one", L"second", value_type_boolean, L"kexa_hidden:Hidden");
    EXPECT_STREQ(parser->getTopicList(false), L"    shown   first\n");
    EXPECT_STREQ(parser->getTopicList(true), L"    secret-one   second\n");
}

TEST(TopicList, GroupIsHiddenByItsFullNameOnly)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"a", L"first", value_type_boolean, L"kexa_hidden2");
    parser->addSwitch(L"b", L"second", value_type_boolean, L"Kexa_hidden");
    parser->addSwitch(L"c", L"third", value_type_boolean, L" kexa_hidden");
    EXPECT_STREQ(parser->getTopicList(false), L"    a   first\n    b   second\n    c   third\n");
    EXPECT_STREQ(parser->getTopicList(true), L"");
}

TEST(TopicNotAvailable, MessageHoldsTheNameAndTheListOfTopics)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"list", L"Lists.", value_type_boolean, L"");
    const std::wstring expected =
        L"Help for x not available.Please use one of the following topics:\n    list   Lists.\n";
    EXPECT_EQ(parser->showTopicHelp(L"x", false), expected);
    EXPECT_EQ(parser->showRelatedHelp(L"x", false), expected);
}

TEST(TopicNotAvailable, WithoutATopicTheListIsEmpty)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addOption(L"option", L"", value_type_string, L"");
    const std::wstring expected =
        L"Help for \u2014 not available.Please use one of the following topics:\n";
    EXPECT_EQ(parser->showTopicHelp(L"\u2014", false), expected);
    EXPECT_EQ(parser->showRelatedHelp(L"\u2014", false), expected);
}

TEST(TopicNotAvailable, HiddenTopicsAreListedOnRequest)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"list", L"Lists.", value_type_boolean, L"");
    parser->addSwitch(L"debug", L"Debugs.", value_type_boolean, L"kexa_hidden");
    const std::wstring expected =
        L"Help for x not available.Please use one of the following topics:\n    debug   Debugs.\n";
    EXPECT_EQ(parser->showTopicHelp(L"x", true), expected);
    EXPECT_EQ(parser->showRelatedHelp(L"x", true), expected);
}

TEST(TopicNotAvailable, NamesAreLookedUpInFullAndByCase)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"list", L"Lists.", value_type_boolean, L"");
    for (const std::wstring topic : {L"lis", L"List", L"lists", L"", L"no-listx", L"-list"})
    {
        const std::wstring expected = L"Help for " + topic +
                                      L" not available.Please use one of the following topics:\n"
                                      L"    list   Lists.\n";
        EXPECT_EQ(parser->showTopicHelp(topic.c_str(), false), expected);
        EXPECT_EQ(parser->showRelatedHelp(topic.c_str(), false), expected);
    }
}

TEST(NullTopic, ReturnsTheTopicList)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"list", L"Lists.", value_type_boolean, L"");
    parser->addSwitch(L"debug", L"Debugs.", value_type_boolean, L"kexa_hidden");
    for (const bool hidden : {false, true})
    {
        const std::wstring list = parser->getTopicList(hidden);
        EXPECT_EQ(list, hidden ? L"    debug   Debugs.\n" : L"    list   Lists.\n");
        EXPECT_EQ(parser->showTopicHelp(nullptr, hidden), list);
        EXPECT_EQ(parser->showRelatedHelp(nullptr, hidden), list);
    }
}

TEST(HelpTexts, TextsLiveAsLongAsTheParser)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"list", L"Lists.", value_type_boolean, L"");
    const wchar_t* const before = parser->getTopicList(false);
    const std::wstring copy = before;
    for (int index = 0; index < 200; ++index)
    {
        parser->addSwitch((L"topic" + std::to_wstring(index)).c_str(), L"", value_type_boolean,
                          L"");
        parser->getTopicList(false);
        parser->showFullHelp(false);
    }
    EXPECT_EQ(before, copy);
}

} // namespace
