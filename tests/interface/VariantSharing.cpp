// Copies share a block, and the last of them frees it.
#include <map>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "VariantSamples.h"

namespace
{

using variant_samples::CountedObject;
using variant_samples::sharersOf;
using vexkit2::s32_t;
using vexkit2::variant_t;

TEST(VariantSharing, CopyOfAWideTextSharesTheBlock)
{
    const variant_t text(L"shared");
    EXPECT_EQ(sharersOf(text), 1U);
    {
        const variant_t copy(text);
        EXPECT_EQ(copy.get<const wchar_t*>(), text.get<const wchar_t*>());
        EXPECT_EQ(sharersOf(text), 2U);
    }
    EXPECT_EQ(sharersOf(text), 1U);
    EXPECT_STREQ(text.get<const wchar_t*>(), L"shared");
}

TEST(VariantSharing, AssignmentSharesTheBlockAndReleasesTheOldOne)
{
    const variant_t text(L"new");
    const variant_t old(L"old");
    variant_t target = old;
    ASSERT_EQ(sharersOf(old), 2U);
    target = text;
    EXPECT_EQ(sharersOf(old), 1U);
    EXPECT_EQ(sharersOf(text), 2U);
    EXPECT_EQ(target.get<const wchar_t*>(), text.get<const wchar_t*>());
}

TEST(VariantSharing, ObjectIsDestroyedOnceWithTheLastCopy)
{
    int destroyed = 0;
    {
        variant_t last;
        {
            const variant_t first = variant_t::object(new CountedObject(destroyed));
            const variant_t second = first;
            last = second;
        }
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 1);
}

TEST(VariantSharing, AssignmentOverTheLastCopyDestroysTheObject)
{
    int destroyed = 0;
    variant_t value = variant_t::object(new CountedObject(destroyed));
    const variant_t one(s32_t{1});
    value = one; // a copy: the move has its own test
    EXPECT_EQ(destroyed, 1);
    EXPECT_EQ(value.get<s32_t>(), 1);
}

TEST(VariantSharing, SetDataOverTheLastCopyDestroysTheObject)
{
    int destroyed = 0;
    variant_t value = variant_t::object(new CountedObject(destroyed));
    value.set_data(12, "", 1);
    EXPECT_EQ(destroyed, 1);
    EXPECT_EQ(value.kind(), 12);
}

TEST(VariantSharing, NullObjectIsHeldAndReleased)
{
    const variant_t value = variant_t::object(nullptr);
    const variant_t copy = value;
    EXPECT_EQ(copy.kind(), 18);
    EXPECT_TRUE(value == copy);
}

TEST(VariantSharing, SelfAssignmentKeepsTheValue)
{
    int destroyed = 0;
    variant_t object = variant_t::object(new CountedObject(destroyed));
    variant_t& same = object;
    object = same;
    EXPECT_EQ(destroyed, 0);
    EXPECT_EQ(object.kind(), 18);

    variant_t text(L"kept");
    variant_t& same_text = text;
    text = same_text;
    EXPECT_STREQ(text.get<const wchar_t*>(), L"kept");
    EXPECT_EQ(sharersOf(text), 1U);
}

TEST(VariantSharing, SelfMoveKeepsTheValue)
{
    variant_t text(L"kept");
    variant_t& same = text;
    text = std::move(same);
    EXPECT_STREQ(text.get<const wchar_t*>(), L"kept");
}

TEST(VariantSharing, MoveTakesTheBlockAndLeavesNull)
{
    variant_t source(L"moved");
    const wchar_t* const data = source.get<const wchar_t*>();
    const variant_t constructed(std::move(source));
    EXPECT_EQ(constructed.get<const wchar_t*>(), data);
    EXPECT_EQ(sharersOf(constructed), 1U);
    EXPECT_EQ(source.kind(), 17); // what a moved-from variant is, is part of its contract

    variant_t second(L"second");
    variant_t assigned(s32_t{1});
    assigned = std::move(second);
    EXPECT_STREQ(assigned.get<const wchar_t*>(), L"second");
    EXPECT_EQ(second.kind(), 17);
}

TEST(VariantSharing, MoveAssignmentReleasesTheOldContent)
{
    int destroyed = 0;
    variant_t target = variant_t::object(new CountedObject(destroyed));
    target = variant_t(true);
    EXPECT_EQ(destroyed, 1);
}

TEST(VariantSharing, SwapExchangesBothWordsAndNoCount)
{
    variant_t text(L"text");
    variant_t number(s32_t{-7});
    text.swap(number);
    EXPECT_EQ(text.get<s32_t>(), -7);
    EXPECT_STREQ(number.get<const wchar_t*>(), L"text");
    EXPECT_EQ(sharersOf(number), 1U);

    using std::swap;
    swap(text, number);
    EXPECT_STREQ(text.get<const wchar_t*>(), L"text");
    EXPECT_EQ(number.get<s32_t>(), -7);

    text.swap(text);
    EXPECT_STREQ(text.get<const wchar_t*>(), L"text");
}

TEST(VariantSharing, CopiesReleasedOnSeveralThreadsDestroyTheObjectOnce)
{
    int destroyed = 0;
    {
        const variant_t shared = variant_t::object(new CountedObject(destroyed));
        std::vector<std::thread> threads;
        for (int index = 0; index < 4; ++index)
        {
            threads.emplace_back(
                [copy = shared]
                {
                    for (int round = 0; round < 2000; ++round)
                    {
                        const variant_t again = copy;
                        variant_t moved = again;
                        moved = variant_t();
                    }
                });
        }
        for (std::thread& thread : threads)
        {
            thread.join();
        }
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 1);
}

TEST(VariantSharing, MapOrderedByVariantFindsEqualKeys)
{
    std::map<variant_t, std::string> map;
    map.emplace(variant_t(s32_t{2}), "two");
    map.emplace(variant_t(L"two"), "text");
    EXPECT_FALSE(map.emplace(variant_t(2.0), "another two").second);
    EXPECT_FALSE(map.emplace(variant_t::reference(L"two"), "another text").second);
    EXPECT_EQ(map.at(variant_t(vexkit2::u64_t{2})), "two");
    EXPECT_EQ(map.at(variant_t(std::wstring(L"two"))), "text");
    EXPECT_EQ(map.count(variant_t("two")), 0U);
}

} // namespace
