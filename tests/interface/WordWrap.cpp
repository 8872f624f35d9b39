// The layout of WordWrappedText: a lead, then text wrapped at an indentation.
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

#include "Host.h"

namespace
{

using namespace toolbox;
using kexa_3_3::WordWrappedText;

std::wstring wrap(const std::wstring& lead, const std::wstring& text, std::size_t indent,
                  std::size_t lineWidth)
{
    return WordWrappedText(lead.c_str(), text.c_str(), indent, lineWidth).getText();
}

struct Row
{
    const char* rule;
    std::wstring lead;
    std::wstring text;
    std::size_t indent;
    std::size_t lineWidth;
    std::wstring expected;
};

void expectRows(const std::vector<Row>& rows)
{
    for (const Row& row : rows)
    {
        EXPECT_EQ(wrap(row.lead, row.text, row.indent, row.lineWidth), row.expected) << row.rule;
    }
}

TEST(WordWrap, EmptyTextIsLaidOutAsEmptyText)
{
    EXPECT_EQ(wrap(L"lead", L"", 4, 20), L"");
    EXPECT_EQ(wrap(L"", L"", 4, 20), L"");
    EXPECT_EQ(wrap(L"a lead longer than the line", L"", 0, 5), L"");
    EXPECT_EQ(wrap(L"lead", L"", 4, 4), L"");
    EXPECT_EQ(wrap(L"lead", L"", 0, 0), L"");
}

TEST(WordWrap, NullCountsAsEmpty)
{
    EXPECT_STREQ(WordWrappedText(nullptr, L"word", 4, 20).getText(), L"    word\n");
    EXPECT_STREQ(WordWrappedText(L"lead", nullptr, 4, 20).getText(), L"");
    EXPECT_STREQ(WordWrappedText(nullptr, nullptr, 4, 20).getText(), L"");
}

TEST(WordWrap, TextThatEndsInABlankYieldsOneMoreLine)
{
    expectRows({{"one blank", L"", L"abc ", 4, 20, L"    abc \n"},
                {"one blank where the word fills the line", L"", L"abc ", 4, 8, L"    abc\n    \n"},
                {"one line feed", L"", L"abc\n", 4, 20, L"    abc\n    \n"},
                {"two line feeds", L"", L"abc\n\n", 4, 20, L"    abc\n    \n"},
                {"a line feed without an indent", L"", L"abc\n", 0, 20, L" abc\n \n"},
                {"only a blank", L"", L" ", 4, 20, L"    \n"},
                {"only blanks", L"", L"   ", 4, 20, L"    \n"},
                {"only a line feed behind a lead", L"ab", L"\n", 4, 20, L"ab  \n"}});
}

TEST(WordWrap, SeveralLineFeedsGiveNoEmptyLine)
{
    expectRows({{"two line feeds", L"", L"a\n\nb", 4, 20, L"    a\n    b\n"},
                {"five line feeds", L"", L"a\n\n\n\n\nb", 4, 20, L"    a\n    b\n"},
                {"line feeds and blanks", L"", L"a\n \n b", 4, 20, L"    a\n    b\n"},
                {"in front", L"", L"\n\na", 4, 20, L"    a\n"}});
}

TEST(WordWrap, LineFeedEndsALine)
{
    expectRows({{"between words", L"", L"one two\nthree", 2, 20, L"  one two\n  three\n"},
                {"behind a lead", L"-x", L"one\ntwo", 4, 20, L"-x  one\n    two\n"},
                {"exactly at the room", L"", L"abc\ndef", 2, 6, L"  abc\n  def\n"}});
}

TEST(WordWrap, BlanksAtLineStartsDisappear)
{
    expectRows({{"in front", L"", L"   a", 4, 20, L"    a\n"},
                {"at a break", L"", L"abc   def", 4, 8, L"    abc\n    def\n"},
                {"a tab stays", L"", L"\ta", 4, 20, L"    \ta\n"}});
}

TEST(WordWrap, ChunkThatEndsRightAfterABlankKeepsIt)
{
    expectRows({{"blank is the last that fits", L"", L"ab cd", 4, 8, L"    ab \n    cd\n"},
                {"two blanks, one fits", L"", L"ab  cd", 4, 8, L"    ab \n    cd\n"},
                {"blanks inside a line stay", L"", L"a  b", 4, 20, L"    a  b\n"}});
}

TEST(WordWrap, WordThatDoesNotFitGoesToTheNextLine)
{
    expectRows({{"inside the second word", L"", L"aa bbbb", 2, 8, L"  aa\n  bbbb\n"},
                {"right before the second word's end", L"", L"aa bbb c", 2, 8, L"  aa\n  bbb c\n"},
                {"next character is a blank", L"", L"aa bb cc", 2, 8, L"  aa bb\n  cc\n"},
                {"several", L"", L"one two three four", 0, 9, L" one two\n three\n four\n"}});
}

TEST(WordWrap, WordLongerThanTheRoomIsBrokenHard)
{
    expectRows({{"at width - 1", L"", L"abcdefgh", 2, 6, L"  abc\n  def\n  gh\n"},
                {"exactly filling", L"", L"abcdef", 2, 6, L"  abc\n  def\n"},
                {"one character a line", L"", L"abc", 2, 4, L"  a\n  b\n  c\n"},
                {"behind a shorter word", L"", L"a bcdefgh", 2, 6, L"  a\n  bcd\n  efg\n  h\n"},
                {"with a line feed further on", L"", L"abcdef\ng", 2, 6, L"  abc\n  def\n  g\n"}});
}

TEST(WordWrap, ShortLeadIsPaddedToTheIndent)
{
    expectRows(
        {{"shorter", L"-x", L"text", 6, 20, L"-x    text\n"},
         {"one shorter", L"-long", L"text", 6, 20, L"-long text\n"},
         {"continuation lines", L"-x", L"aaaa bbbb cccc", 6, 16, L"-x    aaaa bbbb\n      cccc\n"},
         {"empty", L"", L"text", 6, 20, L"      text\n"}});
}

TEST(WordWrap, LongLeadIsFollowedByOneBlankAndText)
{
    expectRows(
        {{"as long as the indent", L"-abcde", L"text", 6, 20, L"-abcde text\n"},
         {"longer", L"-abcdefgh", L"text more", 6, 20, L"-abcdefgh text more\n"},
         {"wrapped behind it", L"-abcdefgh", L"text more", 6, 15, L"-abcdefgh text\n      more\n"},
         {"without an indent", L"lead", L"text", 0, 20, L"lead text\n"}});
}

TEST(WordWrap, LeadThatLeavesNoRoomStandsAlone)
{
    expectRows(
        {{"width - 3 still leaves one character", L"abcdefg", L"xy", 2, 10, L"abcdefg x\n  y\n"},
         {"width - 2", L"abcdefgh", L"xy", 2, 10, L"abcdefgh\n  xy\n"},
         {"width - 1", L"abcdefghi", L"xy", 2, 10, L"abcdefghi\n  xy\n"},
         {"longer than the line", L"abcdefghijklmno", L"xy", 2, 10, L"abcdefghijklmno\n  xy\n"},
         {"blank text behind it", L"abcdefgh", L" ", 2, 10, L"abcdefgh\n"},
         {"without an indent", L"abcdefgh", L"xy", 0, 10, L"abcdefgh\n xy\n"}});
}

TEST(WordWrap, WithoutAnIndentEveryLineBeginsWithABlank)
{
    expectRows({{"one line", L"", L"text", 0, 20, L" text\n"},
                {"several", L"", L"aaaa bbbb", 0, 6, L" aaaa\n bbbb\n"},
                {"hard break", L"", L"abcdef", 0, 5, L" abc\n def\n"}});
}

TEST(WordWrap, LinesAreAtMostOneShorterThanTheWidth)
{
    const std::wstring text = L"The quick brown fox jumps over the lazy dog, again and again.";
    EXPECT_EQ(wrap(L"-animals", text, 12, 32), L"-animals    The quick brown fox\n"
                                               L"            jumps over the lazy\n"
                                               L"            dog, again and\n"
                                               L"            again.\n");
}

TEST(WordWrap, TextOutsideTheBasicPlaneIsNotBrokenInsideACharacter)
{
    const std::wstring face = L"\U0001F600";
    const bool pairs = face.size() == 2;
    // A line has room for three units: three faces of one unit, or one face of two.
    EXPECT_EQ(wrap(L"", face + face + face, 2, 6),
              pairs ? L"  " + face + L"\n  " + face + L"\n  " + face + L"\n"
                    : L"  " + face + face + face + L"\n");
    EXPECT_EQ(wrap(L"\u2014", face + L" " + face, 2, 40), L"\u2014 " + face + L" " + face + L"\n");
}

TEST(WordWrap, NoRoomForACharacterIsOutOfRange)
{
    const struct
    {
        const wchar_t* lead;
        const wchar_t* text;
        std::size_t indent;
        std::size_t lineWidth;
    } rows[] = {
        {L"", L"a", 4, 5}, // no room after the indentation
        {L"", L"a", 4, 4},
        {L"", L"a", 4, 3},
        {L"", L"a", 4, 0},
        {L"", L"a", 0, 2}, // one column, for the leading blank
        {L"", L"a", 0, 1},
        {L"", L"a", 0, 0},
        {L"lead", L"a", 0, 2},
        {L"lead", L"a", 4, 5},
        {L"", L" a", 4, 5},
        {L"", L"\na", 0, 2},
        {L"", L"a", static_cast<std::size_t>(-1), 80},
    };
    for (const auto& row : rows)
    {
        EXPECT_THROW(WordWrappedText(row.lead, row.text, row.indent, row.lineWidth),
                     std::out_of_range)
            << toUtf8(row.text) << ", " << row.indent << ", " << row.lineWidth;
    }
}

TEST(WordWrap, VeryWideLineIsNotWrapped)
{
    const std::wstring text(5000, L'x');
    EXPECT_EQ(wrap(L"", text, 1, static_cast<std::size_t>(-1)), L" " + text + L"\n");
}

TEST(WordWrap, ObjectIsOneTextWithoutVirtualOperations)
{
    EXPECT_FALSE(std::is_polymorphic_v<WordWrappedText>);
    EXPECT_EQ(sizeof(WordWrappedText), sizeof(std::wstring));
}

TEST(WordWrap, CopiesAreIndependent)
{
    WordWrappedText first(L"", L"first", 2, 20);
    const WordWrappedText copy(first);
    const WordWrappedText second(L"", L"second", 2, 20);
    first = second;
    EXPECT_STREQ(first.getText(), L"  second\n");
    EXPECT_STREQ(copy.getText(), L"  first\n");
    EXPECT_NE(first.getText(), second.getText());
}

} // namespace
