// Taking the share of a block out of a variant and giving it to another.
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "VariantSamples.h"

namespace
{

using variant_samples::CountedObject;
using variant_samples::sharersOf;
using vexkit2::s32_t;
using vexkit2::u64_t;
using vexkit2::variant_t;

TEST(VariantShares, DetachedWordBecomesTheSameVariantAgain)
{
    const char bytes[] = {1, 0, 2};
    const wchar_t text[] = L"referred to";
    for (const variant_t& value :
         {variant_t(), variant_t(true), variant_t(false), variant_t(s32_t{-7}),
          variant_t(vexkit2::u32_t{7}), variant_t(vexkit2::s64_t{-1} << 40),
          variant_t(u64_t{1} << 63), variant_t(2.5F), variant_t(-2.5), variant_t("narrow"),
          variant_t(L"wide"), variant_t(L""), variant_t::reference("referred to"),
          variant_t::reference(text), variant_t::blob(bytes, sizeof(bytes)),
          variant_t::object(nullptr)})
    {
        variant_t taken = value;
        const u64_t word = taken.detach();
        EXPECT_EQ(taken.kind(), 17) << value.kind();
        EXPECT_TRUE(taken == variant_t());
        const variant_t again = variant_t::attach(value.kind(), word);
        EXPECT_EQ(again.kind(), value.kind());
        EXPECT_TRUE(again == value) << value.kind();
        EXPECT_EQ(again.byte_length(), value.byte_length());
    }
}

TEST(VariantShares, DetachedWordOfATextIsWhereItLies)
{
    variant_t text(L"text");
    const wchar_t* const data = text.get<const wchar_t*>();
    const u64_t word = text.detach();
    const wchar_t* pointer = nullptr;
    std::memcpy(&pointer, &word, sizeof(pointer));
    EXPECT_EQ(pointer, data);
    EXPECT_STREQ(pointer, L"text");
    static_cast<void>(variant_t::attach(13, word));
}

TEST(VariantShares, ShareGoesWithTheWord)
{
    variant_t first(L"text");
    const variant_t second = first;
    ASSERT_EQ(sharersOf(second), 2U);
    const u64_t word = first.detach();
    EXPECT_EQ(sharersOf(second), 2U);
    first = variant_t(); // gives nothing up: the word has the share
    EXPECT_EQ(sharersOf(second), 2U);
    {
        const variant_t third = variant_t::attach(13, word);
        EXPECT_EQ(sharersOf(second), 2U);
    }
    EXPECT_EQ(sharersOf(second), 1U);
    EXPECT_STREQ(second.get<const wchar_t*>(), L"text");
}

TEST(VariantShares, ObjectIsDestroyedByWhoeverTookTheWord)
{
    int destroyed = 0;
    u64_t word = 0;
    {
        variant_t object = variant_t::object(new CountedObject(destroyed));
        word = object.detach();
    }
    EXPECT_EQ(destroyed, 0);
    static_cast<void>(variant_t::attach(18, word));
    EXPECT_EQ(destroyed, 1);
}

} // namespace
