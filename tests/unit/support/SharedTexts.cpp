// The texts of many variants in common memory.
#include "support/memory/SharedTexts.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <numeric>
#include <random>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "AllocationCount.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::SharedTexts;
using toolbox::allocationsSoFar;
using toolbox::liveBlocks;
using vexkit2::variant_t;

constexpr std::size_t many = 5000; // texts that do not fit into one region

std::wstring numbered(std::size_t number)
{
    return L"text " + std::to_wstring(number);
}

// Returns all that the variant holds, zero characters included.
std::wstring wholeText(const variant_t& text)
{
    EXPECT_EQ(text.kind(), 13);
    const std::size_t units = text.byte_length() / sizeof(wchar_t);
    const auto* const data = text.get<const wchar_t*>();
    EXPECT_EQ(text.byte_length() % sizeof(wchar_t), 0U);
    EXPECT_GE(units, 1U);
    EXPECT_EQ(data[units - 1], L'\0');
    return std::wstring(data, units - 1);
}

TEST(SharedTexts, VariantEqualsOneWithMemoryOfItsOwn)
{
    SharedTexts texts;
    for (const std::wstring& text :
         {std::wstring(), std::wstring(L"a"), std::wstring(L"\u00E9\U0001F600"),
          std::wstring(L"a\0b\0", 4), std::wstring(3, L'\0'), std::wstring(500, L'x')})
    {
        const variant_t made = texts.add(text);
        EXPECT_EQ(wholeText(made), text);
        EXPECT_EQ(made, variant_t(text));
        EXPECT_EQ(made.byte_length(), variant_t(text).byte_length());
    }
    EXPECT_EQ(wholeText(texts.add(std::wstring_view())), L"");
}

TEST(SharedTexts, TextIsCopied)
{
    SharedTexts texts;
    std::wstring source = L"source";
    const variant_t made = texts.add(std::wstring_view(source).substr(0, 4));
    source.assign(source.size(), L'?');
    EXPECT_EQ(wholeText(made), L"sour");
}

// Each text is filled to its last character, so that one that overlaps another has other contents.
// What lies beyond its region is reported by the address sanitizer.
TEST(SharedTexts, TextsOfAnyLengthLieApartAndAligned)
{
    SharedTexts texts;
    std::vector<std::wstring> expected;
    std::vector<variant_t> made;
    for (std::size_t number = 0; number < many; ++number)
    {
        const auto filling = static_cast<wchar_t>(L'A' + number % 50);
        expected.emplace_back(number % 41 == 40 ? number : number % 41, filling);
        made.push_back(texts.add(expected.back()));
        const auto address = reinterpret_cast<std::uintptr_t>(made.back().get<const wchar_t*>());
        EXPECT_EQ(address % 8, 0U) << number;
    }
    for (std::size_t number = 0; number < made.size(); ++number)
    {
        ASSERT_EQ(wholeText(made[number]), expected[number]) << number;
    }
}

TEST(SharedTexts, TextMayBeLargerThanARegion)
{
    SharedTexts texts;
    const std::size_t lengths[] = {1000, 1, 3000000, 2, 100000};
    std::vector<variant_t> made;
    for (const std::size_t length : lengths)
    {
        made.push_back(texts.add(std::wstring(length, L'x')));
    }
    for (std::size_t index = 0; index < made.size(); ++index)
    {
        EXPECT_TRUE(wholeText(made[index]) == std::wstring(lengths[index], L'x')) << index;
    }
}

TEST(SharedTexts, TextThatNoMemoryHasRoomForThrowsAndChangesNothing)
{
    SharedTexts texts;
    const variant_t before = texts.add(L"before");
    const wchar_t character = L'x';
    constexpr std::size_t most = std::numeric_limits<std::size_t>::max() / sizeof(wchar_t);
    for (const std::size_t length : {most, most - 1, most - 10, most / 2 + 1})
    {
        // The characters are not read: the text is refused by its length.
        EXPECT_THROW(static_cast<void>(texts.add(std::wstring_view(&character, length))),
                     std::bad_alloc);
    }
    EXPECT_EQ(wholeText(before), L"before");
    EXPECT_EQ(wholeText(texts.add(L"after")), L"after");
}

TEST(SharedTexts, TextsTakeFewAllocations)
{
    const std::size_t before = allocationsSoFar().blocks;
    {
        SharedTexts texts;
        EXPECT_EQ(allocationsSoFar().blocks, before);
        const std::wstring_view text = L"a text";
        for (std::size_t number = 0; number < 100000; ++number)
        {
            static_cast<void>(texts.add(text));
        }
    }
    EXPECT_LE(allocationsSoFar().blocks - before, 20U);
}

TEST(SharedTexts, CopiesOfAVariantAllocateNothing)
{
    SharedTexts texts;
    const variant_t made = texts.add(L"text");
    const std::size_t before = allocationsSoFar().blocks;
    for (int number = 0; number < 100; ++number)
    {
        const variant_t copy = made;
        const variant_t another = copy;
        EXPECT_EQ(another.get<const wchar_t*>(), made.get<const wchar_t*>());
    }
    EXPECT_EQ(allocationsSoFar().blocks, before);
}

// Of a region that is freed too early, the address sanitizer reports the next read.
TEST(SharedTexts, VariantsMayOutliveTheObject)
{
    const std::size_t before = liveBlocks();
    {
        std::vector<variant_t> made(many);
        std::vector<std::size_t> order(many);
        {
            SharedTexts texts;
            for (std::size_t number = 0; number < many; ++number)
            {
                made[number] = texts.add(numbered(number));
            }
        }
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::mt19937_64 random(1);
        std::shuffle(order.begin(), order.end(), random);
        for (const std::size_t number : order)
        {
            ASSERT_EQ(wholeText(made[number]), numbered(number));
            made[number] = variant_t();
        }
    }
    EXPECT_EQ(liveBlocks(), before) << "leaked";
}

TEST(SharedTexts, ObjectMayOutliveTheVariants)
{
    const std::size_t before = liveBlocks();
    {
        SharedTexts texts;
        for (std::size_t number = 0; number < many; ++number)
        {
            const variant_t made = texts.add(numbered(number));
            const variant_t copy = made;
            ASSERT_EQ(wholeText(copy), numbered(number));
        }
        EXPECT_EQ(wholeText(texts.add(L"last")), L"last");
    }
    EXPECT_EQ(liveBlocks(), before) << "leaked";
}

TEST(SharedTexts, CopyOfOneVariantKeepsItsRegion)
{
    variant_t last;
    {
        SharedTexts texts;
        const variant_t first = texts.add(L"first");
        const variant_t second = texts.add(L"second");
        last = second;
    }
    EXPECT_EQ(wholeText(last), L"second");
    const variant_t copy = last;
    last = variant_t();
    EXPECT_EQ(wholeText(copy), L"second");
}

// The thread sanitizer reports a reference count that is not atomic.
TEST(SharedTexts, VariantsAreCopiedAndDestroyedOnAnyThread)
{
    std::vector<variant_t> made;
    std::vector<std::thread> threads;
    {
        SharedTexts texts;
        for (std::size_t number = 0; number < many; ++number)
        {
            made.push_back(texts.add(numbered(number)));
        }
        for (std::size_t thread = 0; thread < 4; ++thread)
        {
            threads.emplace_back(
                [copies = made]() mutable
                {
                    for (std::size_t number = 0; number < many; ++number)
                    {
                        const variant_t copy = copies[number];
                        copies[number] = variant_t();
                        EXPECT_EQ(wholeText(copy), numbered(number));
                    }
                });
        }
        made.clear();
        for (std::size_t number = 0; number < many; ++number)
        {
            static_cast<void>(texts.add(numbered(number)));
        }
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
}

} // namespace
