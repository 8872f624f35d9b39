// The slots of numbered texts, and the hashes by which they are found.
#include "support/TextSlots.h"

#include <array>
#include <memory_resource>
#include <string>
#include <vector>

#include "support/Arena.h"
#include "support/InlineBlock.h"

#include "AllocationCount.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::Arena;
using kexa_3_3::equalCharacters;
using kexa_3_3::HashedText;
using kexa_3_3::hashOf;
using kexa_3_3::InlineBlock;
using kexa_3_3::TextSlots;

constexpr std::uint32_t absent = TextSlots::absent;

// Texts that are numbered in the order of their coming, as users of slots number theirs.
class NumberedTexts
{
    [[nodiscard]] auto textOf() const
    {
        return [this](std::uint32_t number)
        {
            return m_texts[number];
        };
    }

public:
    void reserve(std::size_t count)
    {
        m_texts.reserve(m_texts.size() + count);
        m_slots.reserve(m_texts.size() + count);
    }

    [[nodiscard]] std::uint32_t find(std::wstring_view text) const
    {
        return m_slots.numberAt(m_slots.slotOf(HashedText(text), textOf()));
    }

    // Needs room. Answers the number of the text.
    std::uint32_t insert(std::wstring_view text)
    {
        const HashedText hashed(text);
        const std::size_t slot = m_slots.slotOf(hashed, textOf());
        if (m_slots.isFree(slot))
        {
            m_slots.put(slot, static_cast<std::uint32_t>(m_texts.size()), hashed);
            m_texts.push_back(hashed);
        }
        return m_slots.numberAt(slot);
    }
    std::uint32_t add(std::wstring_view text)
    {
        m_slots.reserve(m_texts.size() + 1);
        return insert(text);
    }

    [[nodiscard]] std::size_t size() const { return m_texts.size(); }
    [[nodiscard]] std::wstring_view text(std::size_t number) const { return m_texts[number]; }

private:
    std::vector<HashedText> m_texts;
    InlineBlock<TextSlots::bytesFor(2)> m_firstSlots;
    Arena m_memory{64}; // whose blocks are counted
    TextSlots m_slots{m_memory, m_firstSlots.bytes()};
};

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

TEST(TextSlots, NumbersRunInTheOrderOfInsertion)
{
    NumberedTexts table;
    EXPECT_EQ(table.add(L"b"), 0U);
    EXPECT_EQ(table.add(L"a"), 1U);
    EXPECT_EQ(table.add(L""), 2U);
    EXPECT_EQ(table.size(), 3U);
    EXPECT_EQ(table.text(0), L"b");
    EXPECT_EQ(table.text(1), L"a");
    EXPECT_EQ(table.text(2), L"");
}

TEST(TextSlots, KnownTextKeepsItsNumber)
{
    const std::wstring first = L"name";
    const std::wstring second = L"name";
    NumberedTexts table;
    table.add(L"other");
    EXPECT_EQ(table.add(first), 1U);
    EXPECT_EQ(table.add(second), 1U);
    EXPECT_EQ(table.size(), 2U);
    EXPECT_EQ(table.text(1).data(), first.data());
}

TEST(TextSlots, NothingIsFoundInTheFirstSlots)
{
    // Zeros, which would be the number of a text.
    alignas(std::uint32_t) std::array<std::byte, TextSlots::bytesFor(4)> first = {};
    const TextSlots slots(*std::pmr::new_delete_resource(), first);
    const auto textOf = [](std::uint32_t)
    {
        return HashedText();
    };
    for (const wchar_t* const text : {L"", L"a", L"name"})
    {
        const std::size_t slot = slots.slotOf(HashedText(std::wstring_view(text)), textOf);
        EXPECT_TRUE(slots.isFree(slot));
        EXPECT_EQ(slots.numberAt(slot), absent);
    }
}

TEST(TextSlots, EmptySlotsHoldNothing)
{
    NumberedTexts table;
    EXPECT_EQ(table.find(L""), absent);
    EXPECT_EQ(table.find(L"a"), absent);
    table.reserve(100);
    EXPECT_EQ(table.find(L""), absent);
    EXPECT_EQ(table.find(L"a"), absent);
    EXPECT_EQ(table.size(), 0U);
}

TEST(TextSlots, TextsAreComparedWhole)
{
    const std::vector<std::wstring> texts = {L"name",   L"nam",
                                             L"namee",  L"Name",
                                             L"name ",  std::wstring(L"name\0", 5),
                                             L"",       L"eman",
                                             L"\uFFFD", std::wstring(1, L'\0')};
    NumberedTexts table;
    for (std::size_t number = 0; number < texts.size(); ++number)
    {
        EXPECT_EQ(table.find(texts[number]), absent) << toolbox::toUtf8(texts[number]);
        EXPECT_EQ(table.add(texts[number]), number) << toolbox::toUtf8(texts[number]);
    }
    for (std::size_t number = 0; number < texts.size(); ++number)
    {
        EXPECT_EQ(table.find(texts[number]), number) << toolbox::toUtf8(texts[number]);
    }
}

TEST(HashedText, TerminatedTextHasTheHashOfItsCharacters)
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

TEST(HashedText, EveryCharacterIsCompared)
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

TEST(HashedText, HashDependsOnTheTextOnly)
{
    const std::wstring text = L"no-verbose";
    const std::wstring shifted = L"xx" + text + L"yy";
    EXPECT_EQ(hashOf(text), hashOf(std::wstring_view(shifted).substr(2, text.size())));
    EXPECT_NE(hashOf(text), hashOf(std::wstring_view(text).substr(0, text.size() - 1)));
}

TEST(HashedText, TextMadeFromNothingIsTheEmptyOne)
{
    EXPECT_EQ(HashedText(), HashedText(L""));
    EXPECT_EQ(HashedText().hash(), hashOf(L""));
}

// Names that differ in few characters, at different places, share out the slots of a table as
// texts without any order would: a search passes less than one text that is not looked for.
TEST(HashedText, HashesOfSimilarTextsShareOutTheSlots)
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
TEST(TextSlots, TextsMeetingInOneSlotAreAllFound)
{
    constexpr std::uint64_t slots = 1024;
    for (const std::uint64_t slot : {std::uint64_t{0}, slots - 1})
    {
        std::vector<std::wstring> texts = textsMeetingAt(slot, slots, 41);
        const std::wstring never = texts.back();
        texts.pop_back();
        NumberedTexts table;
        for (std::size_t number = 0; number < texts.size(); ++number)
        {
            EXPECT_EQ(table.find(texts[number]), absent) << slot << ", " << number;
            EXPECT_EQ(table.add(texts[number]), number) << slot;
        }
        for (std::size_t number = 0; number < texts.size(); ++number)
        {
            EXPECT_EQ(table.find(texts[number]), number) << slot;
        }
        EXPECT_EQ(table.find(never), absent) << slot;
    }
}

TEST(TextSlots, GrowingForgetsNothing)
{
    constexpr std::uint32_t count = 5000;
    std::vector<std::wstring> texts;
    for (std::uint32_t number = 0; number < count; ++number)
    {
        texts.push_back(std::to_wstring(number * 7919U));
    }
    NumberedTexts table;
    for (std::uint32_t number = 0; number < count; ++number)
    {
        ASSERT_EQ(table.add(texts[number]), number);
        ASSERT_EQ(table.find(texts[number / 2]), number / 2) << "of " << number;
    }
    for (std::uint32_t number = 0; number < count; ++number)
    {
        ASSERT_EQ(table.find(texts[number]), number);
        ASSERT_EQ(table.text(number).data(), texts[number].data());
        ASSERT_EQ(table.find(texts[number] + L"x"), absent);
    }
}

TEST(TextSlots, InsertingWhereRoomWasMadeTakesNoMemory)
{
    std::vector<std::wstring> texts;
    for (unsigned number = 0; number < 1000; ++number)
    {
        texts.push_back(L"a text too long to be kept inside of a string, " +
                        std::to_wstring(number));
    }
    NumberedTexts table;
    table.add(L"earlier");
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
