// Names of a declaration: how they are split, counted and refused, and names added later.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;

bool declared(IParser& parser, const wchar_t* name)
{
    return parser.hasOption(name, false, nullptr);
}

const Registration& declare(IParser& parser, const wchar_t* names)
{
    return parser.addOption(names, L"", value_type_string, L"");
}

TEST(DeclaredNames, EveryNameOfTheTextFindsTheOption)
{
    Host host;
    host.addOption(L"output,out,o");
    EXPECT_EQ(host.parse({L"--output=1", L"--out=2", L"-o=3"}), 0);
    const std::vector<std::wstring> all = {L"1", L"2", L"3"};
    EXPECT_EQ(host.texts(L"output"), all);
    EXPECT_EQ(host.texts(L"out"), all);
    EXPECT_EQ(host.texts(L"o"), all);
}

TEST(DeclaredNames, AtMostThreeNamesTheThirdOfAtMostTwoCharacters)
{
    const struct
    {
        const wchar_t* names;
        std::vector<const wchar_t*> pieces; // empty: the declaration fails
    } rows[] = {
        {L"a", {L"a"}},
        {L"a,b", {L"a", L"b"}},
        {L"a,second", {L"a", L"second"}},
        {L"a,b,c", {L"a", L"b", L"c"}},
        {L"a,b,cd", {L"a", L"b", L"cd"}},
        {L"first,second,x", {L"first", L"second", L"x"}},
        {L"a,b,cde", {}},
        {L"a,b,c,d", {}},
        {L"a,b,c,d,e", {}},
        {L"a,b,cde,d", {}},
        {L",a,,b,", {L"a", L"b"}},
        {L"a,b,c,", {L"a", L"b", L"c"}},
        {L",,a,,b,,cd,,", {L"a", L"b", L"cd"}},
        {L"a,b,,cde", {}},
        {L",a,b,c,d", {}},
        {L" a, b", {L" a", L" b"}},
        {L"a,b,c ", {L"a", L"b", L"c "}},
        {L"a,b,cd ", {}},
        {L" ", {L" "}},
        {L"a,b,\U0001F600", {L"a", L"b", L"\U0001F600"}},
        {L"", {}},
        {L",", {}},
        {L",,,", {}},
        {nullptr, {}},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.names == nullptr ? "null" : toUtf8(row.names));
        const ParserOwner parser = toolbox::createParser();
        const std::string output = captureOutput(
            [&]
            {
                const Registration& registration = declare(*parser, row.names);
                EXPECT_EQ(registration.option != nullptr, !row.pieces.empty());
                EXPECT_EQ(registration.status, row.pieces.empty() ? 1 : 3);
            });
        EXPECT_EQ(output, "");
        for (const wchar_t* piece : row.pieces)
        {
            EXPECT_TRUE(declared(*parser, piece)) << toUtf8(piece);
        }
        for (const wchar_t* piece : {L"", L"cde", L"d", L"e", L"a,b"})
        {
            EXPECT_FALSE(declared(*parser, piece)) << toUtf8(piece);
        }
        EXPECT_EQ(declared(*parser, L"a"),
                  !row.pieces.empty() && row.pieces[0] == std::wstring(L"a"));
    }
}

TEST(DeclaredNames, RecordIsOverwrittenByTheNextDeclaration)
{
    const ParserOwner parser = toolbox::createParser();
    const Registration& first = declare(*parser, L"a");
    IOption* const option = first.option;
    ASSERT_NE(option, nullptr);
    const Registration& second = declare(*parser, L"");
    EXPECT_EQ(&first, &second);
    EXPECT_EQ(first.option, nullptr);
    EXPECT_EQ(first.status, 1);
    EXPECT_NE(parser->addSwitch(L"b", L"", value_type_boolean, L"").option, option);
    EXPECT_EQ(first.status, 3);
    EXPECT_EQ(&parser->addOptionWithKeywords(L"c", L"", L"", value_type_string, L""), &first);
    EXPECT_NE(first.option, nullptr);
    EXPECT_EQ(&declare(*parser, nullptr), &first);
    EXPECT_EQ(first.option, nullptr);
    EXPECT_EQ(first.status, 1);
}

TEST(DeclaredNames, TakenNameIsReportedWithTheWholeNamesText)
{
    const ParserOwner parser = toolbox::createParser();
    declare(*parser, L"out,o");
    const struct
    {
        const wchar_t* names;
        const char* line;
    } rows[] = {
        {L"out", "Tried to register an option with a name, which is alread registered: out\n"},
        {L"o", "Tried to register an option with a name, which is alread registered: o\n"},
        {L"x,out", "Tried to register an option with a name, which is alread registered: x,out\n"},
        {L"out,x", "Tried to register an option with a name, which is alread registered: out,x\n"},
        {L",x,,out,",
         "Tried to register an option with a name, which is alread registered: ,x,,out,\n"},
        {L"o,\u2014,\U0001F600", "Tried to register an option with a name, which is alread "
                                 "registered: o,\xE2\x80\x94,\xF0\x9F\x98\x80\n"},
    };
    for (const auto& row : rows)
    {
        const std::string output = captureOutput(
            [&]
            {
                const Registration& registration = declare(*parser, row.names);
                EXPECT_EQ(registration.option, nullptr) << toUtf8(row.names);
                EXPECT_EQ(registration.status, 1) << toUtf8(row.names);
            });
        EXPECT_EQ(output, row.line);
        EXPECT_FALSE(declared(*parser, L"x")) << toUtf8(row.names);
    }
}

TEST(DeclaredNames, EveryKindOfDeclarationRefusesATakenName)
{
    const ParserOwner parser = toolbox::createParser();
    parser->addSwitch(L"taken", L"", value_type_boolean, L"");
    const std::string line =
        "Tried to register an option with a name, which is alread registered: taken\n";
    EXPECT_EQ(captureOutput([&] { declare(*parser, L"taken"); }), line);
    EXPECT_EQ(captureOutput([&] { parser->addSwitch(L"taken", L"", value_type_boolean, L""); }),
              line);
    EXPECT_EQ(captureOutput(
                  [&]
                  { parser->addOptionWithKeywords(L"taken", L"k", L"", value_type_string, L""); }),
              line);
}

TEST(DeclaredNames, CountRuleIsCheckedBeforeTakenNames)
{
    const ParserOwner parser = toolbox::createParser();
    declare(*parser, L"out");
    EXPECT_EQ(captureOutput([&] { EXPECT_EQ(declare(*parser, L"out,b,c,d").status, 1); }), "");
}

TEST(DeclaredNames, NamesAreComparedInFullAndByCase)
{
    const ParserOwner parser = toolbox::createParser();
    declare(*parser, L"out");
    EXPECT_EQ(captureOutput(
                  [&]
                  {
                      EXPECT_EQ(declare(*parser, L"Out").status, 3);
                      EXPECT_EQ(declare(*parser, L"ou").status, 3);
                      EXPECT_EQ(declare(*parser, L"out2").status, 3);
                      EXPECT_EQ(declare(*parser, L"no-out").status, 3);
                      EXPECT_EQ(declare(*parser, L" out").status, 3);
                  }),
              "");
}

TEST(DeclaredNames, RefusedDeclarationLeavesTheFirstOptionUntouched)
{
    Host host;
    host.parser().addOption(L"out,o", L"first", value_type_string, L"group");
    const std::wstring help = host.parser().showFullHelp(false);
    captureOutput([&]
                  { host.parser().addOption(L"x,out", L"second", value_type_integer, L"group"); });
    host.parser().addOption(L"a,b,c,d", L"third", value_type_integer, L"group");
    EXPECT_EQ(host.parser().showFullHelp(false), help);
    EXPECT_EQ(help, L"group\n-o, -out=<string>             first\n\n");
    EXPECT_EQ(host.parse({L"--out=text"}), 0);
    EXPECT_EQ(host.texts(L"o"), std::vector<std::wstring>{L"text"});
}

TEST(DeclaredNames, NameGivenTwiceInOneTextIsAccepted)
{
    Host host;
    host.addOption(L"a,a");
    EXPECT_STREQ(host.parser().showFullHelp(false), L"-a, -a=<string>\n\n");
    EXPECT_EQ(host.parse({L"-a=1"}), 0);
    EXPECT_EQ(host.texts(L"a"), std::vector<std::wstring>{L"1"});
}

TEST(AddedNames, AddedNameFindsTheOption)
{
    Host host;
    host.addOption(L"output").addName(L"destination").addName(L"target").addName(L"goal");
    EXPECT_EQ(host.parse({L"--destination=1", L"--targ=2", L"-goal", L"3", L"--output=4"}), 0);
    const std::vector<std::wstring> all = {L"1", L"2", L"3", L"4"};
    EXPECT_EQ(host.texts(L"output"), all);
    EXPECT_EQ(host.texts(L"goal"), all);
    EXPECT_TRUE(declared(host.parser(), L"target"));
}

TEST(AddedNames, AddedNameIsNotSplit)
{
    Host host;
    host.addOption(L"output").addName(L"x,y");
    EXPECT_TRUE(declared(host.parser(), L"x,y"));
    EXPECT_FALSE(declared(host.parser(), L"x"));
    EXPECT_EQ(host.parse({L"--x,y=1"}), 0);
    EXPECT_EQ(host.texts(L"output"), std::vector<std::wstring>{L"1"});
}

TEST(AddedNames, AddedNameIsNotCheckedButTakenFromThenOn)
{
    Host host;
    host.addOption(L"first");
    EXPECT_EQ(captureOutput([&] { host.addOption(L"second").addName(L"first").addName(L"other"); }),
              "");
    EXPECT_EQ(captureOutput([&] { EXPECT_EQ(declare(host.parser(), L"other").status, 1); }),
              "Tried to register an option with a name, which is alread registered: other\n");
}

TEST(AddedNames, NullNameCountsAsEmpty)
{
    Host host;
    host.addOption(L"output").addName(nullptr);
    EXPECT_TRUE(declared(host.parser(), L""));
    EXPECT_STREQ(host.parser().showFullHelp(false), L"-, -output=<string>\n\n");
}

TEST(AddedNames, NameAddedBetweenParsesIsRecognisedFromThenOn)
{
    Host host(flag_unknown_is_error);
    IOption& option = host.addOption(L"output");
    EXPECT_EQ(host.parse({L"--goal=1"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: --goal=1");
    option.addName(L"goal");
    host.renewResult();
    EXPECT_EQ(host.parse({L"--goal=2", L"--go=3"}), 0);
    EXPECT_EQ(host.texts(L"output"), (std::vector<std::wstring>{L"2", L"3"}));
}

TEST(Builder, EveryOperationReturnsTheOption)
{
    Host host;
    IOption& option = host.addOption(L"option");
    const vexkit2::variant_t value(L"v");
    EXPECT_EQ(&option.addName(L"n"), &option);
    EXPECT_EQ(&option.addAllowedValue(value), &option);
    EXPECT_EQ(&option.addDeprecatedValue(value, value), &option);
    EXPECT_EQ(&option.setDefaultValue(value), &option);
    EXPECT_EQ(&option.setSeparator(L';'), &option);
    EXPECT_EQ(&option.setMarked(), &option);
    EXPECT_EQ(&option.addKeywords(L"k"), &option);
}

TEST(Builder, InterfaceHasNoData)
{
    EXPECT_EQ(sizeof(IOption), sizeof(void*));
}

TEST(Builder, NullDescriptionAndGroupCountAsEmpty)
{
    Host host;
    EXPECT_EQ(host.parser().addOption(L"a", nullptr, value_type_string, nullptr).status, 3);
    EXPECT_EQ(host.parser().addSwitch(L"b", nullptr, value_type_boolean, nullptr).status, 3);
    EXPECT_STREQ(host.parser().showFullHelp(false), L"-a=<string>\n\n");
    EXPECT_STREQ(host.parser().getTopicList(false), L"    b   \n");
    EXPECT_TRUE(host.parser().hasOption(L"a", false, L""));
}

} // namespace
