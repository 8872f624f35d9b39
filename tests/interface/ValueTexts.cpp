// The text of a value, as shown by defaults in results and in help.
#include <limits>
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::s32_t;
using vexkit2::s64_t;
using vexkit2::u32_t;
using vexkit2::u64_t;
using vexkit2::variant_t;

struct Row
{
    variant_t value;
    std::wstring text;
};

// Declares the value as a default and checks its text in result and help and its kind in the
// result.
void expectText(const Row& row)
{
    SCOPED_TRACE("kind " + std::to_string(row.value.kind()) + ", '" + toUtf8(row.text) + "'");
    Host host;
    host.addOption(L"n").setDefaultValue(row.value);
    ASSERT_EQ(host.parse({}), 0);
    if (row.text.empty())
    {
        EXPECT_FALSE(host.isPresent(L"n"));
        EXPECT_STREQ(host.parser().showFullHelp(false), L"-n=<string>\n\n");
        return;
    }
    EXPECT_EQ(host.values(L"n"),
              (std::vector<ReadValue>{{row.text, row.value.kind(), no_position}}));
    EXPECT_EQ(std::wstring(host.parser().showFullHelp(false)),
              L"-n=<string> (" + row.text + L")\n\n");
}

TEST(ValueTexts, IntegersAreDecimal)
{
    const std::vector<Row> rows = {
        {variant_t(s32_t{0}), L"0"},
        {variant_t(s32_t{-1}), L"-1"},
        {variant_t(std::numeric_limits<s32_t>::max()), L"2147483647"},
        {variant_t(std::numeric_limits<s32_t>::min()), L"-2147483648"},
        {variant_t(std::numeric_limits<u32_t>::max()), L"4294967295"},
        {variant_t(std::numeric_limits<s64_t>::max()), L"9223372036854775807"},
        {variant_t(std::numeric_limits<s64_t>::min()), L"-9223372036854775808"},
        {variant_t(std::numeric_limits<u64_t>::max()), L"18446744073709551615"},
        {variant_t(u64_t{9223372036854775808U}), L"9223372036854775808"},
    };
    for (const Row& row : rows)
    {
        expectText(row);
    }
}

TEST(ValueTexts, DoublesBetweenTheBoundsAreDecimals)
{
    const std::vector<Row> rows = {
        {variant_t(0.0), L"0"},
        {variant_t(2.5), L"2.5"},
        {variant_t(0.1), L"0.1"},
        {variant_t(10.0), L"10"},
        {variant_t(100.0), L"100"},
        {variant_t(1234567.0), L"1234567"},
        {variant_t(-2.5), L"-2.5"},
        {variant_t(-1000000.0), L"-1000000"},
        {variant_t(0.001), L"0.001"},
        {variant_t(0.00001), L"0.00001"},
        {variant_t(-0.00001), L"-0.00001"},
        {variant_t(0.000012345), L"0.000012345"},
        {variant_t(0.30000000000000004), L"0.30000000000000004"},
        {variant_t(3.141592653589793), L"3.141592653589793"},
        {variant_t(123456.789), L"123456.789"},
        {variant_t(1e15), L"1000000000000000"},
        {variant_t(-1e15), L"-1000000000000000"},
        {variant_t(123456789012345.6), L"123456789012345.6"},
        {variant_t(9007199254740993.0), L"9007199254740992"},
        {variant_t(9999999999999998.0), L"9999999999999998"},
        {variant_t(-9999999999999998.0), L"-9999999999999998"},
    };
    for (const Row& row : rows)
    {
        expectText(row);
    }
}

TEST(ValueTexts, OtherDoublesAreScientific)
{
    const std::vector<Row> rows = {
        {variant_t(1e16), L"1e+16"},
        {variant_t(-1e16), L"-1e+16"},
        {variant_t(1e20), L"1e+20"},
        {variant_t(1.5e20), L"1.5e+20"},
        {variant_t(1e22), L"1e+22"},
        {variant_t(123456789012345678.0), L"1.2345678901234568e+17"},
        {variant_t(1e100), L"1e+100"},
        {variant_t(2.5e-7), L"2.5e-07"},
        {variant_t(-2.5e-7), L"-2.5e-07"},
        {variant_t(9.9e-6), L"9.9e-06"},
        {variant_t(9.999999999999999e-6), L"9.999999999999999e-06"},
        {variant_t(1e-100), L"1e-100"},
        {variant_t(std::numeric_limits<double>::max()), L"1.7976931348623157e+308"},
        {variant_t(std::numeric_limits<double>::min()), L"2.2250738585072014e-308"},
        {variant_t(std::numeric_limits<double>::denorm_min()), L"5e-324"},
    };
    for (const Row& row : rows)
    {
        expectText(row);
    }
}

TEST(ValueTexts, FloatsAreReadAsDoubles)
{
    const std::vector<Row> rows = {
        {variant_t(0.5F), L"0.5"},
        {variant_t(3.0F), L"3"},
        {variant_t(0.1F), L"0.10000000149011612"},
        {variant_t(1e20F), L"1.0000000200408773e+20"},
    };
    for (const Row& row : rows)
    {
        expectText(row);
    }
}

TEST(ValueTexts, BoolIsOneOrZero)
{
    expectText({variant_t(true), L"1"});
    expectText({variant_t(false), L"0"});
}

TEST(ValueTexts, WideTextIsUnchanged)
{
    expectText({variant_t(L"some text"), L"some text"});
    expectText({variant_t(L" , "), L" , "});
    expectText({variant_t::reference(L"\u2014\U0001F600"), L"\u2014\U0001F600"});
}

TEST(ValueTexts, NarrowTextIsReadAsUtf8)
{
    const std::vector<Row> rows = {
        {variant_t("plain"), L"plain"},
        {variant_t("\xC3\xA9\xE2\x80\x94\xF0\x9F\x98\x80"), L"\u00E9\u2014\U0001F600"},
        {variant_t::reference("referred"), L"referred"},
        {variant_t("a\xFF"
                   "b"),
         L"a\uFFFDb"},
        {variant_t("\xE2\x80"), L"\uFFFD"},
        {variant_t("\xE2\x80"
                   "a\xC3"),
         L"\uFFFDa\uFFFD"},
        {variant_t("\xED\xA0\x80"), L"\uFFFD\uFFFD\uFFFD"},
        {variant_t("\xC0\xAF"), L"\uFFFD\uFFFD"},
        {variant_t("\xF4\x90\x80\x80"), L"\uFFFD\uFFFD\uFFFD\uFFFD"},
    };
    for (const Row& row : rows)
    {
        expectText(row);
    }
}

TEST(ValueTexts, NullBlobsAndObjectsHaveNoText)
{
    expectText({variant_t(), L""});
    expectText({variant_t::blob("abc", 3), L""});
    expectText({variant_t::object(new vexkit2::polymorphic_t), L""});
    expectText({variant_t(L""), L""});
    expectText({variant_t(""), L""});
}

TEST(ValueTexts, TextOfADoubleConvertsBackToTheSameDouble)
{
    Host host;
    host.addOption(L"n", value_type_double);
    double value = 1.0 / 3;
    for (int index = 0; index < 600; ++index, value *= index % 2 == 0 ? -17.3 : 0.031)
    {
        Host writer;
        writer.addOption(L"n").setDefaultValue(variant_t(value));
        writer.parse({});
        const std::wstring argument = L"--n=" + writer.texts(L"n").at(0);
        ASSERT_EQ(host.parse({argument.c_str()}), 0) << toUtf8(argument);
        EXPECT_EQ(getLastValue(&host.result(), L"n", 0, no_position).as<double>(), value)
            << toUtf8(argument);
    }
}

} // namespace
