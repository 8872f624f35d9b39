// The pool of texts.
#include "support/Garbage.h"

#include <string>
#include <utility>
#include <vector>

#include "AllocationCount.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::Garbage;

constexpr std::size_t first_block = 256;

TEST(Garbage, NullGivesAnEmptyTextThatIsNotStored)
{
    Garbage pool(first_block);
    const wchar_t* const text = pool.intern(nullptr);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(*text, L'\0');
    EXPECT_EQ(pool.intern(nullptr), text);
    Garbage other(first_block);
    EXPECT_EQ(other.intern(nullptr), text);
}

TEST(Garbage, EqualTextsAreStoredOnce)
{
    Garbage pool(first_block);
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
    Garbage pool(first_block);
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
    Garbage pool(first_block);
    std::wstring source = L"verbose";
    const wchar_t* const text = pool.intern(source.c_str());
    EXPECT_NE(text, source.c_str());
    source = L"changed";
    EXPECT_EQ(std::wstring(text), L"verbose");
    EXPECT_EQ(pool.intern(L"verbose"), text);
}

TEST(Garbage, TextIsTerminatedWhateverStandsBehindIt)
{
    Garbage pool(first_block);
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
    Garbage pool(first_block);
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
    Garbage pool(first_block);
    const std::wstring_view whole(L"ab\0cd", 5);
    const std::wstring_view text = pool.internText(whole);
    EXPECT_EQ(text, L"ab");
    EXPECT_EQ(pool.intern(L"ab"), text.data());
    EXPECT_EQ(pool.internText(std::wstring_view(L"ab\0ef", 5)).data(), text.data());
    EXPECT_EQ(pool.internText(std::wstring_view(L"\0", 1)).data(), pool.intern(L""));
}

TEST(Garbage, KeptTextIsSharedWithNoOther)
{
    Garbage pool(first_block);
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
    Garbage pool(first_block);
    const std::wstring_view source(L"a\0b\0", 4);
    const std::wstring_view kept = pool.keep(source);
    EXPECT_EQ(kept, source);
    EXPECT_EQ(kept.data()[4], L'\0');
    EXPECT_EQ(pool.keep({}), L"");
    EXPECT_EQ(*pool.keep({}).data(), L'\0');
}

TEST(Garbage, FindingAKnownTextTakesNoMemory)
{
    Garbage pool(first_block);
    const std::wstring text(1000, L'x');
    pool.internText(text);
    const std::size_t before = unit::allocationCount();
    for (int round = 0; round < 10; ++round)
    {
        pool.internText(text);
    }
    EXPECT_EQ(unit::allocationCount(), before);
}

TEST(Garbage, MemoryLivesBesideTheTexts)
{
    Garbage pool(first_block);
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

TEST(Garbage, AdoptedTextIsInternedLikeAnyOther)
{
    for (const std::size_t length : {std::size_t{3}, std::size_t{100000}})
    {
        Garbage pool(first_block);
        const std::wstring text(length, L'x');
        const std::wstring_view adopted = pool.adoptText(std::wstring(text));
        EXPECT_EQ(adopted, text);
        EXPECT_EQ(adopted.data()[length], L'\0');
        EXPECT_EQ(pool.internText(text).data(), adopted.data());
        EXPECT_EQ(pool.adoptText(std::wstring(text)).data(), adopted.data());
        static_cast<void>(pool.adoptText(L"another"));
        EXPECT_EQ(pool.intern(text.c_str()), adopted.data());
    }
}

TEST(Garbage, LongAdoptedTextIsNotCopied)
{
    Garbage pool(first_block);
    std::wstring text(100000, L'x');
    const wchar_t* const characters = text.data();
    EXPECT_EQ(pool.adoptText(std::move(text)).data(), characters);
}

TEST(Garbage, AdoptedTextEndsAtItsFirstZero)
{
    Garbage pool(first_block);
    std::wstring text(10000, L'x');
    text[5000] = L'\0';
    EXPECT_EQ(pool.adoptText(std::move(text)), std::wstring(5000, L'x'));
}

} // namespace
