// The array whose first elements lie beside it.
#include "support/GrowingArray.h"

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "AllocationCount.h"

namespace
{

using kexa_3_3::Arena;
using kexa_3_3::GrowingArray;
using unit::allocationCount;

template <class Array>
std::vector<std::string> contents(const Array& array)
{
    return std::vector<std::string>(array.begin(), array.end());
}

TEST(GrowingArray, FirstElementsTakeNoMemory)
{
    Arena arena(64);
    GrowingArray<int, 3> numbers;
    const std::size_t before = allocationCount();
    numbers.reserveMore(3, arena);
    for (int number = 0; number < 3; ++number)
    {
        numbers.push_back(number);
    }
    EXPECT_EQ(allocationCount(), before);
    EXPECT_EQ(numbers.size(), 3U);
    EXPECT_EQ(numbers[2], 2);
}

TEST(GrowingArray, SmallOneGrowsInTheArenaAndALargeOneInTheHeap)
{
    Arena arena(4096);
    static_cast<void>(arena.take(1, 1));
    const std::size_t before = allocationCount();
    GrowingArray<std::int64_t, 1> numbers;
    numbers.reserveMore(32, arena); // 256 bytes
    EXPECT_EQ(allocationCount(), before);
    numbers.reserveMore(33, arena);
    EXPECT_EQ(allocationCount(), before + 1);
}

TEST(GrowingArray, RoomAtLeastDoubles)
{
    Arena arena(64);
    GrowingArray<int, 1> numbers;
    const std::size_t before = allocationCount();
    for (int number = 0; number < 100000; ++number)
    {
        numbers.reserveMore(1, arena);
        numbers.push_back(number);
    }
    EXPECT_LE(allocationCount() - before, 20U);
    for (std::size_t number = 0; number < 100000; ++number)
    {
        ASSERT_EQ(numbers[number], static_cast<int>(number));
    }
}

// Texts too long to lie inside of a string: a leak or a double destruction shows under the address
// sanitizer.
TEST(GrowingArray, ElementsAreMovedAsItGrows)
{
    Arena arena(64);
    GrowingArray<std::string, 1> texts;
    std::vector<std::string> expected;
    for (int number = 0; number < 50; ++number)
    {
        expected.push_back("a text that is long enough to need memory, " + std::to_string(number));
        texts.reserveMore(1, arena);
        texts.push_back(expected.back());
        ASSERT_EQ(contents(texts), expected);
    }
}

TEST(GrowingArray, ElementsAreTakenAwayInPlace)
{
    Arena arena(64);
    GrowingArray<std::string, 4> texts;
    EXPECT_TRUE(texts.empty());
    for (const char* const text : {"a", "b", "a", "c"})
    {
        texts.push_back(std::string(text));
    }
    texts.removeIf([](const std::string& text) { return text == "a"; });
    EXPECT_EQ(contents(texts), (std::vector<std::string>{"b", "c"}));
    texts.removeIf([](const std::string&) { return true; });
    EXPECT_TRUE(texts.empty());
}

TEST(GrowingArray, MoreThanCanBeCountedIsRefused)
{
    Arena arena(64);
    GrowingArray<std::string, 1> texts;
    texts.push_back("kept");
    EXPECT_THROW(texts.reserveMore(~std::size_t{0}, arena), std::bad_alloc);
    EXPECT_THROW(texts.reserveMore(std::size_t{1} << 33, arena), std::bad_alloc);
    EXPECT_EQ(contents(texts), std::vector<std::string>{"kept"});
}

} // namespace
