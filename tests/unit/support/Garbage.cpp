// The pool of texts.
#include "support/memory/Garbage.h"

#include <string>
#include <vector>

#include "support/memory/InlineBlock.h"

#include "AllocationCount.h"
#include "HeapOnly.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::Garbage;
using kexa_3_3::InlineBlock;
using unit::heap_only;

TEST(Garbage, NullGivesAnEmptyTextThatIsNotStored)
{
    Garbage pool{heap_only};
    const wchar_t* const text = pool.intern(nullptr);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(*text, L'\0');
    EXPECT_EQ(pool.intern(nullptr), text);
    Garbage other{heap_only};
    EXPECT_EQ(other.intern(nullptr), text);
}

TEST(Garbage, EqualTextsAreStoredOnce)
{
    Garbage pool{heap_only};
    const std::wstring first = L"verbose";
    const std::wstring second = L"verbose";
    const wchar_t* const text = pool.intern(first.c_str());
    EXPECT_EQ(pool.intern(second.c_str()), text);
    EXPECT_EQ(pool.internText(L"verbose").data(), text);
    EXPECT_NE(pool.intern(L"verbos"), text);
    EXPECT_NE(pool.intern(L"Verbose"), text);
    const wchar_t* const empty = pool.intern(L"");
    EXPECT_EQ(pool.intern(L""), empty);
    EXPECT_EQ(*empty, L'\0');
}

TEST(Garbage, EmptyTextMayBeTheFirst)
{
    Garbage pool{heap_only};
    const wchar_t* const empty = pool.intern(L"");
    ASSERT_NE(empty, nullptr);
    EXPECT_EQ(*empty, L'\0');
    const wchar_t* const text = pool.intern(L"a");
    EXPECT_EQ(pool.intern(L""), empty);
    EXPECT_EQ(pool.intern(L"a"), text);
    EXPECT_NE(text, empty);
}

TEST(Garbage, InternedTextIsACopy)
{
    Garbage pool{heap_only};
    std::wstring source = L"verbose";
    const wchar_t* const text = pool.intern(source.c_str());
    EXPECT_NE(text, source.c_str());
    source = L"changed";
    EXPECT_EQ(std::wstring(text), L"verbose");
    EXPECT_EQ(pool.intern(L"verbose"), text);
}

TEST(Garbage, TextIsTerminatedWhateverStandsBehindIt)
{
    Garbage pool{heap_only};
    const std::wstring_view source = L"verbose";
    const std::wstring_view interned = pool.internText(source.substr(0, 4));
    EXPECT_EQ(interned, L"verb");
    EXPECT_EQ(interned.data()[4], L'\0');
    const std::wstring_view kept = pool.keep(source.substr(3, 2));
    EXPECT_EQ(kept, L"bo");
    EXPECT_EQ(kept.data()[2], L'\0');
}

TEST(Garbage, AddressesStayWhileThePoolGrows)
{
    constexpr unsigned count = 5000;
    InlineBlock<256> first;
    Garbage pool(first.bytes());
    std::vector<const wchar_t*> texts;
    for (unsigned number = 0; number < count; ++number)
    {
        texts.push_back(pool.intern(std::to_wstring(number * 7919U).c_str()));
    }
    const std::wstring large(100000, L'x');
    EXPECT_EQ(pool.internText(large), large);
    for (unsigned number = 0; number < count; ++number)
    {
        const std::wstring text = std::to_wstring(number * 7919U);
        ASSERT_EQ(std::wstring(texts[number]), text);
        ASSERT_EQ(pool.intern(text.c_str()), texts[number]);
    }
}

TEST(Garbage, InternedTextEndsAtItsFirstZero)
{
    Garbage pool{heap_only};
    const std::wstring_view whole(L"ab\0cd", 5);
    const std::wstring_view text = pool.internText(whole);
    EXPECT_EQ(text, L"ab");
    EXPECT_EQ(pool.intern(L"ab"), text.data());
    EXPECT_EQ(pool.internText(std::wstring_view(L"ab\0ef", 5)).data(), text.data());
    EXPECT_EQ(pool.internText(std::wstring_view(L"\0", 1)).data(), pool.intern(L""));
}

TEST(Garbage, KeptTextIsSharedWithNoOther)
{
    Garbage pool{heap_only};
    const std::wstring_view first = pool.keep(L"name");
    const std::wstring_view second = pool.keep(L"name");
    EXPECT_EQ(first, L"name");
    EXPECT_EQ(second, L"name");
    EXPECT_NE(first.data(), second.data());
    EXPECT_NE(pool.intern(L"name"), first.data());
    EXPECT_NE(pool.intern(L"name"), second.data());
}

TEST(Garbage, KeptTextHoldsItsZeros)
{
    Garbage pool{heap_only};
    const std::wstring_view source(L"a\0b\0", 4);
    const std::wstring_view kept = pool.keep(source);
    EXPECT_EQ(kept, source);
    EXPECT_EQ(kept.data()[4], L'\0');
    EXPECT_EQ(pool.keep({}), L"");
    EXPECT_EQ(*pool.keep({}).data(), L'\0');
}

TEST(Garbage, JoinedTextIsBothOneBehindTheOther)
{
    Garbage pool{heap_only};
    const struct
    {
        std::wstring_view first;
        std::wstring_view second;
        std::wstring_view joined;
    } rows[] = {
        {L"no-", L"name", L"no-name"}, {L"", L"b", L"b"}, {L"a", L"", L"a"}, {L"", L"", L""}};
    for (const auto& row : rows)
    {
        const std::wstring_view joined = pool.keepJoined(row.first, row.second);
        EXPECT_EQ(joined, row.joined);
        EXPECT_EQ(joined.data()[joined.size()], L'\0');
    }
}

TEST(Garbage, FindingAKnownTextAllocatesNothing)
{
    Garbage pool{heap_only};
    const std::wstring text(1000, L'x');
    pool.internText(text);
    const std::size_t before = toolbox::allocationsSoFar().blocks;
    for (int round = 0; round < 10; ++round)
    {
        pool.internText(text);
    }
    EXPECT_EQ(toolbox::allocationsSoFar().blocks, before);
}

TEST(Garbage, MemoryLivesBesideTheTexts)
{
    Garbage pool{heap_only};
    const std::wstring_view before = pool.keep(L"before");
    auto* const numbers =
        static_cast<double*>(pool.memory().allocate(1000 * sizeof(double), alignof(double)));
    for (int index = 0; index < 1000; ++index)
    {
        new (numbers + index) double(index);
    }
    const std::wstring_view after = pool.keep(L"after");
    for (int index = 0; index < 1000; ++index)
    {
        ASSERT_EQ(numbers[index], index);
    }
    EXPECT_EQ(before, L"before");
    EXPECT_EQ(after, L"after");
}

} // namespace
