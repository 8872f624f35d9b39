// The texts of many variants in common memory.
#include "support/SharedTexts.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "AllocationCount.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::SharedTexts;
using unit::allocationCount;
using vexkit2::variant_t;

std::wstring numbered(std::size_t number)
{
    return L"text " + std::to_wstring(number);
}

// Everything that the variant holds, zeros included.
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

// Its address, as a number.
std::uintptr_t addressOf(const variant_t& text)
{
    return reinterpret_cast<std::uintptr_t>(text.get<const wchar_t*>());
}

std::size_t regionsOf(const std::vector<variant_t>& texts)
{
    std::vector<const void*> regions;
    for (const variant_t& text : texts)
    {
        regions.push_back(vexkit2::detail::header_of(text.get<const wchar_t*>())->memory);
    }
    std::sort(regions.begin(), regions.end());
    return static_cast<std::size_t>(std::unique(regions.begin(), regions.end()) - regions.begin());
}

TEST(SharedTexts, VariantIsOneLikeAnyOther)
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

// Of every length, each to its last character: texts that overlap show, and what lies beyond its
// region shows under the address sanitizer.
TEST(SharedTexts, TextsOfAnyLengthLieApartAndAligned)
{
    SharedTexts texts(64);
    std::vector<std::wstring> expected;
    std::vector<variant_t> made;
    for (std::size_t number = 0; number < 3000; ++number)
    {
        const auto filling = static_cast<wchar_t>(L'A' + number % 50);
        expected.emplace_back(number % 41 == 40 ? number : number % 41, filling);
        made.push_back(texts.add(expected.back()));
        EXPECT_EQ(addressOf(made.back()) % 8, 0U) << number;
    }
    for (std::size_t number = 0; number < made.size(); ++number)
    {
        ASSERT_EQ(wholeText(made[number]), expected[number]) << number;
    }
    EXPECT_GT(regionsOf(made), 5U);
}

TEST(SharedTexts, TextLargerThanARegionHasRoom)
{
    SharedTexts texts(64);
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

// Of a region of so many bytes, the last text may end at its end.
TEST(SharedTexts, RegionIsUsedToItsEnd)
{
    constexpr std::size_t header = 16;
    for (const std::size_t length : {3U, 7U, 11U})
    {
        const std::size_t size = header + (length + 1) * sizeof(wchar_t);
        ASSERT_EQ(size % 8, 0U);
        SharedTexts texts(4 * size);
        std::vector<variant_t> made;
        for (int number = 0; number < 4; ++number)
        {
            made.push_back(texts.add(std::wstring(length, L'x')));
        }
        EXPECT_EQ(regionsOf(made), 1U);
        made.push_back(texts.add(L""));
        EXPECT_EQ(regionsOf(made), 2U);
    }
}

TEST(SharedTexts, TextThatNoMemoryHoldsIsRefused)
{
    SharedTexts texts;
    const variant_t before = texts.add(L"before");
    const wchar_t character = L'x';
    constexpr std::size_t most = std::numeric_limits<std::size_t>::max() / sizeof(wchar_t);
    for (const std::size_t length : {most, most - 1, most - 10, most / 2 + 1})
    {
        // Not read: that it cannot be kept is found out first.
        EXPECT_THROW(static_cast<void>(texts.add(std::wstring_view(&character, length))),
                     std::bad_alloc);
    }
    EXPECT_EQ(wholeText(before), L"before");
    EXPECT_EQ(wholeText(texts.add(L"behind")), L"behind");
}

TEST(SharedTexts, TakeFarFewerBlocksThanThereAreTexts)
{
    const std::size_t before = allocationCount();
    {
        SharedTexts texts;
        EXPECT_EQ(allocationCount(), before); // none is needed before the first text
        for (std::size_t number = 0; number < 100000; ++number)
        {
            const std::wstring_view text = L"a text";
            static_cast<void>(texts.add(text));
        }
    }
    EXPECT_LE(allocationCount() - before, 20U);
}

TEST(SharedTexts, CopiesAndReleasesTakeNoMemory)
{
    SharedTexts texts;
    const variant_t made = texts.add(L"text");
    const std::size_t before = allocationCount();
    for (int number = 0; number < 100; ++number)
    {
        const variant_t copy = made;
        const variant_t another = copy;
        EXPECT_EQ(another.get<const wchar_t*>(), made.get<const wchar_t*>());
    }
    EXPECT_EQ(allocationCount(), before);
}

// A region that is kept too long is a leak, one that is freed too early is read: the address
// sanitizer tells of both.
TEST(SharedTexts, VariantsMayOutliveTheObject)
{
    std::vector<variant_t> made;
    {
        SharedTexts texts(64);
        for (std::size_t number = 0; number < 1000; ++number)
        {
            made.push_back(texts.add(numbered(number)));
        }
    }
    EXPECT_GT(regionsOf(made), 3U);
    std::vector<std::size_t> order(made.size());
    for (std::size_t number = 0; number < order.size(); ++number)
    {
        order[number] = number;
    }
    std::mt19937_64 random(1);
    std::shuffle(order.begin(), order.end(), random);
    while (!order.empty())
    {
        made[order.back()] = variant_t();
        order.pop_back();
        for (const std::size_t number : order)
        {
            if (number % 97 == 0)
            {
                ASSERT_EQ(wholeText(made[number]), numbered(number));
            }
        }
    }
}

TEST(SharedTexts, ObjectMayOutliveTheVariants)
{
    SharedTexts texts(64);
    for (std::size_t number = 0; number < 1000; ++number)
    {
        const variant_t made = texts.add(numbered(number));
        const variant_t copy = made;
        ASSERT_EQ(wholeText(copy), numbered(number));
    }
    EXPECT_EQ(wholeText(texts.add(L"last")), L"last");
}

TEST(SharedTexts, CopyKeepsItsRegionAlone)
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

TEST(SharedTexts, TakenBackTextStaysWhileTheObjectLives)
{
    SharedTexts texts;
    variant_t made = texts.add(L"text");
    const wchar_t* const data = made.get<const wchar_t*>();
    const std::uint64_t word = texts.takeBack(made);
    EXPECT_EQ(made.kind(), 17);
    for (int number = 0; number < 1000; ++number)
    {
        static_cast<void>(texts.add(L"another")); // whose share is given up at once
    }
    EXPECT_STREQ(data, L"text");
    // The word lends the share of the object.
    variant_t lent = variant_t::attach(13, word);
    const variant_t copy = lent;
    EXPECT_EQ(lent.detach(), word);
    EXPECT_EQ(wholeText(copy), L"text");
}

// Shares that are taken back are given up with the object; a count that is wrong by one is a leak
// or a variant without memory.
TEST(SharedTexts, TakenBackAndKeptOnesMayBeMixed)
{
    for (unsigned seed = 0; seed < 50; ++seed)
    {
        std::mt19937_64 random(seed);
        std::vector<variant_t> kept;
        std::vector<std::wstring> expected;
        {
            SharedTexts texts(64);
            for (std::size_t number = 0; number < 100; ++number)
            {
                variant_t made = texts.add(numbered(number));
                if (random() % 2 == 0)
                {
                    kept.push_back(made);
                    expected.push_back(numbered(number));
                }
                if (random() % 2 == 0)
                {
                    static_cast<void>(texts.takeBack(made));
                }
            }
        }
        for (std::size_t index = 0; index < kept.size(); ++index)
        {
            ASSERT_EQ(wholeText(kept[index]), expected[index]);
        }
    }
}

TEST(SharedTexts, TellTheirOwnTextsFromOthers)
{
    SharedTexts texts;
    SharedTexts others;
    const variant_t own = texts.add(L"text");
    const variant_t copy = own;
    EXPECT_TRUE(texts.made(own));
    EXPECT_TRUE(texts.made(copy));
    EXPECT_FALSE(others.made(own));
    EXPECT_FALSE(texts.made(others.add(L"text")));
    EXPECT_FALSE(texts.made(variant_t(L"text"))); // a block of its own
    EXPECT_FALSE(texts.made(variant_t(L"")));
    for (int number = 0; number < 1000; ++number)
    {
        static_cast<void>(texts.add(L"further regions"));
    }
    EXPECT_TRUE(texts.made(own));
    EXPECT_TRUE(texts.made(texts.add(L"text")));
}

TEST(SharedTexts, TextsOfAnObjectThatLivedAtTheSameAddressAreOthers)
{
    std::optional<SharedTexts> texts(std::in_place);
    const SharedTexts* const address = &*texts;
    std::vector<variant_t> older;
    for (int number = 0; number < 1000; ++number)
    {
        older.push_back(texts->add(L"a text of the one before"));
    }
    ASSERT_GT(regionsOf(older), 3U);
    texts.emplace();
    ASSERT_EQ(&*texts, address);
    for (const variant_t& text : older)
    {
        ASSERT_FALSE(texts->made(text));
        ASSERT_EQ(wholeText(text), L"a text of the one before");
    }
    EXPECT_TRUE(texts->made(texts->add(L"own")));
}

TEST(SharedTexts, ShareThatWasTakenBackIsLentAgain)
{
    SharedTexts texts;
    variant_t text = texts.add(L"text");
    const std::uint64_t word = [&text]
    {
        variant_t copy = text;
        return copy.detach(); // and its share, which nobody has then
    }();
    variant_t second = variant_t::attach(vexkit2::kind_wide_text, word);
    EXPECT_TRUE(texts.reclaim(second));
    EXPECT_EQ(second.kind(), vexkit2::kind_null);
    second = variant_t::attach(vexkit2::kind_wide_text, word);
    EXPECT_TRUE(texts.lend(second));
    EXPECT_TRUE(texts.reclaim(text));
    EXPECT_EQ(wholeText(second), L"text");
}

TEST(SharedTexts, WhatWasMadeElsewhereIsNeitherLentNorReclaimed)
{
    SharedTexts texts;
    SharedTexts others;
    std::vector<variant_t> values = {variant_t(L"text"), variant_t::blob("x", 1),
                                     others.add(L"text")};
    for (variant_t& value : values)
    {
        const variant_t before = value;
        EXPECT_FALSE(texts.lend(value)) << value.kind();
        EXPECT_FALSE(texts.reclaim(value)) << value.kind();
        EXPECT_EQ(value, before) << value.kind();
    }
}

TEST(SharedTexts, WhatHasNoBlockIsNotLentAndBecomesNull)
{
    SharedTexts texts;
    for (const variant_t& plain : {variant_t(), variant_t(7), variant_t::reference(L"text")})
    {
        variant_t value = plain;
        EXPECT_FALSE(texts.lend(value)) << plain.kind();
        EXPECT_EQ(value.kind(), plain.kind());
        EXPECT_TRUE(texts.reclaim(value)) << plain.kind();
        EXPECT_EQ(value.kind(), vexkit2::kind_null) << plain.kind();
    }
}

TEST(SharedTexts, RoomOfADiscardedTextIsUsedAgain)
{
    SharedTexts texts;
    const variant_t before = texts.add(L"before");
    variant_t discarded = texts.add(L"discarded");
    const wchar_t* const place = discarded.get<const wchar_t*>();
    texts.discard(discarded);
    EXPECT_EQ(discarded.kind(), 17);
    const variant_t next = texts.add(L"next");
    EXPECT_EQ(next.get<const wchar_t*>(), place);
    EXPECT_STREQ(before.get<const wchar_t*>(), L"before");
    EXPECT_STREQ(next.get<const wchar_t*>(), L"next");
}

TEST(SharedTexts, DiscardingAnOlderTextLeavesTheOthers)
{
    SharedTexts texts;
    variant_t discarded = texts.add(L"discarded");
    const variant_t last = texts.add(L"last");
    texts.discard(discarded);
    const variant_t next = texts.add(L"next");
    EXPECT_STREQ(last.get<const wchar_t*>(), L"last");
    EXPECT_STREQ(next.get<const wchar_t*>(), L"next");
}

} // namespace
