// How many cells a text takes, and where one grapheme ends.
#include "text/DisplayWidth.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

using namespace kexa::detail;

namespace
{

// The bytes of a text that the compiler encodes.
template <std::size_t size>
std::string bytes(const char8_t (&text)[size])
{
    return std::string(text, text + size - 1);
}

struct WidthRow
{
    std::string text;
    std::size_t cells;
};

void expectCells(const std::vector<WidthRow>& rows)
{
    for (const WidthRow& row : rows)
    {
        EXPECT_EQ(displayWidth(row.text), row.cells) << row.text;
        EXPECT_EQ(displayWidth("a" + row.text + "b"), row.cells + 2) << row.text;
    }
}

void expectOneGrapheme(const std::vector<WidthRow>& rows)
{
    for (const WidthRow& row : rows)
    {
        const Grapheme grapheme = firstGrapheme(row.text + "b");
        EXPECT_EQ(grapheme.length, row.text.size()) << row.text;
        EXPECT_EQ(grapheme.cells, row.cells) << row.text;
    }
}

} // namespace

TEST(DisplayWidth, OfOrdinaryLettersIsTheirNumber)
{
    expectCells({
        {"", 0},
        {"--output=FILE ", 14},
        {bytes(u8"größe"), 5},
        {bytes(u8"Ελληνικά"), 8},
        {bytes(u8"\u2013\u2026\u00A0"), 3},
        {bytes(u8"\u00AD"), 1},       // terminals show a soft hyphen
        {bytes(u8"\uFF76\uFF9E"), 2}, // halfwidth kana
        {bytes(u8"\U0010FFFF\uE000"), 2},
    });
}

TEST(DisplayWidth, OfEastAsianWideCharactersIsTwoEach)
{
    expectCells({
        {bytes(u8"日本語"), 6},
        {bytes(u8"한국"), 4},
        {bytes(u8"\uFF21\uFF5E\u3000"), 6}, // fullwidth forms
        {bytes(u8"\u3042\u30A2\u3001"), 6},
        {bytes(u8"\U00020000\U0003FFFD\U0002A6E0"), 6}, // unassigned ones in planes of ideographs
    });
}

TEST(DisplayWidth, OfWhatIsNotSeenIsNothing)
{
    using namespace std::string_literals;
    expectCells({
        {"\0\t\n\r\x1B\x7F"s, 0},
        {bytes(u8"\u0080\u009F"), 0},
        {bytes(u8"\u200B\u200E\u2060\uFEFF"), 0},
        {bytes(u8"\u2028\u2029"), 0},
        {bytes(u8"\u0301"), 0},
        {bytes(u8"\uFE0F\u200D"), 0},
        {bytes(u8"\u1160\u11FF"), 0},
        {bytes(u8"\U000E0061\U000E0100"), 0},
    });
}

TEST(DisplayWidth, OfIllFormedBytesIsOneForEachReplacement)
{
    expectCells({
        {"\xFF", 1},
        {"\xE4\xB8", 1},
        {"\xE4\xE4", 2},
        {"\xED\xA0\x80", 3},
        {"\xFF" + bytes(u8"\u0301"), 1},
    });
}

TEST(DisplayWidth, CombiningCharactersBelongToTheirBase)
{
    expectOneGrapheme({
        {"a", 1},
        {bytes(u8"e\u0301"), 1},
        {bytes(u8"e\u0301\u0323\u20DD"), 1},
        {bytes(u8"か\u3099"), 2},
        {bytes(u8"\u1112\u1161\u11AB"), 2}, // Hangul of three letters
        {bytes(u8"\u0BA8\u0BC0"), 1},       // a mark above
        {bytes(u8"\u0BA8\u0BC6"), 2},       // a mark beside its letter takes a cell
        {bytes(u8"\u0301\u0302"), 0},
    });
}

TEST(DisplayWidth, EmojiTakeTwoCellsHoweverManyCodePointsTheyHave)
{
    expectOneGrapheme({
        {bytes(u8"\U0001F600"), 2},
        {bytes(u8"\u231A"), 2},
        {bytes(u8"\u2764"), 1},       // a heart as text
        {bytes(u8"\u2764\uFE0F"), 2}, // as emoji
        {bytes(u8"\u2764\uFE0E"), 1},
        {bytes(u8"1\uFE0F\u20E3"), 2},                        // a keycap
        {bytes(u8"\U0001F44D\U0001F3FD"), 2},                 // a skin tone
        {bytes(u8"\u261D\U0001F3FD"), 2},                     // makes text an emoji
        {bytes(u8"\U0001F469\u200D\U0001F4BB"), 2},           // joined
        {bytes(u8"\U0001F469\U0001F3FD\u200D\U0001F4BB"), 2}, //
        {bytes(u8"\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466"), 2},
        {bytes(u8"\U0001F3F3\uFE0F\u200D\U0001F308"), 2},         //
        {bytes(u8"\U0001F1E9\U0001F1EA"), 2},                     // a flag
        {bytes(u8"\U0001F3F4\U000E0067\U000E0062\U000E007F"), 2}, // of tags
    });
}

TEST(DisplayWidth, WhatDoesNotJoinIsCountedByItself)
{
    expectCells({
        {bytes(u8"\U0001F600\U0001F600"), 4},
        {bytes(u8"\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7"), 4}, // two flags
        {bytes(u8"\U0001F1E9\U0001F1EA\U0001F1EB"), 4},           // a flag and half of one
        {bytes(u8"a\u200Db"), 2},
        {bytes(u8"a\u200D\U0001F600"), 3},
        {bytes(u8"a\uFE0F"), 1},     // no emoji
        {bytes(u8"a\U0001F3FD"), 3}, // a skin tone by itself
        {bytes(u8"\U0001F3FD"), 2},
        {bytes(u8"\n\u0301"), 0},
    });
}

TEST(DisplayWidth, AControlCharacterIsAGraphemeByItself)
{
    const Grapheme grapheme = firstGrapheme(bytes(u8"\n\u0301"));
    EXPECT_EQ(grapheme.length, 1U);
    EXPECT_EQ(grapheme.cells, 0U);
}
