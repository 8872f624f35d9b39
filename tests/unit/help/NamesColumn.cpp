// Tests of formatNames(), the names column of one option.
#include <functional>
#include <string>

#include "help/OptionListing.h"
#include "options/OptionDescription.h"
#include "support/memory/Garbage.h"

#include "HeapOnly.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;
using vexkit2::variant_t;

const OptionGroup no_group;

std::wstring column(std::int32_t valueType, const std::function<void(IOption&)>& build,
                    bool isSwitch = false)
{
    Garbage pool{unit::heap_only};
    OptionDescription option(no_group, isSwitch, pool);
    option.valueType = valueType;
    build(option);
    return formatNames(option);
}

TEST(NamesColumn, FurtherNamesComeFirstInReverseOrder)
{
    const auto named = [](std::initializer_list<const wchar_t*> names)
    {
        return column(value_type_none,
                      [names](IOption& option)
                      {
                          for (const wchar_t* const name : names)
                          {
                              option.addName(name);
                          }
                      });
    };
    EXPECT_EQ(named({L"name"}), L"-name");
    EXPECT_EQ(named({L"name", L"n"}), L"-n, -name");
    EXPECT_EQ(named({L"a", L"b", L"c", L"d"}), L"-d, -c, -b, -a");
    EXPECT_EQ(named({L""}), L"-");
    EXPECT_EQ(named({}), L"-");
    EXPECT_EQ(named({L"\U0001F600", L"-"}), L"--, -\U0001F600");
}

TEST(NamesColumn, TypeDecidesWhatFollows)
{
    const struct
    {
        std::int32_t type;
        const wchar_t* expected;
    } rows[] = {{0, L"-a | -no-a"},
                {6, L"-a=<integer>"},
                {7, L"-a=<unsigned integer>"},
                {8, L"-a=<64 bit integer>"},
                {9, L"-a=<unsigned 64 bit or hex>"},
                {11, L"-a=<double>"},
                {13, L"-a=<string>"},
                {17, L"-a"},
                {12, L"-a=<>"}};
    for (const auto& row : rows)
    {
        for (const bool isSwitch : {false, true})
        {
            EXPECT_EQ(column(
                          row.type, [](IOption& option) { option.addName(L"a"); }, isSwitch),
                      row.expected);
        }
    }
}

TEST(NamesColumn, DefaultFollowsTheFormItSelects)
{
    const struct
    {
        variant_t value;
        const wchar_t* expected;
    } rows[] = {{variant_t(true), L"-verbose, -v (default) | -no-v"},
                {variant_t(false), L"-verbose, -v | -no-v (default)"},
                {variant_t(1), L"-verbose, -v (default) | -no-v"},
                {variant_t(0), L"-verbose, -v | -no-v (default)"},
                {variant_t(-0.5), L"-verbose, -v (default) | -no-v"},
                {variant_t(0.0), L"-verbose, -v | -no-v (default)"},
                {variant_t(-0.0F), L"-verbose, -v | -no-v (default)"},
                {variant_t(vexkit2::u64_t{1} << 63), L"-verbose, -v (default) | -no-v"},
                {variant_t(L"1"), L"-verbose, -v | -no-v (default)"},
                {variant_t(), L"-verbose, -v | -no-v (default)"}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(column(value_type_boolean, [&row](IOption& option)
                         { option.addName(L"v").addName(L"verbose").setDefaultValue(row.value); }),
                  row.expected)
            << "kind " << row.value.kind();
    }
}

TEST(NamesColumn, AllowedValuesReplaceTheType)
{
    const auto build = [](IOption& option)
    {
        option.addName(L"mode")
            .addAllowedValue(variant_t(L"fast"))
            .addAllowedValue(variant_t(2))
            .addAllowedValue(variant_t(L""))
            .addDeprecatedValue(variant_t(L"old"), variant_t(L"fast"));
    };
    EXPECT_EQ(column(value_type_string, build), L"-mode=fast | 2 | ");
    EXPECT_EQ(column(value_type_boolean, build), L"-mode | -no-mode");
    EXPECT_EQ(column(value_type_none, build), L"-mode");
}

TEST(NamesColumn, DefaultWithATextIsInParentheses)
{
    const struct
    {
        variant_t value;
        const wchar_t* expected;
    } rows[] = {{variant_t(L"fast"), L"-m=<string> (fast)"},
                {variant_t(2.5), L"-m=<string> (2.5)"},
                {variant_t(0), L"-m=<string> (0)"},
                {variant_t(false), L"-m=<string> (0)"},
                {variant_t(L""), L"-m=<string>"},
                {variant_t(), L"-m=<string>"},
                {variant_t::blob("x", 1), L"-m=<string>"}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(column(value_type_string, [&row](IOption& option)
                         { option.addName(L"m").setDefaultValue(row.value); }),
                  row.expected)
            << "kind " << row.value.kind();
    }
    EXPECT_EQ(column(value_type_none,
                     [](IOption& option) { option.addName(L"m").setDefaultValue(variant_t(1)); }),
              L"-m");
}

} // namespace
