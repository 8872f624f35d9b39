// Options that each help text lists, their order and their groups.
#include <string>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::variant_t;

void declare(IParser& parser, const wchar_t* name, const wchar_t* group)
{
    parser.addOption(name, L"text", value_type_none, group);
}

TEST(HelpListing, EmptyParserHasNoHelp)
{
    const ParserOwner parser = toolbox::createParser();
    EXPECT_STREQ(parser->showFullHelp(false), L"");
    EXPECT_STREQ(parser->showFullHelp(true), L"");
}

TEST(HelpListing, EntriesAreSortedByPrimaryNameInsideTheirGroup)
{
    const ParserOwner parser = toolbox::createParser();
    for (const wchar_t* name : {L"b", L"a,z", L"B", L"ab", L"\u00E9", L"_", L"1", L"-"})
    {
        declare(*parser, name, L"");
    }
    EXPECT_STREQ(parser->showFullHelp(false), L"--                            text\n"
                                              L"-1                            text\n"
                                              L"-B                            text\n"
                                              L"-_                            text\n"
                                              L"-z, -a                        text\n"
                                              L"-ab                           text\n"
                                              L"-b                            text\n"
                                              L"-\u00E9                            text\n"
                                              L"\n");
}

TEST(HelpListing, MarkedOptionsAreLeftOut)
{
    const ParserOwner parser = toolbox::createParser();
    declare(*parser, L"shown", L"group");
    parser->addOption(L"marked", L"text", value_type_none, L"group").option->setMarked();
    const std::wstring expected = L"group\n"
                                  L"-shown                        text\n"
                                  L"\n";
    EXPECT_EQ(parser->showFullHelp(false), expected);
    EXPECT_STREQ(parser->showTopicHelp(L"marked", false), L"group\n\n");
}

TEST(HelpListing, OptionWithThePositionalKeywordIsListedUnderATopic)
{
    Host host;
    host.parser()
        .addOption(L"file", L"text", value_type_string, L"")
        .option->addKeywords(L"kexa_positional_option");
    EXPECT_STREQ(host.parser().showFullHelp(false), L"");
    EXPECT_STREQ(host.parser().showTopicHelp(L"file", false),
                 L"-file=<string>                text\n\n");
}

TEST(HelpListing, GroupWithoutEntriesKeepsItsHeading)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"action", L"text", value_type_boolean, L"actions:All actions");
    declare(*parser, L"option", L"options");
    EXPECT_STREQ(parser->showFullHelp(false), L"actions\n"
                                              L" All actions\n"
                                              L"\n"
                                              L"\n"
                                              L"options\n"
                                              L"-option                       text\n"
                                              L"\n");
}

TEST(HelpListing, LongGroupTextIsWrapped)
{
    const ParserOwner parser = toolbox::createParser();
    declare(*parser, L"option",
            L"group:Lorem ipsum dolor sit amet, consectetur adipiscing elit, sed do eiusmod tempor "
            L"incididunt ut labore.\nUt enim");
    EXPECT_STREQ(
        parser->showFullHelp(false),
        L"group\n"
        L" Lorem ipsum dolor sit amet, consectetur adipiscing elit, sed do eiusmod tempor\n"
        L" incididunt ut labore.\n"
        L" Ut enim\n"
        L"\n"
        L"-option                       text\n"
        L"\n");
}

TEST(TopicHelp, ListsTheOneEntryUnderAllGroups)
{
    const ParserOwner parser = toolbox::createParser();
    declare(*parser, L"first", L"one:Text of one");
    parser->addSwitch(L"second,s", L"action", value_type_boolean, L"two");
    const std::wstring expected = L"one\n"
                                  L" Text of one\n"
                                  L"\n"
                                  L"\n"
                                  L"two\n"
                                  L"-s, -second | -no-second      action\n"
                                  L"\n";
    EXPECT_EQ(parser->showTopicHelp(L"second", false), expected);
    EXPECT_EQ(parser->showTopicHelp(L"s", false), expected);
}

TEST(TopicHelp, AddedNameIsATopicToo)
{
    Host host;
    host.addOption(L"first", value_type_none).addName(L"later");
    EXPECT_STREQ(host.parser().showTopicHelp(L"later", false), L"-later, -first\n\n");
}

TEST(TopicHelp, FirstOptionOfANameIsShown)
{
    Host host;
    host.addOption(L"first", value_type_none).addName(L"same");
    host.addOption(L"second", value_type_none).addName(L"same");
    EXPECT_STREQ(host.parser().showTopicHelp(L"same", false), L"-same, -first\n\n");
}

TEST(HiddenHelp, HiddenGroupIsShownOnRequestAndThenAlone)
{
    const ParserOwner parser = toolbox::createParser();
    declare(*parser, L"shown", L"group:Text");
    declare(*parser, L"secret", L"kexa_hidden:For developers");
    const std::wstring shown = L"group\n"
                               L" Text\n"
                               L"\n"
                               L"-shown                        text\n"
                               L"\n";
    const std::wstring hidden = L"kexa_hidden\n"
                                L" For developers\n"
                                L"\n"
                                L"-secret                       text\n"
                                L"\n";
    EXPECT_EQ(parser->showFullHelp(false), shown);
    EXPECT_EQ(parser->showFullHelp(true), hidden);
    EXPECT_EQ(parser->showTopicHelp(L"secret", true), hidden);
    EXPECT_EQ(parser->showTopicHelp(L"shown", false), shown);
}

TEST(HiddenHelp, TopicOfTheOtherKindShowsHeadingsOnly)
{
    const ParserOwner parser = toolbox::createParser();
    declare(*parser, L"shown", L"group");
    declare(*parser, L"secret", L"kexa_hidden");
    EXPECT_STREQ(parser->showTopicHelp(L"secret", false), L"group\n\n");
    EXPECT_STREQ(parser->showTopicHelp(L"shown", true), L"kexa_hidden\n\n");
}

TEST(HiddenHelp, HiddenOptionParsesLikeAnyOther)
{
    Host host;
    host.parser().addOption(L"secret", L"", value_type_string, L"kexa_hidden");
    EXPECT_EQ(host.parse({L"--sec=x"}), 0);
    EXPECT_EQ(host.texts(L"secret"), std::vector<std::wstring>{L"x"});
}

TEST(HiddenHelp, WithoutAHiddenGroupNothingIsShown)
{
    const ParserOwner parser = toolbox::createParser();
    declare(*parser, L"shown", L"group");
    EXPECT_STREQ(parser->showFullHelp(true), L"");
}

TEST(FullHelp, ListsValueOptionsWithoutKeywords)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"action", L"text", value_type_boolean, L"");
    parser->addOptionWithKeywords(L"keyed", L"action", L"text", value_type_none, L"");
    declare(*parser, L"plain", L"");
    EXPECT_STREQ(parser->showFullHelp(false), L"-plain                        text\n\n");
}

TEST(FullHelp, WithoutSuchAnOptionIsEmpty)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"action", L"text", value_type_boolean, L"group");
    parser->addOptionWithKeywords(L"keyed", L"action", L"text", value_type_none, L"group");
    EXPECT_STREQ(parser->showFullHelp(false), L"");
}

TEST(FullHelp, MarkedOptionAloneStillGivesTheHeadings)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addOption(L"marked", L"text", value_type_string, L"group").option->setMarked();
    EXPECT_STREQ(parser->showFullHelp(false), L"group\n\n");
}

TEST(RelatedHelp, ListsOtherValueOptionsThatShareAKeyword)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"list,l", L"action", value_type_boolean, L"actions");
    parser->addSwitch(L"sum", L"action", value_type_boolean, L"actions").option->addKeywords(L"l");
    parser->addOptionWithKeywords(L"width", L"sum,list", L"text", value_type_none, L"options");
    parser->addOptionWithKeywords(L"depth", L"l", L"text", value_type_none, L"options");
    parser->addOptionWithKeywords(L"other", L"x", L"text", value_type_none, L"options");
    declare(*parser, L"plain", L"options");
    const std::wstring both = L"actions\n"
                              L"\n"
                              L"options\n"
                              L"-depth                        text\n"
                              L"-width                        text\n"
                              L"\n";
    EXPECT_EQ(parser->showRelatedHelp(L"list", false), both);
    EXPECT_EQ(parser->showRelatedHelp(L"l", false), both);
    EXPECT_EQ(parser->showRelatedHelp(L"sum", false), both);
    EXPECT_STREQ(parser->showRelatedHelp(L"width", false), L"");
    EXPECT_STREQ(parser->showRelatedHelp(L"other", false), L"");
    EXPECT_STREQ(parser->showRelatedHelp(L"plain", false), L"");
}

TEST(RelatedHelp, OptionIsATopicAndNeverListsItself)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addOptionWithKeywords(L"width", L"k,m", L"text", value_type_none, L"");
    parser->addOptionWithKeywords(L"depth", L"m", L"text", value_type_none, L"");
    EXPECT_STREQ(parser->showRelatedHelp(L"width", false),
                 L"-depth                        text\n\n");
    EXPECT_STREQ(parser->showRelatedHelp(L"depth", false),
                 L"-width                        text\n\n");
}

TEST(RelatedHelp, HiddenTopicIsFoundWhateverIsShown)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addOptionWithKeywords(L"width", L"debug", L"text", value_type_none, L"");
    parser->addSwitch(L"debug", L"action", value_type_boolean, L"kexa_hidden");
    EXPECT_STREQ(parser->showRelatedHelp(L"debug", false),
                 L"-width                        text\n\n");
    EXPECT_STREQ(parser->showRelatedHelp(L"debug", true), L"kexa_hidden\n\n");
}

TEST(RelatedHelp, HiddenOptionsAreListedOnRequest)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"list", L"action", value_type_boolean, L"");
    parser->addOptionWithKeywords(L"secret", L"list", L"text", value_type_none, L"kexa_hidden");
    EXPECT_STREQ(parser->showRelatedHelp(L"list", true), L"kexa_hidden\n"
                                                         L"-secret                       text\n"
                                                         L"\n");
    EXPECT_STREQ(parser->showRelatedHelp(L"list", false), L"\n");
}

} // namespace
