// Arguments from option files, with the file and the line of what is wrong in them.
#include <gtest/gtest.h>

#include <string>

#include "Outcomes.h"
#include "TemporaryFolder.h"

namespace
{

struct Settings
{
    int number = 0;
    std::vector<std::string> texts;
    std::vector<std::string> words;
};

class OptionFileOfALine : public testing::Test
{
protected:
    OptionFileOfALine() : m_current(m_folder.path()), m_command("reader")
    {
        m_command.option(&Settings::number, "number", "");
        m_command.option(&Settings::texts, "text,t", "");
        m_command.positional(&Settings::words, "word", "");
        m_command.optionFiles();
    }

    std::string outcomeOf(const std::string& line)
    {
        return toolbox::outcomeOf(m_command, line,
                                  [](const Settings& settings)
                                  {
                                      std::string text = std::to_string(settings.number);
                                      for (const std::string& each : settings.texts)
                                      {
                                          text += "[" + each + "]";
                                      }
                                      for (const std::string& word : settings.words)
                                      {
                                          text += "<" + word + ">";
                                      }
                                      return text;
                                  });
    }

    toolbox::TemporaryFolder m_folder;
    toolbox::CurrentFolder m_current;
    kexa::Command<Settings> m_command;
};

TEST_F(OptionFileOfALine, GivesItsArgumentsBehindThoseOfTheLine)
{
    m_folder.write(L"a.txt", "# comment\r\n\r\n--text=from file\r\n  word of file  \r\n--number=7");
    EXPECT_EQ(outcomeOf("--option-file=a.txt --text=x first"),
              "7[x][from file]<first><word of file  >");
}

TEST_F(OptionFileOfALine, MayNameFurtherFiles)
{
    m_folder.write(L"a.txt", "--option-file=b.txt\n--text=a\n");
    m_folder.write(L"b.txt", "--text=b\n--option-file=a.txt\n");
    EXPECT_EQ(outcomeOf("--option-f a.txt --text=x"), "0[x][a][b]");
}

TEST_F(OptionFileOfALine, IsNamedWithTheLineOfAMistake)
{
    m_folder.write(L"a.txt", "\n--text=a\n--option-file=b.txt\n");
    m_folder.write(L"b.txt", "; comment\n--number=x\n");
    m_folder.write(L"c.txt", "word\n\n--txet=1\n");
    EXPECT_EQ(outcomeOf("w --option-file=a.txt"),
              "2 Value validation problem in argument '--number=x': Option 'number' can not parse "
              "'x' value, requires a type 'integer' here. | number #2 b.txt:2");
    EXPECT_EQ(outcomeOf("--option-file=c.txt"),
              "2 Unknown option: --txet=1 | did you mean '--text'? | #1 c.txt:3");
}

TEST_F(OptionFileOfALine, ThatIsNotThereIsToldAsTheLibraryDoes)
{
    m_folder.write(L"a.txt", "--option-file=none.txt\n");
    EXPECT_EQ(outcomeOf("w --option-file=none.txt"), "6 Error reading option file 'none.txt': no "
                                                     "such file | option-file #2");
    EXPECT_EQ(outcomeOf("w --option-file=a.txt"), "6 Error reading option file 'none.txt': no such "
                                                  "file | option-file #2 a.txt:1");
}

TEST_F(OptionFileOfALine, HasNoTraceKeyword)
{
    m_folder.write(L"a.txt", "kexaoption=kexalogenable=1\n");
    EXPECT_EQ(outcomeOf("--option-file=a.txt"), "0<kexaoption=kexalogenable=1>");
    EXPECT_EQ(outcomeOf("kexaoption=kexalogenable=1"), "0<kexaoption=kexalogenable=1>");
}

TEST_F(OptionFileOfALine, ShowsItsHelp)
{
    m_folder.write(L"a.txt", "--nubmer\n--help\n");
    EXPECT_EQ(m_command.parseLine("--option-file=a.txt").status(), kexa::Status::help);
}

TEST_F(OptionFileOfALine, IsInTheOccurrences)
{
    m_folder.write(L"a.txt", "\n--text=b\n");
    const auto parsed = m_command.parseLine("--option-file=a.txt");
    ASSERT_TRUE(parsed);
    ASSERT_EQ(parsed.occurrences().size(), 2U);
    EXPECT_EQ(parsed.occurrences()[1].file, "a.txt");
    EXPECT_EQ(parsed.occurrences()[1].line, 2);
}

} // namespace
