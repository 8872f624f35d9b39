// Equality of variants over all pairs of kinds.
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "VariantSamples.h"

namespace
{

using variant_samples::EqualSamples;
using variant_samples::Sample;
using vexkit2::s32_t;
using vexkit2::s64_t;
using vexkit2::u32_t;
using vexkit2::u64_t;
using vexkit2::variant_t;

void expectEqual(const Sample& left, const Sample& right, bool expected)
{
    EXPECT_EQ(left.value == right.value, expected) << left.label << " == " << right.label;
    EXPECT_EQ(left.value != right.value, !expected) << left.label << " != " << right.label;
}

TEST(VariantEquality, ValuesAreEqualExactlyInsideTheirClass)
{
    const std::vector<EqualSamples> classes = variant_samples::ascendingClasses();
    for (std::size_t left = 0; left < classes.size(); ++left)
    {
        for (std::size_t right = 0; right < classes.size(); ++right)
        {
            for (const Sample& left_sample : classes[left])
            {
                for (const Sample& right_sample : classes[right])
                {
                    expectEqual(left_sample, right_sample, left == right);
                }
            }
        }
    }
}

TEST(VariantEquality, IntegerTwoEqualsDoubleTwo)
{
    EXPECT_TRUE(variant_t(s32_t{2}) == variant_t(2.0));
    EXPECT_TRUE(variant_t(2.0) == variant_t(s32_t{2}));
}

TEST(VariantEquality, NanEqualsNothing)
{
    const Sample nan = {"NaN", variant_t(std::numeric_limits<double>::quiet_NaN())};
    const Sample float_nan = {"NaN (10)", variant_t(std::numeric_limits<float>::quiet_NaN())};
    for (const EqualSamples& equal : variant_samples::ascendingClasses())
    {
        expectEqual(nan, equal.front(), false);
        expectEqual(equal.front(), float_nan, false);
    }
    expectEqual(nan, nan, false);
    expectEqual(nan, float_nan, false);
}

TEST(VariantEquality, IntegerThatADoubleCannotHoldIsComparedAsTheNearestDouble)
{
    const double beyond53 = 9007199254740992.0; // 2^53; the next double is 2 above
    EXPECT_TRUE(variant_t(s64_t{9007199254740993}) == variant_t(beyond53));
    EXPECT_FALSE(variant_t(s64_t{9007199254740994}) == variant_t(beyond53));
    EXPECT_TRUE(variant_t(std::numeric_limits<s64_t>::max()) == variant_t(9223372036854775808.0));
    EXPECT_TRUE(variant_t(u64_t{9223372036854775809U}) == variant_t(9223372036854775808.0));
    EXPECT_TRUE(variant_t(18446744073709551616.0) == variant_t(std::numeric_limits<u64_t>::max()));
    EXPECT_FALSE(variant_t(u64_t{9223372036854776833U}) == variant_t(9223372036854775808.0));
}

TEST(VariantEquality, IntegersOfDifferentWidthAreComparedExactly)
{
    EXPECT_FALSE(variant_t(std::numeric_limits<s64_t>::max()) ==
                 variant_t(u64_t{9223372036854775808U}));
    EXPECT_FALSE(variant_t(s32_t{-1}) == variant_t(std::numeric_limits<u32_t>::max()));
    EXPECT_FALSE(variant_t(s64_t{-1}) == variant_t(std::numeric_limits<u64_t>::max()));
    EXPECT_FALSE(variant_t(std::numeric_limits<s64_t>::min()) ==
                 variant_t(u64_t{9223372036854775808U}));
}

TEST(VariantEquality, BoolEqualsNoNumber)
{
    EXPECT_FALSE(variant_t(true) == variant_t(s32_t{1}));
    EXPECT_FALSE(variant_t(false) == variant_t(0.0));
    EXPECT_FALSE(variant_t(true) == variant_t(L"1"));
}

TEST(VariantEquality, NarrowTextEqualsNoWideText)
{
    EXPECT_FALSE(variant_t("same") == variant_t(L"same"));
    EXPECT_FALSE(variant_t::reference(L"same") == variant_t::reference("same"));
    EXPECT_FALSE(variant_t::blob("same", 4) == variant_t("same"));
}

TEST(VariantEquality, NullEqualsNullOnly)
{
    EXPECT_TRUE(variant_t() == variant_t());
    EXPECT_FALSE(variant_t() == variant_t(s32_t{0}));
    EXPECT_FALSE(variant_t(L"") == variant_t());
}

TEST(VariantEquality, ObjectsAreComparedByIdentity)
{
    const auto [first, second] = variant_samples::twoObjects();
    const variant_t shared = first;
    EXPECT_TRUE(first == shared);
    EXPECT_FALSE(first == second);
}

} // namespace
