// What a parse binds from option files is what the parser beneath gives for the same files, and
// each mistake in them has its file and line.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "Outcomes.h"
#include "RawParser.h"
#include "TemporaryFolder.h"

namespace
{

struct Settings
{
    std::vector<int> numbers;
    std::vector<std::string> texts;
    bool flag = false;
    std::vector<std::string> words;
};

struct Row
{
    const char* name;
    std::vector<std::pair<std::wstring, std::string>> files;
    std::vector<std::string> arguments;
    const char* outcome; // the values, or where the mistake is
};

void PrintTo(const Row& row, std::ostream* stream)
{
    *stream << row.name;
}

const std::string bom = "\xEF\xBB\xBF";
const std::vector<std::string> from_a = {"--option-file=a"};

const Row rows[] = {
    {"Empty", {{L"a", ""}}, from_a, "|||"},
    {"OneLine", {{L"a", "--text=x\n"}}, from_a, "|[x]||"},
    {"NoLastLineEnd", {{L"a", "--text=x\n--text=y"}}, from_a, "|[x][y]||"},
    {"CarriageReturns", {{L"a", "--text=x\r\n--text=y\r\r\n\r\nz\r"}}, from_a, "|[x][y]||[z]"},
    {"CarriageReturnInside", {{L"a", "--text=x\ry\n"}}, from_a, "|[x\ry]||"},
    {"BlankLines", {{L"a", "\n\n  \n\t\n--text=x\n\n \r\n--text=y\n\n"}}, from_a, "|[x][y]||"},
    {"Comments",
     {{L"a", "# one\n;two\n  # three\nw # no comment\n\t;\n#"}},
     from_a,
     "|||[w # no comment]"},
    {"LeadingBlanks", {{L"a", " \t\v\f --text=x\n   w\n"}}, from_a, "|[x]||[w]"},
    {"TrailingBlanks", {{L"a", "w  \n--text=x \t\nv \r\n"}}, from_a, "|[x \t]||[w  ][v ]"},
    {"NoQuotes", {{L"a", "\"a b\"\n'c'\n\\d\n"}}, from_a, "|||[\"a b\"]['c'][\\d]"},
    {"ValueOfTheNextLine", {{L"a", "--text\nx\n--number\n7\n"}}, from_a, "[7]|[x]||"},
    {"ValueBehindABlank", {{L"a", "--text x y\n--number 7\n"}}, from_a, "[7]|[x y]||"},
    {"ByteOrderMark", {{L"a", bom + "--text=x\n"}}, from_a, "|[x]||"},
    {"ByteOrderMarkBeforeAComment", {{L"a", bom + "# c\n--text=x\n"}}, from_a, "|[x]||"},
    {"ByteOrderMarkAlone", {{L"a", bom}}, from_a, "|||"},
    {"SecondByteOrderMark",
     {{L"a", bom + bom + "w\n" + bom + "v"}},
     from_a,
     "|||[\uFEFFw][\uFEFFv]"},
    {"MarkerInAFile", {{L"a", "--\n--text=x\n"}}, from_a, "|||[--text=x]"},
    {"MarkerOfTheLine", {{L"a", "--text=x\n"}}, {"--option-file=a", "--", "-w"}, "|[x]||[-w]"},
    {"BehindTheLine",
     {{L"a", "--text=x\nw\n"}},
     {"v", "--option-f", "a", "--text=y"},
     "|[y][x]||[v][w]"},
    {"TwoFiles",
     {{L"a", "1\n"}, {L"b", "2\n"}},
     {"--option-file=b", "--option-file=a", "0"},
     "|||[0][2][1]"},
    {"TwiceTheSame", {{L"a", "1\n"}}, {"--option-file=a", "--option-file=./a"}, "|||[1]"},
    {"Nested", {{L"a", "1\n--option-file=b\n2\n"}, {L"b", "3\n"}}, from_a, "|||[1][2][3]"},
    {"NestedTwice",
     {{L"a", "--option-file=b\n--option-file=c\n1"},
      {L"b", "--option-file=d\n2"},
      {L"c", "3"},
      {L"d", "4"}},
     from_a,
     "|||[1][2][3][4]"},
    {"Cycle",
     {{L"a", "1\n--option-file=b"}, {L"b", "2\n--option-file=a\n3"}},
     from_a,
     "|||[1][2][3]"},
    {"NamesItself", {{L"a", "1\n--option-file=a\n2"}}, from_a, "|||[1][2]"},
    {"NonAsciiName",
     {{L"\u00F6\u65E5", "1\n"}, {L"a", "--option-file=\u00F6\u65E5\n"}},
     from_a,
     "|||[1]"},
    {"FlagForms", {{L"a", "--flag\n--no-flag\n--fl\n"}}, from_a, "||true|"},

    {"MissingFile", {}, {"w", "--option-file=none"}, "6 :0"},
    {"MissingFileOfAFile", {{L"a", "\n--option-file=none\n"}}, from_a, "6 a:2"},
    {"Folder", {}, {"--option-file=."}, "6 :0"},
    {"FolderOfAFile", {{L"a", "1\n\n--option-file=..\n"}}, from_a, "6 a:3"},
    {"MistakeInTheFirstLine", {{L"a", "--nubmer=1"}}, from_a, "2 a:1"},
    {"MistakeBehindComments", {{L"a", "# c\r\n\r\n;\n--number=x\r\n"}}, from_a, "2 a:4"},
    {"MistakeBehindTheMark", {{L"a", bom + "\n--number=x\n"}}, from_a, "2 a:2"},
    {"MistakeInANestedFile",
     {{L"a", "1\n--option-file=b\n"}, {L"b", "\n\n--nubmer\n"}},
     from_a,
     "2 b:3"},
    {"MistakeOfTheNextLine", {{L"a", "--number\nx\n"}}, from_a, "2 a:1"},
    {"MissingValueAtTheEnd",
     {{L"a", "1\n--number\n"}, {L"b", "7"}},
     {"--option-file=a", "--option-file=b"},
     "2 a:2"},
    {"MistakeOfTheLineComesFirst", {{L"a", "--nubmer\n"}}, {"--option-file=a", "--txet=1"}, "2 :0"},
    {"MistakeOfTheLineBeforeAMissingFile", {}, {"--option-file=none", "--txet=1"}, "2 :0"},
    {"AmbiguousNothing", {{L"a", "\n---\n"}}, from_a, "2 a:2"},
};

class OptionFilesOfRawParser : public testing::TestWithParam<Row>
{
};

TEST_P(OptionFilesOfRawParser, GiveTheSame)
{
    const Row& row = GetParam();
    const toolbox::TemporaryFolder folder;
    const toolbox::CurrentFolder current(folder.path());
    for (const auto& [name, content] : row.files)
    {
        folder.write(name, content);
    }
    using namespace kexa_3_3;
    toolbox::RawParser raw;
    raw.parser().addOption(L"number", L"", value_type_integer, L"").option->setSeparator(0);
    raw.parser().addOption(L"text", L"", value_type_string, L"").option->setSeparator(0);
    raw.parser().addOption(L"flag", L"", value_type_boolean, L"");
    raw.addPositional(L"word");
    raw.parser().enableOptionFiles(L"", L"");
    const result_t code = raw.parse(row.arguments);

    kexa::Command<Settings> command("reader");
    command.helpOption("");
    command.option(&Settings::numbers, "number", "");
    command.option(&Settings::texts, "text", "");
    command.option(&Settings::flag, "flag", "");
    command.positional(&Settings::words, "word", "");
    command.optionFiles();
    const kexa::Parsed<Settings> parsed = command.parse(row.arguments);

    if (code != result_success)
    {
        ASSERT_EQ(parsed.status(), kexa::Status::error);
        const kexa::Error& error = parsed.error();
        EXPECT_EQ(error.message, raw.message());
        EXPECT_EQ(error.code, code);
        EXPECT_EQ(std::to_string(error.code) + " " + error.file + ":" + std::to_string(error.line),
                  row.outcome);
        return;
    }
    ASSERT_TRUE(parsed) << toolbox::shown(parsed.error());
    std::string bound;
    for (const int number : parsed->numbers)
    {
        bound += "[" + std::to_string(number) + "]";
    }
    bound += "|";
    for (const std::string& text : parsed->texts)
    {
        bound += "[" + text + "]";
    }
    bound += parsed->flag ? "|true|" : "||";
    for (const std::string& word : parsed->words)
    {
        bound += "[" + word + "]";
    }
    EXPECT_EQ(bound, row.outcome);
    const bool isOn = raw.lastValue("flag") == "true";
    EXPECT_EQ(bound, raw.values("number") + "|" + raw.values("text") + (isOn ? "|true|" : "||") +
                         raw.values("word"));
}

INSTANTIATE_TEST_SUITE_P(Table, OptionFilesOfRawParser, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

// Each value is at the line that holds it, also behind lines that hold none.
TEST(LinesOfOptionFiles, AreThoseOfTheirValues)
{
    const toolbox::TemporaryFolder folder;
    const toolbox::CurrentFolder current(folder.path());
    folder.write(L"a", bom + "# c\r\n--text=1\n\n--text\n2\n--option-file=b\n\r\n3");
    folder.write(L"b", "\n;\n--text=4\n");
    kexa::Command<Settings> command("reader");
    command.option(&Settings::texts, "text", "");
    command.positional(&Settings::words, "word", "");
    command.optionFiles();
    const kexa::Parsed<Settings> parsed = command.parse({"--text=0", "--option-file=a"});
    ASSERT_TRUE(parsed);
    std::string places;
    for (const kexa::Occurrence& occurrence : parsed.occurrences())
    {
        places += occurrence.value + "=" + std::to_string(occurrence.index) + " " +
                  occurrence.file + ":" + std::to_string(occurrence.line) + "\n";
    }
    EXPECT_EQ(places, "0=1 :0\na=2 :0\n1=2 a:2\n2=2 a:4\nb=2 a:6\n3=2 a:8\n4=2 b:3\n");
}

} // namespace
