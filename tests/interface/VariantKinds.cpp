// What each way to make a variant gives: its kind, its content, its size.
#include <cstdint>
#include <cstring>
#include <limits>
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

TEST(VariantKinds, VariantIsTwoWordsAndValueFour)
{
    EXPECT_EQ(sizeof(variant_t), 16U);
    EXPECT_EQ(sizeof(kexa_3_3::Value), 32U);
}

TEST(VariantKinds, DataWordStandsAheadOfTheKind)
{
    const variant_t value(u64_t{0x0123456789ABCDEFU});
    unsigned char bytes[sizeof(variant_t)];
    std::memcpy(bytes, static_cast<const void*>(&value), sizeof(bytes));

    u64_t word = 0;
    s32_t kind = 0;
    std::memcpy(&word, bytes, sizeof(word));
    std::memcpy(&kind, bytes + 8, sizeof(kind));
    EXPECT_EQ(word, 0x0123456789ABCDEFU);
    EXPECT_EQ(kind, 9);
}

TEST(VariantKinds, EachConstructionGivesItsKind)
{
    const std::wstring wide = L"wide";
    const std::string narrow = "narrow";
    const struct
    {
        const char* label;
        variant_t value;
        s32_t kind;
    } rows[] = {
        {"default", variant_t(), 17},
        {"bool", variant_t(true), 0},
        {"s32_t", variant_t(s32_t{1}), 6},
        {"u32_t", variant_t(u32_t{1}), 7},
        {"s64_t", variant_t(s64_t{1}), 8},
        {"u64_t", variant_t(u64_t{1}), 9},
        {"float", variant_t(1.0F), 10},
        {"double", variant_t(1.0), 11},
        {"const char*", variant_t("narrow"), 12},
        {"std::string", variant_t(narrow), 12},
        {"const wchar_t*", variant_t(L"wide"), 13},
        {"std::wstring", variant_t(wide), 13},
        {"reference to narrow text", variant_t::reference(narrow.c_str()), 14},
        {"reference to wide text", variant_t::reference(wide.c_str()), 15},
        {"blob", variant_t::blob("b", 1), 16},
        {"object", variant_t::object(new vexkit2::polymorphic_t), 18},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(row.value.kind(), row.kind) << row.label;
    }
}

TEST(VariantKinds, TextIsCopied)
{
    wchar_t wide[] = L"before";
    const variant_t value(wide);
    wide[0] = L'x';
    EXPECT_STREQ(value.get<const wchar_t*>(), L"before");

    char narrow[] = "before";
    const variant_t narrow_value(narrow);
    narrow[0] = 'x';
    EXPECT_TRUE(narrow_value == variant_t("before"));
}

TEST(VariantKinds, BlobIsCopied)
{
    char bytes[] = {'a', '\0', 'b'};
    const variant_t value = variant_t::blob(bytes, sizeof(bytes));
    bytes[0] = 'x';
    EXPECT_TRUE(value == variant_t::blob("a\0b", 3));
}

TEST(VariantKinds, ReferenceIsNotCopied)
{
    wchar_t wide[] = L"before";
    const variant_t value = variant_t::reference(wide);
    EXPECT_EQ(value.get<const wchar_t*>(), wide);
    wide[0] = L'x';
    EXPECT_STREQ(value.get<const wchar_t*>(), L"xefore");

    char narrow[] = "before";
    const variant_t narrow_value = variant_t::reference(narrow);
    narrow[0] = 'x';
    EXPECT_TRUE(narrow_value == variant_t("xefore"));
}

TEST(VariantKinds, NullTextCountsAsEmpty)
{
    const char* const narrow = nullptr;
    const wchar_t* const wide = nullptr;
    EXPECT_TRUE(variant_t(narrow) == variant_t(""));
    EXPECT_TRUE(variant_t::reference(narrow) == variant_t(""));
    EXPECT_STREQ(variant_t(wide).get<const wchar_t*>(), L"");
    EXPECT_STREQ(variant_t::reference(wide).get<const wchar_t*>(), L"");
}

TEST(VariantKinds, StringKeepsItsEmbeddedZeros)
{
    const std::wstring text(L"a\0b", 3);
    const variant_t value(text);
    ASSERT_EQ(value.byte_length(), 4 * sizeof(wchar_t));
    EXPECT_EQ(std::memcmp(value.get<const wchar_t*>(), text.c_str(), 4 * sizeof(wchar_t)), 0);
}

TEST(VariantKinds, ByteLengthCountsTheTerminatingZeroOfTextsOnly)
{
    EXPECT_EQ(variant_t("abc").byte_length(), 4U);
    EXPECT_EQ(variant_t("").byte_length(), 1U);
    EXPECT_EQ(variant_t(L"abc").byte_length(), 4 * sizeof(wchar_t));
    EXPECT_EQ(variant_t(L"").byte_length(), sizeof(wchar_t));
    EXPECT_EQ(variant_t::blob("abc", 3).byte_length(), 3U);
    EXPECT_EQ(variant_t::blob(nullptr, 0).byte_length(), 0U);
    EXPECT_EQ(variant_t::object(new vexkit2::polymorphic_t).byte_length(), sizeof(void*));
}

TEST(VariantKinds, ByteLengthOfWhatHasNoBlockIsZero)
{
    EXPECT_EQ(variant_t().byte_length(), 0U);
    EXPECT_EQ(variant_t(true).byte_length(), 0U);
    EXPECT_EQ(variant_t(std::numeric_limits<u64_t>::max()).byte_length(), 0U);
    EXPECT_EQ(variant_t::reference("abc").byte_length(), 0U);
    EXPECT_EQ(variant_t::reference(L"abc").byte_length(), 0U);
}

TEST(VariantKinds, SetDataHoldsACopyOfTheBytes)
{
    variant_t value(s32_t{5});
    wchar_t wide[] = L"wide";
    value.set_data(13, wide, sizeof(wide)); // characters and the terminating zero
    wide[0] = L'x';
    EXPECT_EQ(value.kind(), 13);
    EXPECT_EQ(value.byte_length(), sizeof(wide));
    EXPECT_STREQ(value.get<const wchar_t*>(), L"wide");

    value.set_data(12, "narrow", 7);
    EXPECT_EQ(value.kind(), 12);
    EXPECT_EQ(value.byte_length(), 7U);
    EXPECT_TRUE(value == variant_t("narrow"));

    value.set_data(16, "a\0b", 3);
    EXPECT_EQ(value.kind(), 16);
    EXPECT_TRUE(value == variant_t::blob("a\0b", 3));

    value.set_data(16, nullptr, 0);
    EXPECT_TRUE(value == variant_t::blob("", 0));
}

TEST(VariantKinds, SetDataMayCopyFromTheVariantsOwnBlock)
{
    variant_t value(L"long text");
    const wchar_t* const own = value.get<const wchar_t*>();
    value.set_data(13, own + 5, 5 * sizeof(wchar_t));
    EXPECT_STREQ(value.get<const wchar_t*>(), L"text");
}

TEST(VariantKinds, SetDataLeavesSharersOfTheOldBlockAlone)
{
    variant_t value(L"old");
    const variant_t copy = value;
    value.set_data(13, L"new", 4 * sizeof(wchar_t));
    EXPECT_STREQ(value.get<const wchar_t*>(), L"new");
    EXPECT_STREQ(copy.get<const wchar_t*>(), L"old");
}

} // namespace
