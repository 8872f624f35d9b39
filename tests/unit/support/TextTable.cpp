// The table that numbers texts.
#include "support/TextTable.h"

#include <map>
#include <string>
#include <vector>

#include "AllocationCount.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::equalCharacters;
using kexa_3_3::HashedText;
using kexa_3_3::hashOf;
using kexa_3_3::TextTable;

constexpr std::uint32_t absent = TextTable::absent;

std::uint32_t add(TextTable& table, std::wstring_view text)
{
    table.reserve(1);
    return table.insert(text);
}

// Texts whose hashes agree in their lowest bits, so that they meet in one slot of every table that
// has at most `slots` of them.
std::vector<std::wstring> textsMeetingAt(std::uint64_t slot, std::uint64_t slots, std::size_t count)
{
    std::vector<std::wstring> texts;
    for (unsigned number = 0; texts.size() < count; ++number)
    {
        std::wstring text = L"text" + std::to_wstring(number);
        if (hashOf(text) % slots == slot)
        {
            texts.push_back(std::move(text));
        }
    }
    return texts;
}

TEST(TextTable, NumbersRunInTheOrderOfInsertion)
{
    TextTable table;
    EXPECT_EQ(add(table, L"b"), 0U);
    EXPECT_EQ(add(table, L"a"), 1U);
    EXPECT_EQ(add(table, L""), 2U);
    EXPECT_EQ(table.size(), 3U);
    EXPECT_EQ(table.text(0), L"b");
    EXPECT_EQ(table.text(1), L"a");
    EXPECT_EQ(table.text(2), L"");
}

TEST(TextTable, KnownTextKeepsItsNumberAndItsPlace)
{
    const std::wstring first = L"name";
    const std::wstring second = L"name";
    TextTable table;
    add(table, L"other");
    EXPECT_EQ(add(table, first), 1U);
    EXPECT_EQ(add(table, second), 1U);
    EXPECT_EQ(table.size(), 2U);
    EXPECT_EQ(table.text(1).data(), first.data());
}

TEST(TextTable, EmptyTableFindsNothing)
{
    TextTable table;
    EXPECT_EQ(table.find(L""), absent);
    EXPECT_EQ(table.find(L"a"), absent);
    table.reserve(100);
    EXPECT_EQ(table.find(L""), absent);
    EXPECT_EQ(table.find(L"a"), absent);
    EXPECT_EQ(table.size(), 0U);
}

TEST(TextTable, TextsAreComparedWhole)
{
    const std::vector<std::wstring> texts = {L"name",   L"nam",
                                             L"namee",  L"Name",
                                             L"name ",  std::wstring(L"name\0", 5),
                                             L"",       L"eman",
                                             L"\uFFFD", std::wstring(1, L'\0')};
    TextTable table;
    for (std::size_t number = 0; number < texts.size(); ++number)
    {
        EXPECT_EQ(table.find(texts[number]), absent) << toolbox::toUtf8(texts[number]);
        EXPECT_EQ(add(table, texts[number]), number) << toolbox::toUtf8(texts[number]);
    }
    for (std::size_t number = 0; number < texts.size(); ++number)
    {
        EXPECT_EQ(table.find(texts[number]), number) << toolbox::toUtf8(texts[number]);
    }
}

TEST(TextTable, TerminatedTextHasTheHashOfItsCharacters)
{
    const std::wstring text = L"abcdefghi";
    for (std::size_t length = 0; length <= text.size(); ++length)
    {
        const std::wstring part = text.substr(0, length);
        const HashedText walked = HashedText::ofTerminated(part.c_str());
        EXPECT_EQ(std::wstring(walked), part);
        EXPECT_EQ(walked.hash(), HashedText(part).hash()) << length;
    }
}

TEST(TextTable, EveryCharacterIsCompared)
{
    const std::wstring text = L"abcdefghi";
    for (std::size_t length = 0; length <= text.size(); ++length)
    {
        EXPECT_TRUE(equalCharacters(text.data(), std::wstring(text).data(), length)) << length;
        for (std::size_t place = 0; place < text.size(); ++place)
        {
            std::wstring other = text;
            other[place] = static_cast<wchar_t>(other[place] | 0x8000);
            EXPECT_EQ(equalCharacters(text.data(), other.data(), length), place >= length)
                << length << ' ' << place;
        }
    }
}

TEST(TextTable, HashDependsOnTheTextOnly)
{
    const std::wstring text = L"no-verbose";
    const std::wstring shifted = L"xx" + text + L"yy";
    EXPECT_EQ(hashOf(text), hashOf(std::wstring_view(shifted).substr(2, text.size())));
    EXPECT_NE(hashOf(text), hashOf(std::wstring_view(text).substr(0, text.size() - 1)));
}

TEST(TextTable, TextMadeFromNothingIsTheEmptyOne)
{
    EXPECT_EQ(HashedText(), HashedText(L""));
    EXPECT_EQ(HashedText().hash(), hashOf(L""));
}

// Names that differ in few characters, at different places, share out the slots of a table as
// texts without any order would: a search passes less than one text that is not looked for.
TEST(TextTable, HashesOfSimilarTextsShareOutTheSlots)
{
    constexpr std::uint64_t slots = 32768;
    constexpr unsigned count = 10000;
    for (const std::size_t gap : {0U, 1U, 2U, 3U, 4U, 5U, 7U, 8U, 11U})
    {
        std::vector<unsigned> used(slots);
        unsigned passed = 0;
        for (unsigned number = 0; number < count; ++number)
        {
            std::wstring text = L"option-";
            for (unsigned rest = number + count; rest != 0; rest /= 10)
            {
                text += static_cast<wchar_t>(L'0' + rest % 10);
                text.append(gap, L'_');
            }
            passed += used[hashOf(text) % slots]++;
        }
        EXPECT_LT(passed, count / 4) << gap; // 0.15 for each is what chance gives
    }
}

// The first slot and the last one, behind which a search goes on at the beginning.
TEST(TextTable, TextsMeetingInOneSlotAreAllFound)
{
    constexpr std::uint64_t slots = 1024;
    for (const std::uint64_t slot : {std::uint64_t{0}, slots - 1})
    {
        std::vector<std::wstring> texts = textsMeetingAt(slot, slots, 41);
        const std::wstring never = texts.back();
        texts.pop_back();
        TextTable table;
        for (std::size_t number = 0; number < texts.size(); ++number)
        {
            EXPECT_EQ(table.find(texts[number]), absent) << slot << ", " << number;
            EXPECT_EQ(add(table, texts[number]), number) << slot;
        }
        for (std::size_t number = 0; number < texts.size(); ++number)
        {
            EXPECT_EQ(table.find(texts[number]), number) << slot;
        }
        EXPECT_EQ(table.find(never), absent) << slot;
    }
}

TEST(TextTable, GrowingForgetsNothing)
{
    constexpr std::uint32_t count = 5000;
    std::vector<std::wstring> texts;
    for (std::uint32_t number = 0; number < count; ++number)
    {
        texts.push_back(std::to_wstring(number * 7919U));
    }
    TextTable table;
    for (std::uint32_t number = 0; number < count; ++number)
    {
        ASSERT_EQ(add(table, texts[number]), number);
        ASSERT_EQ(table.find(texts[number / 2]), number / 2) << "of " << number;
    }
    for (std::uint32_t number = 0; number < count; ++number)
    {
        ASSERT_EQ(table.find(texts[number]), number);
        ASSERT_EQ(table.text(number).data(), texts[number].data());
        ASSERT_EQ(table.find(texts[number] + L"x"), absent);
    }
}

TEST(TextTable, InsertingWhereRoomWasMadeTakesNoMemory)
{
    std::vector<std::wstring> texts;
    for (unsigned number = 0; number < 1000; ++number)
    {
        texts.push_back(L"a text too long to be kept inside of a string, " +
                        std::to_wstring(number));
    }
    TextTable table;
    add(table, L"earlier");
    table.reserve(texts.size());
    const std::size_t before = unit::allocationCount();
    for (const std::wstring& text : texts)
    {
        table.insert(text);
    }
    EXPECT_EQ(unit::allocationCount(), before);
    EXPECT_EQ(table.size(), texts.size() + 1);
    EXPECT_EQ(table.find(texts.back()), texts.size());
    EXPECT_EQ(table.find(L"earlier"), 0U);
}

} // namespace
