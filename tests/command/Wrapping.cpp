// Breaking texts into lines of a width in cells.
#include "text/Wrapping.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "text/DisplayWidth.h"

using namespace kexa::detail;

namespace
{

using Lines = std::vector<std::string>;

template <std::size_t size>
std::string bytes(const char8_t (&text)[size])
{
    return std::string(text, text + size - 1);
}

struct WrappingRow
{
    std::string text;
    std::size_t width;
    Lines lines;
};

void expectLines(const std::vector<WrappingRow>& rows)
{
    for (const WrappingRow& row : rows)
    {
        EXPECT_EQ(wrapText(row.text, row.width), row.lines) << row.text << " to " << row.width;
    }
}

struct HangingRow
{
    std::string lead;
    std::string text;
    std::string expected;
};

void expectHanging(const std::vector<HangingRow>& rows, std::size_t indent, std::size_t width)
{
    for (const HangingRow& row : rows)
    {
        std::string text = "before\n";
        appendHanging(text, row.lead, row.text, indent, width);
        EXPECT_EQ(text, "before\n" + row.expected) << row.lead;
    }
}

} // namespace

TEST(Wrapping, BreaksAtBlanks)
{
    expectLines({
        {"a bb ccc", 8, {"a bb ccc"}},
        {"a bb ccc", 7, {"a bb", "ccc"}},
        {"a bb ccc", 4, {"a bb", "ccc"}},
        {"a bb ccc", 3, {"a", "bb", "ccc"}},
        {"aaa bbb", 3, {"aaa", "bbb"}},
        {"a  b   c", 8, {"a  b   c"}}, // blanks within a line stay
        {"aaa    bbb", 4, {"aaa", "bbb"}},
        {"a\tb", 9, {"a b"}},
        {"one. Two", 4, {"one.", "Two"}},
        {"a b ", 3, {"a b"}},
    });
}

TEST(Wrapping, KeepsTheLineEndsOfTheText)
{
    expectLines({
        {"", 5, {}},
        {"a\nb", 5, {"a", "b"}},
        {"a\r\nb\r\n", 5, {"a", "b"}},
        {"a\n\nb", 5, {"a", "", "b"}},
        {"\n", 5, {""}},
        {"\na", 5, {"", "a"}},
        {"a\n\n", 5, {"a", ""}},
        {"aa bb\ncc", 5, {"aa bb", "cc"}}, // no empty line where a full one ends
        {"a \t\n \nb", 5, {"a", "", "b"}},
    });
}

TEST(Wrapping, KeepsTheIndentationOfTheTextsLines)
{
    expectLines({
        {"x\n  aa bb cc", 7, {"x", "  aa bb", "cc"}},
        {"\taa", 5, {" aa"}},
        {"    aaa", 5, {"aaa"}}, // unless the word finds no room behind it
    });
}

TEST(Wrapping, BreaksAWordThatIsWiderThanALine)
{
    expectLines({
        {"abcdefgh", 3, {"abc", "def", "gh"}},
        {"a bcdefg", 4, {"a bc", "defg"}},
        {"abc defgh", 4, {"abc", "defg", "h"}},
        {"abcdef g", 4, {"abcd", "ef g"}},
        {"abcd", 1, {"a", "b", "c", "d"}},
    });
}

TEST(Wrapping, CountsCells)
{
    expectLines({
        {bytes(u8"日本 語"), 7, {bytes(u8"日本 語")}},
        {bytes(u8"日本 語"), 6, {bytes(u8"日本"), bytes(u8"語")}},
        {bytes(u8"日本語"), 5, {bytes(u8"日本"), bytes(u8"語")}},
        {bytes(u8"日本"), 1, {bytes(u8"日"), bytes(u8"本")}}, // one is wider than the line
        {bytes(u8"größe größe"), 11, {bytes(u8"größe größe")}},
        {bytes(u8"e\u0301e\u0301 e\u0301"), 4, {bytes(u8"e\u0301e\u0301 e\u0301")}},
    });
}

TEST(Wrapping, NeverBreaksAGrapheme)
{
    expectLines({
        {bytes(u8"ae\u0301\u0323b"), 2, {bytes(u8"ae\u0301\u0323"), "b"}},
        {bytes(u8"\U0001F469\u200D\U0001F4BB\U0001F469"),
         2,
         {bytes(u8"\U0001F469\u200D\U0001F4BB"), bytes(u8"\U0001F469")}},
        {bytes(u8"\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7"),
         3,
         {bytes(u8"\U0001F1E9\U0001F1EA"), bytes(u8"\U0001F1EB\U0001F1F7")}},
        {bytes(u8"\U0001F44D\U0001F3FD"), 1, {bytes(u8"\U0001F44D\U0001F3FD")}},
    });
}

TEST(Wrapping, NoLineIsWiderThanAskedAndNothingButBlanksIsLost)
{
    const std::string text =
        bytes(u8"Reads größere 日本語の files, e\u0301 \U0001F469\u200D\U0001F4BB included;\n"
              u8"  - one\n  - averyveryverylongword and others\n");
    const auto letters = [](const std::string& line)
    {
        std::string found;
        for (const char character : line)
        {
            found += character == ' ' || character == '\n' ? "" : std::string(1, character);
        }
        return found;
    };
    for (std::size_t width = 2; width < 80; ++width)
    {
        std::string found;
        for (const std::string& line : wrapText(text, width))
        {
            EXPECT_LE(displayWidth(line), width) << line;
            found += letters(line);
        }
        EXPECT_EQ(found, letters(text)) << width;
    }
}

TEST(Wrapping, HangingTextStandsBesideItsLead)
{
    expectHanging(
        {
            {"  -l, --list", "Print sizes", "  -l, --list    Print sizes\n"},
            {"  -l, --list", "Print all sizes of files",
             "  -l, --list    Print all sizes\n"
             "                of files\n"},
            {"  -l, --list", "Print\n\nsizes",
             "  -l, --list    Print\n"
             "\n"
             "                sizes\n"},
            {bytes(u8"  --größe 日本"), "Print", bytes(u8"  --größe 日本  Print\n")},
            {"", "Print", "                Print\n"},
        },
        16, 32);
}

TEST(Wrapping, HangingTextStandsUnderALeadThatLeavesNoDistance)
{
    expectHanging(
        {
            {"  -v, --verb", "Talk", "  -v, --verb  Talk\n"},
            {"  -v, --verbo", "Talk",
             "  -v, --verbo\n"
             "              Talk\n"},
            {"  --a-name-that-is-wider-than-the-line", "Talk",
             "  --a-name-that-is-wider-than-the-line\n"
             "              Talk\n"},
        },
        14, 24);
}

TEST(Wrapping, ALeadWithoutTextStandsAlone)
{
    expectHanging({{"  --list", "", "  --list\n"},
                   {"  --list  ", "", "  --list\n"},
                   {"  --list-all-the-files", "", "  --list-all-the-files\n"},
                   {"", "", ""}},
                  14, 24);
}
