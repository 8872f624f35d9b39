// The effect of keywords on related help, full help and the options that an action accepts.
#include <string>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;

constexpr const wchar_t* refusal = L"Action '-run' doesn't accept option '-option'";

// A parser with the action "run", whose keywords are "run" and "k", and an option "option" with the
// given keywords.
class KeywordHost : public Host
{
public:
    explicit KeywordHost(const wchar_t* keywords)
    {
        addSwitch(L"run,r").addKeywords(L"k");
        parser().addOptionWithKeywords(L"option", keywords, L"", value_type_string, L"");
    }

    std::wstring parsed()
    {
        return parse({L"--run", L"--option=1"}) == 0 ? std::wstring(L"accepted") : message();
    }
    std::wstring related() { return parser().showRelatedHelp(L"run", false); }
    std::wstring full() { return parser().showFullHelp(false); }
};

constexpr const wchar_t* listing = L"-option=<string>\n\n";

TEST(DeclaredKeywords, SharedKeywordRelatesAnOptionToItsAction)
{
    const struct
    {
        const wchar_t* keywords;
        bool shared;
    } rows[] = {
        {L"k", true},       {L"run", true},    {L"r", true},         {L"x,k", true}, {L"k,x", true},
        {L",,k,,", true},   {L"k,k", true},    {L"x,y,run,z", true}, {L"x", false},  {L"K", false},
        {L" k", false},     {L"k ", false},    {L"run,r", true},     {L"ru", false}, {L"kk", false},
        {L"option", false}, {L"x,y,z", false},
    };
    for (const auto& row : rows)
    {
        KeywordHost host(row.keywords);
        EXPECT_EQ(host.parsed(), row.shared ? L"accepted" : refusal) << toUtf8(row.keywords);
        EXPECT_EQ(host.related(), row.shared ? listing : L"") << toUtf8(row.keywords);
        EXPECT_EQ(host.full(), L"") << toUtf8(row.keywords);
    }
}

TEST(DeclaredKeywords, TextWithoutAKeywordAddsNone)
{
    for (const wchar_t* keywords : {L"", L",", L",,,"})
    {
        KeywordHost host(keywords);
        EXPECT_EQ(host.parsed(), L"accepted") << toUtf8(keywords);
        EXPECT_EQ(host.related(), L"") << toUtf8(keywords);
        EXPECT_EQ(host.full(), listing) << toUtf8(keywords);
    }
    KeywordHost host(nullptr);
    EXPECT_EQ(host.full(), listing);
}

TEST(DeclaredKeywords, AddedKeywordsCountLikeDeclaredOnes)
{
    KeywordHost host(L"x");
    IOption& other = host.addOption(L"other");
    other.addKeywords(L"y,,k,y").addKeywords(nullptr).addKeywords(L"k");
    EXPECT_EQ(host.related(), L"-other=<string>\n\n");
    EXPECT_EQ(host.parse({L"--run", L"--other=1"}), 0);
    EXPECT_EQ(host.parsed(), refusal);
}

TEST(DeclaredKeywords, PlainOptionHasNoKeywords)
{
    Host host;
    host.addSwitch(L"option2");
    host.addOption(L"option");
    EXPECT_STREQ(host.parser().showFullHelp(false), listing);
    EXPECT_STREQ(host.parser().showRelatedHelp(L"option", false), L"");
    EXPECT_STREQ(host.parser().showRelatedHelp(L"option2", false), L"");
}

TEST(DeclaredKeywords, NamesAddedToASwitchAreNoKeywords)
{
    Host host;
    host.addSwitch(L"run").addName(L"later");
    host.parser().addOptionWithKeywords(L"option", L"later", L"", value_type_string, L"");
    EXPECT_STREQ(host.parser().showRelatedHelp(L"run", false), L"");
}

} // namespace
