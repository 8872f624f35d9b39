// A program with a narrow main gets every character of its command line, and opens the files that
// it names.
#include <gtest/gtest.h>

#include <string>

#include "../ChildProgram_windows.h"
#include "TemporaryFolder.h"

namespace
{

class TextsOfNarrowMain : public testing::Test
{
protected:
    TextsOfNarrowMain() : m_current(m_folder.path())
    {
        m_folder.write(L"gr\u00F6\u00DFe", "umlaut");
        m_folder.write(L"\u65E5\u672C", "kanji");
        m_folder.write(L"\U0001F600", "emoji");
    }

    static std::string outputOf(const std::wstring& arguments)
    {
        return outputOfProgram(L"path_reader.exe", arguments, 0);
    }

    toolbox::TemporaryFolder m_folder;
    toolbox::CurrentFolder m_current;
};

TEST_F(TextsOfNarrowMain, AreNamesAndValuesOfOptions)
{
    EXPECT_EQ(outputOf(L"--gr\u00F6\u00DFe=\u00DF"), "'\u00DF'\n");
    EXPECT_EQ(outputOf(L"--gr\u00F6 \u65E5\u672C"), "'\u65E5\u672C'\n");
    EXPECT_EQ(outputOf(L"--\u65E5=\U0001F600"), "'\U0001F600'\n");
    EXPECT_EQ(outputOf(L"-\U0001F600 \"a \u00E9\""), "'a \u00E9'\n");
}

TEST_F(TextsOfNarrowMain, AreNamesOfFiles)
{
    EXPECT_EQ(outputOf(L"gr\u00F6\u00DFe \u65E5\u672C \U0001F600"), "'' umlaut kanji emoji\n");
    EXPECT_EQ(outputOf(L"--output=\u65E5\u672C -- gr\u00F6\u00DFe"), "'' to kanji umlaut\n");
}

TEST_F(TextsOfNarrowMain, MayStandInAnOptionFile)
{
    m_folder.write(L"\u65E5.txt", "--output=\xF0\x9F\x98\x80\n--\xE6\x97\xA5=\xC3\x9F\n"
                                  "gr\xC3\xB6\xC3\x9F"
                                  "e\n");
    EXPECT_EQ(outputOf(L"--option-file=\u65E5.txt"), "'\u00DF' to emoji umlaut\n");
}

TEST_F(TextsOfNarrowMain, AreQuotedInMessages)
{
    EXPECT_EQ(outputOfProgram(L"path_reader.exe", L"--\u65E5\u6728=1", 2),
              "path_reader: Unknown option: --\u65E5\u6728=1\n"
              "  did you mean '--\u65E5\u672C'?\n"
              "Try 'path_reader --help'.\n");
}

} // namespace
