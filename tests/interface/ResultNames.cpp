// Names in a result: added between parses, shared by two options, given twice.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::variant_t;

using Texts = std::vector<std::wstring>;

TEST(ResultNames, NameAddedBetweenParsesFindsAllThatIsStored)
{
    Host host;
    IOption& option = host.addOption(L"name,n");
    ASSERT_EQ(host.parse({L"--name=1"}), 0);
    option.addName(L"alias");
    EXPECT_FALSE(host.isPresent(L"alias"));
    ASSERT_EQ(host.parse({L"--alias=2"}), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"1", L"2"}));
    EXPECT_EQ(host.texts(L"n"), (Texts{L"1", L"2"}));
    EXPECT_EQ(host.texts(L"alias"), (Texts{L"1", L"2"}));
    ASSERT_EQ(host.parse({L"-n=3"}), 0);
    EXPECT_EQ(host.texts(L"alias"), (Texts{L"1", L"2", L"3"}));
}

TEST(ResultNames, SharedNameBelongsToTheOptionFirstStoredLaterAndThenToBoth)
{
    Host host;
    host.addOption(L"first").addName(L"same");
    host.addOption(L"second").addName(L"same");
    ASSERT_EQ(host.parse({L"--first=1"}), 0);
    EXPECT_EQ(host.texts(L"same"), Texts{L"1"});
    ASSERT_EQ(host.parse({L"--second=2"}), 0);
    EXPECT_EQ(host.texts(L"first"), Texts{L"1"});
    EXPECT_EQ(host.texts(L"second"), Texts{L"2"});
    EXPECT_EQ(host.texts(L"same"), Texts{L"2"});
    ASSERT_EQ(host.parse({L"--first=3", L"--second=4"}), 0);
    EXPECT_EQ(host.texts(L"first"), (Texts{L"1", L"3"}));
    EXPECT_EQ(host.texts(L"second"), (Texts{L"2", L"4"}));
    EXPECT_EQ(host.texts(L"same"), (Texts{L"2", L"3", L"4"}));
}

TEST(ResultNames, NameListedTwiceIsOneEntry)
{
    Host host;
    host.addOption(L"name,name");
    ASSERT_EQ(host.parse({L"--name=1", L"--name=2"}), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"1", L"2"}));
}

TEST(ResultNames, SeparatorsBetweenNamesAreNotPartOfThem)
{
    for (const wchar_t* const names :
         {L"name,n", L",name,n", L"name,,n", L"name,n,", L",,name,,,n,,"})
    {
        Host host;
        host.addOption(names);
        host.addOption(L"other");
        ASSERT_EQ(host.parse({L"--name=1", L"-n=2", L"--other=3"}), 0);
        EXPECT_EQ(host.texts(L"name"), (Texts{L"1", L"2"})) << toUtf8(names);
        EXPECT_EQ(host.texts(L"n"), (Texts{L"1", L"2"})) << toUtf8(names);
        EXPECT_EQ(host.texts(L"other"), Texts{L"3"}) << toUtf8(names);
        EXPECT_FALSE(host.isPresent(L"")) << toUtf8(names);
        EXPECT_FALSE(host.isPresent(L"name,n")) << toUtf8(names);
    }
}

TEST(ResultNames, DefaultIsFoundByEveryName)
{
    Host host;
    host.addOption(L"name,n").addName(L"third").setDefaultValue(variant_t(L"default"));
    ASSERT_EQ(host.parse({}), 0);
    for (const wchar_t* name : {L"name", L"n", L"third"})
    {
        EXPECT_EQ(host.texts(name), Texts{L"default"}) << toUtf8(name);
    }
    ASSERT_EQ(host.parse({L"-n=given"}), 0);
    for (const wchar_t* name : {L"name", L"n", L"third"})
    {
        EXPECT_EQ(host.texts(name), Texts{L"given"}) << toUtf8(name);
    }
}

TEST(ResultNames, EveryOptionHasItsOwnEntry)
{
    Host host;
    for (int index = 0; index < 300; ++index)
    {
        host.addOption((L"option" + std::to_wstring(index)).c_str());
    }
    for (int index = 299; index >= 0; index -= 2)
    {
        const std::wstring argument =
            L"--option" + std::to_wstring(index) + L"=" + std::to_wstring(index * 7);
        ASSERT_EQ(host.parse({argument.c_str()}), 0);
    }
    for (int index = 0; index < 300; ++index)
    {
        const std::wstring name = L"option" + std::to_wstring(index);
        EXPECT_EQ(host.texts(name.c_str()),
                  index % 2 == 0 ? Texts() : Texts{std::to_wstring(index * 7)});
    }
}

} // namespace
