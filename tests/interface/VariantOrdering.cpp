// The order of variants is a strict weak one, goes by class and then by value, and agrees with
// equality.
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "VariantSamples.h"

namespace
{

using variant_samples::EqualSamples;
using variant_samples::Sample;
using vexkit2::s32_t;
using vexkit2::s64_t;
using vexkit2::u64_t;
using vexkit2::variant_t;

bool equivalent(const variant_t& left, const variant_t& right)
{
    return !(left < right) && !(right < left);
}

// Integers that no double holds, beside the doubles around them.
std::vector<Sample> awkwardNumbers()
{
    std::vector<Sample> samples;
    for (const u64_t middle : {u64_t{9007199254740992U}, u64_t{9223372036854775808U}})
    {
        for (int offset = -2; offset <= 2; ++offset)
        {
            const u64_t number = middle + static_cast<u64_t>(s64_t{offset});
            const std::string label = std::to_string(number);
            samples.push_back({label + " (9)", variant_t(number)});
            samples.push_back({label + " (11)", variant_t(static_cast<double>(number))});
            const s64_t negated = static_cast<s64_t>(u64_t{0} - number);
            samples.push_back({"-" + label + " (8)", variant_t(negated)});
        }
    }
    const u64_t highest = std::numeric_limits<u64_t>::max();
    samples.push_back({"2^64 - 1", variant_t(highest)});
    samples.push_back({"2^64 - 2", variant_t(highest - 1)});
    samples.push_back({"2^63 - 1 (8)", variant_t(std::numeric_limits<s64_t>::max())});
    samples.push_back({"NaN", variant_t(std::numeric_limits<double>::quiet_NaN())});
    samples.push_back({"-NaN", variant_t(-std::numeric_limits<double>::quiet_NaN())});
    samples.push_back({"NaN (10)", variant_t(std::numeric_limits<float>::quiet_NaN())});
    return samples;
}

std::vector<Sample> allSamples()
{
    std::vector<Sample> samples = awkwardNumbers();
    for (EqualSamples& equal : variant_samples::ascendingClasses())
    {
        for (Sample& sample : equal)
        {
            samples.push_back(std::move(sample));
        }
    }
    return samples;
}

TEST(VariantOrdering, ClassesAscend)
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
                    EXPECT_EQ(left_sample.value < right_sample.value, left < right)
                        << left_sample.label << " < " << right_sample.label;
                }
            }
        }
    }
}

TEST(VariantOrdering, OrderIsIrreflexiveAndAsymmetric)
{
    const std::vector<Sample> samples = allSamples();
    for (const Sample& left : samples)
    {
        EXPECT_FALSE(left.value < left.value) << left.label;
        for (const Sample& right : samples)
        {
            EXPECT_FALSE(left.value < right.value && right.value < left.value)
                << left.label << ", " << right.label;
        }
    }
}

TEST(VariantOrdering, OrderAndEquivalenceAreTransitive)
{
    const std::vector<Sample> samples = allSamples();
    const std::size_t count = samples.size();
    // For each pair: 'l' less, 's' the same, 'g' greater.
    std::vector<std::string> order(count, std::string(count, 's'));
    for (std::size_t left = 0; left < count; ++left)
    {
        for (std::size_t right = 0; right < count; ++right)
        {
            if (samples[left].value < samples[right].value)
            {
                order[left][right] = 'l';
                order[right][left] = 'g';
            }
        }
    }
    for (std::size_t a = 0; a < count; ++a)
    {
        for (std::size_t b = 0; b < count; ++b)
        {
            const char step = order[a][b];
            for (std::size_t c = 0; step != 'g' && c < count; ++c)
            {
                ASSERT_FALSE(order[b][c] == step && order[a][c] != step)
                    << samples[a].label << ", " << samples[b].label << ", " << samples[c].label;
            }
        }
    }
}

// Whether the two are an integer and a double that does not hold the integer exactly, or a NaN:
// there, and only there, may equality and order tell different things.
bool mayDisagree(const variant_t& left, const variant_t& right)
{
    const auto is_nan = [](const variant_t& value)
    {
        return value.can_get<double>() && std::isnan(value.get<double>());
    };
    const auto is_inexact = [](const variant_t& value)
    {
        const double nearest = value.can_get<double>() ? value.get<double>() : 0.0;
        if (value.can_get<s64_t>())
        {
            return nearest >= 9223372036854775808.0 ||
                   static_cast<s64_t>(nearest) != value.get<s64_t>();
        }
        return value.can_get<u64_t>() && (nearest >= 18446744073709551616.0 ||
                                          static_cast<u64_t>(nearest) != value.get<u64_t>());
    };
    const auto is_floating = [](const variant_t& value)
    {
        return value.kind() == 10 || value.kind() == 11;
    };
    return is_nan(left) || is_nan(right) || (is_inexact(left) && is_floating(right)) ||
           (is_floating(left) && is_inexact(right));
}

TEST(VariantOrdering, EqualityAndOrderAgree)
{
    const std::vector<Sample> samples = allSamples();
    for (const Sample& left : samples)
    {
        for (const Sample& right : samples)
        {
            if (!mayDisagree(left.value, right.value))
            {
                EXPECT_EQ(left.value == right.value, equivalent(left.value, right.value))
                    << left.label << ", " << right.label;
            }
        }
    }
}

TEST(VariantOrdering, IntegerAndDoubleAreOrderedExactly)
{
    const variant_t odd(s64_t{9007199254740993});
    EXPECT_TRUE(variant_t(9007199254740992.0) < odd);
    EXPECT_TRUE(odd < variant_t(9007199254740994.0));
    EXPECT_TRUE(variant_t(std::numeric_limits<s64_t>::max()) < variant_t(9223372036854775808.0));
    EXPECT_TRUE(variant_t(std::numeric_limits<u64_t>::max()) < variant_t(18446744073709551616.0));
    EXPECT_TRUE(variant_t(-9007199254740994.0) < variant_t(s64_t{-9007199254740993}));
    EXPECT_TRUE(variant_t(s64_t{-9007199254740993}) < variant_t(-9007199254740992.0));
}

TEST(VariantOrdering, NanIsTheLastNumber)
{
    const variant_t nan(std::numeric_limits<double>::quiet_NaN());
    for (const EqualSamples& equal : variant_samples::numberClasses())
    {
        for (const Sample& sample : equal)
        {
            EXPECT_TRUE(sample.value < nan) << sample.label;
            EXPECT_FALSE(nan < sample.value) << sample.label;
        }
    }
    EXPECT_TRUE(equivalent(nan, variant_t(std::numeric_limits<float>::quiet_NaN())));
    EXPECT_TRUE(nan < variant_t(""));
    EXPECT_TRUE(variant_t(true) < nan);
}

TEST(VariantOrdering, OrderGoesByClassFirst)
{
    const auto [first, second] = variant_samples::twoObjects();
    const variant_t ascending[] = {variant_t(),
                                   variant_t(true),
                                   variant_t(s32_t{-5}),
                                   variant_t("zz"),
                                   variant_t(L"aa"),
                                   variant_t::blob("", 0),
                                   first};
    for (std::size_t left = 0; left + 1 < std::size(ascending); ++left)
    {
        for (std::size_t right = left + 1; right < std::size(ascending); ++right)
        {
            EXPECT_TRUE(ascending[left] < ascending[right]) << left << ", " << right;
            EXPECT_FALSE(ascending[right] < ascending[left]) << left << ", " << right;
        }
    }
}

} // namespace
