// Names, values and files of any language.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "Outcomes.h"
#include "TemporaryFolder.h"

namespace
{

struct Settings
{
    std::string text;
    bool flag = true;
    std::string level = "\u00FC";
    std::vector<std::filesystem::path> paths;
};

std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return file ? std::string(std::istreambuf_iterator<char>(file), {}) : "not there";
}

std::string show(const Settings& settings)
{
    std::string text = settings.text + (settings.flag ? " on " : " off ") + settings.level;
    for (const std::filesystem::path& path : settings.paths)
    {
        text += " " + contentOf(path);
    }
    return text;
}

class NonAsciiTexts : public testing::Test
{
protected:
    NonAsciiTexts() : m_current(m_folder.path())
    {
        m_command.option(&Settings::text, "gr\u00F6\u00DFe,\u65E5\u672C,\U0001F600", "");
        m_command.option(&Settings::flag, "\u65D7", "");
        m_command.option(&Settings::level, "stufe", "")
            .values({"\u00FC", "\u00FCber", "\u9AD8\u3044", "\U0001F600\U0001F601"});
        m_command.positional(&Settings::paths, "p\u00E4th", "");
        m_command.optionFiles();
    }

    std::string outcomeOf(const std::string& line)
    {
        return toolbox::outcomeOf(m_command, line, show);
    }

    toolbox::TemporaryFolder m_folder;
    toolbox::CurrentFolder m_current;
    kexa::Command<Settings> m_command{"w\u00E4hler"};
};

TEST_F(NonAsciiTexts, NameOptions)
{
    const struct
    {
        const char* line;
        const char* outcome;
    } rows[] = {
        {"--gr\u00F6\u00DFe=1", "1 on \u00FC"},
        {"--gr\u00F6 2", "2 on \u00FC"},
        {"--\u65E5\u672C=3", "3 on \u00FC"},
        {"--\u65E5 4", "4 on \u00FC"},
        {"-\U0001F600 5", "5 on \u00FC"},
        {"--\U0001F600=6", "6 on \u00FC"},
        {"--no-\u65D7", " off \u00FC"},
        {"--no-\u65D7=false", " on \u00FC"},
        {"--\u65E5\u6728=1", "2 Unknown option: --\u65E5\u6728=1 | did you mean "
                             "'--\u65E5\u672C'? | #1"},
        {"--gro\u00DFe=1",
         "2 Unknown option: --gro\u00DFe=1 | did you mean '--gr\u00F6\u00DFe'? | #1"},
        {"--\U0001F600", "2 Option 'gr\u00F6\u00DFe' requires a value in argument: "
                         "'--\U0001F600' | gr\u00F6\u00DFe #1"},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(outcomeOf(row.line), row.outcome) << row.line;
    }
}

// A letter takes up to four bytes: a hint allows for mistakes by letters.
TEST_F(NonAsciiTexts, OfOneLetterAreNotNearEachOther)
{
    EXPECT_EQ(outcomeOf("--\u00F6=1"), "2 Unknown option: --\u00F6=1 | #1");
    EXPECT_EQ(outcomeOf("--\U0001F601=1"), "2 Unknown option: --\U0001F601=1 | #1");
}

TEST_F(NonAsciiTexts, AreValues)
{
    const struct
    {
        const char* line;
        const char* outcome;
    } rows[] = {
        {"--gr\u00F6\u00DFe=\u65E5\u672C", "\u65E5\u672C on \u00FC"},
        {"--gr\u00F6\u00DFe '\U0001F600 \u00E9'", "\U0001F600 \u00E9 on \u00FC"},
        {"--stufe=\u00FC", " on \u00FC"},
        {"--stufe=\u00FCb", " on \u00FCber"},
        {"--stufe=\u9AD8", " on \u9AD8\u3044"},
        {"--stufe \U0001F600", " on \U0001F600\U0001F601"},
        {"--stufe=\u00FCebr",
         "2 Value validation problem in argument '--stufe=\u00FCebr': Option 'stufe' does not "
         "allow value '\u00FCebr'. Possible values follows: '\u00FC', '\u00FCber', "
         "'\u9AD8\u3044', '\U0001F600\U0001F601' | did you mean '\u00FCber'? | stufe #1"},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(outcomeOf(row.line), row.outcome) << row.line;
    }
}

TEST_F(NonAsciiTexts, NameFiles)
{
    m_folder.write(L"gr\u00F6\u00DFe", "umlaut");
    m_folder.write(L"\u65E5\u672C", "kanji");
    m_folder.write(L"\U0001F600", "emoji");
    m_folder.write(L"\u00E9.txt", "--\xE6\x97\xA5\xE6\x9C\xAC=\xC3\x9F\n\xF0\x9F\x98\x80\n"
                                  "--option-file=\xE6\x97\xA5.txt\n");
    m_folder.write(L"\u65E5.txt", "gr\xC3\xB6\xC3\x9F"
                                  "e\n\n--\xC3\xB6\n");
    EXPECT_EQ(outcomeOf("gr\u00F6\u00DFe \u65E5\u672C \U0001F600"),
              " on \u00FC umlaut kanji emoji");
    EXPECT_EQ(outcomeOf("--option-file=\u00E9.txt"),
              "2 Unknown option: --\u00F6 | #1 \u65E5.txt:3");
    m_folder.write(L"\u65E5.txt", "gr\xC3\xB6\xC3\x9F"
                                  "e");
    EXPECT_EQ(outcomeOf("--option-file=\u00E9.txt"), "\u00DF on \u00FC emoji umlaut");
    EXPECT_EQ(outcomeOf("--option-file=\u00F6\u65E5"),
              "6 Error reading option file '\u00F6\u65E5': no such file | option-file #1");
}

TEST_F(NonAsciiTexts, ReachTheWideEntryToo)
{
    const wchar_t* const arguments[] = {L"p", L"--\u65E5\u672C=\U0001F600", L"\u00F6"};
    m_folder.write(L"\u00F6", "umlaut");
    const kexa::Parsed<Settings> parsed = m_command.parse(3, arguments);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(show(*parsed), "\U0001F600 on \u00FC umlaut");
}

} // namespace
