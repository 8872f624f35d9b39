// can_get and get of every type over every kind, at the boundaries of each.
#include <limits>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "VariantSamples.h"

namespace
{

using vexkit2::s32_t;
using vexkit2::s64_t;
using vexkit2::u32_t;
using vexkit2::u64_t;
using vexkit2::variant_t;

constexpr std::nullopt_t none = std::nullopt;

// A variant and what each type reads from it; none where the type cannot.
struct AccessRow
{
    const char* label;
    variant_t value;
    std::optional<bool> as_bool;
    std::optional<s32_t> as_s32;
    std::optional<u32_t> as_u32;
    std::optional<s64_t> as_s64;
    std::optional<u64_t> as_u64;
    std::optional<double> as_double;
    std::optional<std::wstring> as_text;
};

template <class T, class Expected>
void expectAccess(const AccessRow& row, const std::optional<Expected>& expected,
                  const std::string& guard)
{
    EXPECT_EQ(row.value.can_get<T>(), expected.has_value()) << row.label << ", " << guard;
    try
    {
        const T value = row.value.get<T>();
        ASSERT_TRUE(expected.has_value()) << row.label << " was read, " << guard;
        EXPECT_EQ(value, *expected) << row.label << ", " << guard;
    }
    catch (const kexa_3_3::AssertionFailure& failure)
    {
        EXPECT_FALSE(expected.has_value()) << row.label << ", " << guard;
        EXPECT_STREQ(failure.what(), guard.c_str()) << row.label;
        // Some compilers add the template argument.
        EXPECT_EQ(std::string(failure.function()).substr(0, 3), "get") << row.label;
        EXPECT_GT(failure.line(), 0) << row.label;
        const std::string file = failure.file();
        EXPECT_EQ(file.substr(file.find_last_of("/\\") + 1), "variant_access.h") << row.label;
    }
}

void expectRow(const AccessRow& row)
{
    expectAccess<bool>(row, row.as_bool, "can_get<bool>()");
    expectAccess<s32_t>(row, row.as_s32, "can_get<s32_t>()");
    expectAccess<u32_t>(row, row.as_u32, "can_get<u32_t>()");
    expectAccess<s64_t>(row, row.as_s64, "can_get<s64_t>()");
    expectAccess<u64_t>(row, row.as_u64, "can_get<u64_t>()");
    expectAccess<double>(row, row.as_double, "can_get<double>()");
    expectAccess<const wchar_t*>(row, row.as_text, "can_get<const wchar_t*>()");
}

constexpr s32_t lowest32 = std::numeric_limits<s32_t>::min();
constexpr s32_t highest32 = std::numeric_limits<s32_t>::max();
constexpr u32_t highest_u32 = std::numeric_limits<u32_t>::max();
constexpr s64_t lowest64 = std::numeric_limits<s64_t>::min();
constexpr s64_t highest64 = std::numeric_limits<s64_t>::max();
constexpr u64_t highest_u64 = std::numeric_limits<u64_t>::max();
constexpr s64_t above32 = s64_t{highest32} + 1;
constexpr s64_t below32 = s64_t{lowest32} - 1;

TEST(VariantAccess, IntegersAreReadByEveryTypeThatCanHoldThem)
{
    const AccessRow rows[] = {
        {"0 (6)", variant_t(s32_t{0}), none, 0, 0U, 0, 0U, 0.0, none},
        {"-1 (6)", variant_t(s32_t{-1}), none, -1, none, -1, none, -1.0, none},
        {"lowest (6)", variant_t(lowest32), none, lowest32, none, lowest32, none, -2147483648.0,
         none},
        {"highest (6)", variant_t(highest32), none, highest32, 2147483647U, highest32, 2147483647U,
         2147483647.0, none},
        {"0 (7)", variant_t(u32_t{0}), none, 0, 0U, 0, 0U, 0.0, none},
        {"2^31 - 1 (7)", variant_t(u32_t{2147483647U}), none, highest32, 2147483647U, highest32,
         2147483647U, 2147483647.0, none},
        {"2^31 (7)", variant_t(u32_t{2147483648U}), none, none, 2147483648U, above32, 2147483648U,
         2147483648.0, none},
        {"highest (7)", variant_t(highest_u32), none, none, highest_u32, 4294967295, 4294967295U,
         4294967295.0, none},
        {"-1 (8)", variant_t(s64_t{-1}), none, -1, none, -1, none, -1.0, none},
        {"-2^31 (8)", variant_t(s64_t{lowest32}), none, lowest32, none, lowest32, none,
         -2147483648.0, none},
        {"-2^31 - 1 (8)", variant_t(below32), none, none, none, below32, none, -2147483649.0, none},
        {"2^31 - 1 (8)", variant_t(s64_t{highest32}), none, highest32, 2147483647U, highest32,
         2147483647U, 2147483647.0, none},
        {"2^31 (8)", variant_t(above32), none, none, 2147483648U, above32, 2147483648U,
         2147483648.0, none},
        {"2^32 - 1 (8)", variant_t(s64_t{highest_u32}), none, none, highest_u32, 4294967295,
         4294967295U, 4294967295.0, none},
        {"2^32 (8)", variant_t(s64_t{4294967296}), none, none, none, 4294967296, 4294967296U,
         4294967296.0, none},
        {"lowest (8)", variant_t(lowest64), none, none, none, lowest64, none,
         -9223372036854775808.0, none},
        {"highest (8)", variant_t(highest64), none, none, none, highest64, 9223372036854775807U,
         9223372036854775808.0, none},
        {"0 (9)", variant_t(u64_t{0}), none, 0, 0U, 0, 0U, 0.0, none},
        {"2^31 (9)", variant_t(u64_t{2147483648U}), none, none, 2147483648U, above32, 2147483648U,
         2147483648.0, none},
        {"2^32 (9)", variant_t(u64_t{4294967296U}), none, none, none, 4294967296, 4294967296U,
         4294967296.0, none},
        {"2^63 - 1 (9)", variant_t(u64_t{9223372036854775807U}), none, none, none, highest64,
         9223372036854775807U, 9223372036854775808.0, none},
        {"2^63 (9)", variant_t(u64_t{9223372036854775808U}), none, none, none, none,
         9223372036854775808U, 9223372036854775808.0, none},
        {"highest (9)", variant_t(highest_u64), none, none, none, none, highest_u64,
         18446744073709551616.0, none},
    };
    for (const AccessRow& row : rows)
    {
        expectRow(row);
    }
}

TEST(VariantAccess, FloatingNumbersAreReadAsDoublesOnly)
{
    const double lowest = std::numeric_limits<double>::lowest();
    const double infinity = std::numeric_limits<double>::infinity();
    const AccessRow rows[] = {
        {"1 (10)", variant_t(1.0F), none, none, none, none, none, 1.0, none},
        {"0.1 (10)", variant_t(0.1F), none, none, none, none, none, 0x1.99999Ap-4, none},
        {"2 (11)", variant_t(2.0), none, none, none, none, none, 2.0, none},
        {"lowest (11)", variant_t(lowest), none, none, none, none, none, lowest, none},
        {"infinity (11)", variant_t(infinity), none, none, none, none, none, infinity, none},
    };
    for (const AccessRow& row : rows)
    {
        expectRow(row);
    }
}

TEST(VariantAccess, UnsignedBeyondTheSignedRangeIsConvertedToTheNearestDouble)
{
    // Doubles are 2048 apart here; an exact tie goes to the even one.
    EXPECT_EQ(variant_t(u64_t{9223372036854776832U}).get<double>(), 9223372036854775808.0);
    EXPECT_EQ(variant_t(u64_t{9223372036854776833U}).get<double>(), 9223372036854777856.0);
    EXPECT_EQ(variant_t(u64_t{9223372036854777856U}).get<double>(), 9223372036854777856.0);
    EXPECT_EQ(variant_t(u64_t{18446744073709550591U}).get<double>(), 18446744073709549568.0);
    EXPECT_EQ(variant_t(u64_t{18446744073709550592U}).get<double>(), 18446744073709551616.0);
}

TEST(VariantAccess, BoolIsReadAsBoolOnly)
{
    expectRow({"true", variant_t(true), true, none, none, none, none, none, none});
    expectRow({"false", variant_t(false), false, none, none, none, none, none, none});
}

TEST(VariantAccess, WideTextIsReadAsTextOnly)
{
    const AccessRow rows[] = {
        {"'' (13)", variant_t(L""), none, none, none, none, none, none, L""},
        {"'12' (13)", variant_t(L"12"), none, none, none, none, none, none, L"12"},
        {"emoji (13)", variant_t(L"\U0001F600"), none, none, none, none, none, none, L"\U0001F600"},
        {"'' (15)", variant_t::reference(L""), none, none, none, none, none, none, L""},
        {"'true' (15)", variant_t::reference(L"true"), none, none, none, none, none, none, L"true"},
    };
    for (const AccessRow& row : rows)
    {
        expectRow(row);
    }
}

TEST(VariantAccess, OtherKindsAreReadByNoType)
{
    const AccessRow rows[] = {
        {"null", variant_t(), none, none, none, none, none, none, none},
        {"narrow text", variant_t("1"), none, none, none, none, none, none, none},
        {"reference to narrow text", variant_t::reference("1"), none, none, none, none, none, none,
         none},
        {"blob", variant_t::blob("\1\0\0\0", 4), none, none, none, none, none, none, none},
        {"object", variant_t::object(new vexkit2::polymorphic_t), none, none, none, none, none,
         none, none},
    };
    for (const AccessRow& row : rows)
    {
        expectRow(row);
    }
}

TEST(VariantAccess, NarrowTextIsReadAsItIsHeld)
{
    const char* const text = "text";
    EXPECT_STREQ(variant_t(text).narrow_text(), "text");
    EXPECT_NE(variant_t(text).narrow_text(), text);
    EXPECT_EQ(variant_t::reference(text).narrow_text(), text);
}

} // namespace
