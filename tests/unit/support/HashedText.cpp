// Texts that carry their hash.
#include "support/text/HashedText.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "EqualHashes.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::HashedText;
using kexa_3_3::TextHash;

std::uint32_t hashOf(std::wstring_view text)
{
    return HashedText(text).hash();
}

TEST(HashedText, TerminatedTextEndsBeforeItsZero)
{
    const std::wstring text = L"abcdefghi";
    for (std::size_t length = 0; length <= text.size(); ++length)
    {
        const std::wstring part = text.substr(0, length);
        const HashedText walked = HashedText::ofTerminated(part.c_str());
        EXPECT_EQ(walked.text(), part);
        EXPECT_EQ(walked.hash(), hashOf(part)) << length;
    }
}

TEST(HashedText, HashTakenByCharactersIsThatOfTheText)
{
    TextHash hash;
    for (const wchar_t character : std::wstring(L"no-verbose"))
    {
        hash.add(character);
    }
    EXPECT_EQ(HashedText(L"no-verbose", hash), HashedText(L"no-verbose"));
    EXPECT_EQ(hash.value(), hashOf(L"no-verbose"));
}

TEST(HashedText, HashDependsOnTheTextOnly)
{
    const std::wstring text = L"no-verbose";
    const std::wstring shifted = L"xx" + text + L"yy";
    EXPECT_EQ(hashOf(text), hashOf(std::wstring_view(shifted).substr(2, text.size())));
    EXPECT_NE(hashOf(text), hashOf(std::wstring_view(text).substr(0, text.size() - 1)));
}

TEST(HashedText, EveryCharacterIsCompared)
{
    const std::wstring text = L"abcdefghi";
    for (std::size_t place = 0; place < text.size(); ++place)
    {
        std::wstring other = text;
        EXPECT_EQ(HashedText(text), HashedText(other));
        other[place] = static_cast<wchar_t>(other[place] | 0x8000);
        EXPECT_FALSE(HashedText(text) == HashedText(other)) << place;
    }
}

TEST(HashedText, TextsWithOneHashDiffer)
{
    const auto [first, second] = unit::textsWithOneHash();
    ASSERT_EQ(hashOf(first), hashOf(second));
    ASSERT_NE(first, second);
    EXPECT_FALSE(HashedText(first) == HashedText(second));
}

TEST(HashedText, DefaultConstructedOneIsTheEmptyText)
{
    EXPECT_EQ(HashedText(), HashedText(L""));
    EXPECT_EQ(HashedText().hash(), hashOf(L""));
}

TEST(HashedText, MovedTextLiesAtItsNewPlace)
{
    const std::wstring text = L"name";
    const std::wstring copy = text;
    const HashedText moved = HashedText(text).movedTo(copy);
    EXPECT_EQ(moved.text().data(), copy.data());
    EXPECT_EQ(moved, HashedText(text));
}

// Names that differ in few characters, at different places, spread over the slots of a table as
// random numbers would: a search passes less than one other text on average.
TEST(HashedText, HighestBitsOfSimilarTextsSpreadOverTheSlots)
{
    constexpr unsigned bits = 15;
    constexpr unsigned count = 10000;
    for (const std::size_t gap : {0U, 1U, 2U, 3U, 4U, 5U, 7U, 8U, 11U})
    {
        std::vector<unsigned> used(std::size_t{1} << bits);
        unsigned passed = 0;
        for (unsigned number = 0; number < count; ++number)
        {
            std::wstring text = L"option-";
            for (unsigned rest = number + count; rest != 0; rest /= 10)
            {
                text += static_cast<wchar_t>(L'0' + rest % 10);
                text.append(gap, L'_');
            }
            passed += used[hashOf(text) >> (32 - bits)]++;
        }
        EXPECT_LT(passed, count / 4) << gap; // random numbers give 0.15 for each
    }
}

} // namespace
