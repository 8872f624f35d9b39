// Groups of options and their texts.
#include <string>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;

void declare(IParser& parser, const wchar_t* name, const wchar_t* groupText)
{
    parser.addOption(name, L"text", value_type_string, groupText);
}

TEST(DeclaredGroups, FirstTextOfAGroupWins)
{
    const ParserOwner parser = toolbox::createParser();
    declare(*parser, L"first", L"advanced:Advanced options");
    declare(*parser, L"second", L"advanced:Other");
    declare(*parser, L"third", L"advanced");
    EXPECT_STREQ(parser->showFullHelp(false), L"advanced\n"
                                              L" Advanced options\n"
                                              L"\n"
                                              L"-first=<string>               text\n"
                                              L"-second=<string>              text\n"
                                              L"-third=<string>               text\n"
                                              L"\n");
    EXPECT_TRUE(parser->hasOption(L"second", false, L"advanced"));
    EXPECT_FALSE(parser->hasOption(L"second", false, L"advanced:Other"));
}

TEST(DeclaredGroups, EmptyFirstTextWinsToo)
{
    const ParserOwner parser = toolbox::createParser();
    declare(*parser, L"first", L"advanced");
    declare(*parser, L"second", L"advanced:Late text");
    EXPECT_STREQ(parser->showFullHelp(false), L"advanced\n"
                                              L"-first=<string>               text\n"
                                              L"-second=<string>              text\n"
                                              L"\n");
}

TEST(DeclaredGroups, TextBeginsBehindTheFirstColon)
{
    const ParserOwner parser = toolbox::createParser();
    declare(*parser, L"first", L"a:b:c");
    declare(*parser, L"second", L":only text");
    declare(*parser, L"third", L"d:");
    EXPECT_STREQ(parser->showFullHelp(false), L"a\n"
                                              L" b:c\n"
                                              L"\n"
                                              L"-first=<string>               text\n"
                                              L"\n"
                                              L" only text\n"
                                              L"\n"
                                              L"-second=<string>              text\n"
                                              L"\n"
                                              L"d\n"
                                              L"-third=<string>               text\n"
                                              L"\n");
    EXPECT_TRUE(parser->hasOption(L"second", false, L""));
    EXPECT_TRUE(parser->hasOption(L"third", false, L"d"));
}

TEST(DeclaredGroups, GroupsAppearInTheOrderOfTheirFirstDeclaration)
{
    const ParserOwner parser = toolbox::createParser();
    declare(*parser, L"z", L"zebra");
    declare(*parser, L"a", L"ant");
    declare(*parser, L"y", L"zebra");
    declare(*parser, L"b", L"Zebra");
    EXPECT_STREQ(parser->showFullHelp(false), L"zebra\n"
                                              L"-y=<string>                   text\n"
                                              L"-z=<string>                   text\n"
                                              L"\n"
                                              L"ant\n"
                                              L"-a=<string>                   text\n"
                                              L"\n"
                                              L"Zebra\n"
                                              L"-b=<string>                   text\n"
                                              L"\n");
}

TEST(DeclaredGroups, GroupOfASwitchCountsAsDeclared)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"action", L"text", value_type_boolean, L"actions:From the switch");
    declare(*parser, L"option", L"actions:From the option");
    EXPECT_STREQ(parser->showFullHelp(false), L"actions\n"
                                              L" From the switch\n"
                                              L"\n"
                                              L"-option=<string>              text\n"
                                              L"\n");
}

} // namespace
