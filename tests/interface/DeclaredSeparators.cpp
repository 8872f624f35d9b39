// The character that separates several values in one argument.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::variant_t;

using Texts = std::vector<std::wstring>;

Texts parsed(Host& host, const wchar_t* argument)
{
    host.renewResult();
    EXPECT_EQ(host.parse({argument}), 0) << toUtf8(host.message());
    return host.texts(L"list");
}

TEST(DeclaredSeparators, NewOptionIsSplitAtCommas)
{
    Host host;
    host.addOption(L"list");
    EXPECT_EQ(parsed(host, L"--list=a,b;c"), (Texts{L"a", L"b;c"}));
}

TEST(DeclaredSeparators, EveryKindOfDeclarationGetsTheSeparator)
{
    Host host;
    host.parser().addOptionWithKeywords(L"list", L"k", L"", value_type_string, L"");
    EXPECT_EQ(parsed(host, L"--list=a,b"), (Texts{L"a", L"b"}));
    Host other;
    other.addSwitch(L"list", value_type_string);
    EXPECT_EQ(parsed(other, L"--list=a,b"), (Texts{L"a", L"b"}));
}

TEST(DeclaredSeparators, SetSeparatorReplacesTheComma)
{
    Host host;
    IOption& option = host.addOption(L"list");
    option.setSeparator(L';');
    EXPECT_EQ(parsed(host, L"--list=a,b;c"), (Texts{L"a,b", L"c"}));
    option.setSeparator(L'\u2014');
    EXPECT_EQ(parsed(host, L"--list=a,b;c\u2014d"), (Texts{L"a,b;c", L"d"}));
    option.setSeparator(L'=');
    EXPECT_EQ(parsed(host, L"--list==1=2"), (Texts{L"1", L"2"}));
    option.setSeparator(L' ');
    EXPECT_EQ(parsed(host, L"--list=a  b c"), (Texts{L"a", L"b", L"c"}));
}

TEST(DeclaredSeparators, ZeroMeansNoSeparator)
{
    Host host;
    host.addOption(L"list").setSeparator(0);
    EXPECT_EQ(parsed(host, L"--list=a,b,,c,"), Texts{L"a,b,,c,"});
    EXPECT_EQ(parsed(host, L"--list=,"), Texts{L","});
}

TEST(DeclaredSeparators, AllowedValueRestoresTheCommaWhereThereIsNone)
{
    Host host;
    host.addOption(L"list")
        .setSeparator(0)
        .addAllowedValue(variant_t(L"a"))
        .addAllowedValue(variant_t(L"b"));
    EXPECT_EQ(parsed(host, L"--list=a,b"), (Texts{L"a", L"b"}));
}

TEST(DeclaredSeparators, AllowedValueKeepsAnotherSeparator)
{
    Host host;
    host.addOption(L"list").setSeparator(L';').addAllowedValue(variant_t(L"a,b"));
    EXPECT_EQ(parsed(host, L"--list=a,b;a,b"), (Texts{L"a,b", L"a,b"}));
}

TEST(DeclaredSeparators, ZeroAfterTheAllowedValuesStays)
{
    Host host;
    host.addOption(L"list").addAllowedValue(variant_t(L"a,b")).setSeparator(0);
    EXPECT_EQ(parsed(host, L"--list=a,b"), Texts{L"a,b"});
}

TEST(DeclaredSeparators, DeprecatedValueLeavesTheSeparatorAlone)
{
    Host host;
    host.addOption(L"list").setSeparator(0).addDeprecatedValue(variant_t(L"x"), variant_t(L"y"));
    EXPECT_EQ(parsed(host, L"--list=a,b"), Texts{L"a,b"});
}

TEST(DeclaredSeparators, ParserWithoutValueListsGivesNoSeparator)
{
    Host host(flag_no_value_lists);
    IOption& option = host.addOption(L"list");
    EXPECT_EQ(parsed(host, L"--list=a,b"), Texts{L"a,b"});
    option.setSeparator(L',');
    EXPECT_EQ(parsed(host, L"--list=a,b"), (Texts{L"a", L"b"}));
}

TEST(DeclaredSeparators, AllowedValueRestoresTheCommaEvenWithoutValueLists)
{
    Host host(flag_no_value_lists);
    host.addOption(L"list").addAllowedValue(variant_t(L"a")).addAllowedValue(variant_t(L"b"));
    EXPECT_EQ(parsed(host, L"--list=a,b"), (Texts{L"a", L"b"}));
}

TEST(DeclaredSeparators, OtherFlagsLeaveTheSeparatorAlone)
{
    for (const int flags : {1, 2, 4, 8, 16, 64, 31 + 64})
    {
        Host host(flags);
        host.addOption(L"list");
        EXPECT_EQ(parsed(host, L"--list=a,b"), (Texts{L"a", L"b"})) << flags;
    }
}

} // namespace
