// Reading the option files that a parse names.
#include "parser/OptionFiles.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "options/OptionDescription.h"
#include "result/ParseResult.h"
#include "support/memory/Garbage.h"

#include "GivenArguments.h"
#include "HeapOnly.h"
#include "TemporaryFolder.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;
using vexkit2::variant_t;

const OptionGroup no_group;

using Texts = std::vector<std::wstring>;

class OptionFilesTest : public testing::Test
{
protected:
    OptionFilesTest() { option.addName(option_file_name); }

    // Stores the name of a file as a parse does.
    void name(const std::wstring& file)
    {
        OptionResult record;
        record.positions.push_back(0);
        record.values.push_back({file, variant_t(file), 0});
        EXPECT_EQ(result.storeOption(option, record), 0);
    }

    int readAll(OptionFiles& files)
    {
        return files.readAll(
            [this](ArgumentSource& lines)
            {
                ArgumentQueue arguments(lines);
                parsed.push_back(unit::takeAll(arguments));
                return whileParsing ? whileParsing(parsed.back()) : result_success;
            },
            message);
    }

    toolbox::TemporaryFolder folder;
    Garbage pool{unit::heap_only};
    OptionDescription option{no_group, false, pool};
    ParseResult result;

    std::vector<Texts> parsed; // the arguments of each file
    std::function<result_t(const Texts&)> whileParsing;
    std::wstring message = L"as before";
};

TEST_F(OptionFilesTest, NothingIsReadWhereNothingIsNamed)
{
    OptionFiles files(result);
    EXPECT_EQ(readAll(files), 0);
    EXPECT_TRUE(parsed.empty());
    EXPECT_EQ(message, L"as before");
}

TEST_F(OptionFilesTest, FilesAreReadInTheOrderOfTheirNames)
{
    OptionFiles files(result);
    name(folder.write(L"b", "first\nsecond\n"));
    name(folder.write(L"a", ""));
    name(folder.write(L"c", "third"));
    EXPECT_EQ(readAll(files), 0);
    EXPECT_EQ(parsed, (std::vector<Texts>{{L"first", L"second"}, {}, {L"third"}}));
    EXPECT_EQ(message, L"as before");
}

TEST_F(OptionFilesTest, NamesOfEarlierParsesAreNotReadAgain)
{
    name(folder.name(L"missing"));
    OptionFiles files(result);
    name(folder.write(L"file", "x"));
    EXPECT_EQ(readAll(files), 0);
    EXPECT_EQ(parsed, (std::vector<Texts>{{L"x"}}));
}

TEST_F(OptionFilesTest, FilesNamedByFilesAreReadBehindAllOthers)
{
    const std::wstring nested = folder.write(L"nested", "deep");
    OptionFiles files(result);
    name(folder.write(L"first", "1"));
    name(folder.write(L"second", "2"));
    whileParsing = [this, &nested](const Texts& arguments)
    {
        if (arguments == Texts{L"1"})
        {
            name(nested);
        }
        return result_success;
    };
    EXPECT_EQ(readAll(files), 0);
    EXPECT_EQ(parsed, (std::vector<Texts>{{L"1"}, {L"2"}, {L"deep"}}));
}

TEST_F(OptionFilesTest, FileIsReadOnceWhateverItsName)
{
    const std::wstring file = folder.write(L"file", "x");
    std::filesystem::create_directory(folder.path() / "sub");
    OptionFiles files(result);
    name(file);
    name(file);
    name(folder.name(L"sub") + L"/../file");
    name(folder.name(L".") + L"/file");
    whileParsing = [this, &file](const Texts&)
    {
        name(file); // the file names itself
        return result_success;
    };
    EXPECT_EQ(readAll(files), 0);
    EXPECT_EQ(parsed, (std::vector<Texts>{{L"x"}}));
}

TEST_F(OptionFilesTest, FirstFailedFileEndsTheReading)
{
    OptionFiles files(result);
    name(folder.write(L"a", "a"));
    name(folder.write(L"b", "b"));
    name(folder.write(L"c", "c"));
    whileParsing = [](const Texts& arguments)
    {
        return arguments == Texts{L"b"} ? result_invalid_arguments : result_success;
    };
    EXPECT_EQ(readAll(files), 2);
    EXPECT_EQ(parsed, (std::vector<Texts>{{L"a"}, {L"b"}}));
    EXPECT_EQ(message, L"as before");
}

TEST_F(OptionFilesTest, FileThatCannotBeReadIsNamedWithTheReason)
{
    const std::wstring missing = folder.name(L"missing \u00E9");
    const struct
    {
        std::wstring file;
        const wchar_t* reason;
    } rows[] = {{missing, L"no such file"}, {folder.name(L"."), L"it is a folder"}};
    for (const auto& row : rows)
    {
        ParseResult own;
        OptionFiles files(own);
        OptionResult record;
        record.positions.push_back(0);
        record.values.push_back({row.file, variant_t(row.file), 0});
        ASSERT_EQ(own.storeOption(option, record), 0);
        EXPECT_EQ(readAll(files), 6);
        EXPECT_EQ(message, L"Error reading option file '" + row.file + L"': " + row.reason);
    }
    EXPECT_TRUE(parsed.empty());
}

TEST_F(OptionFilesTest, TextIsUtf8)
{
    const struct
    {
        std::string bytes;
        Texts arguments;
    } rows[] = {
        {"\xEF\xBB\xBF--name=\xC3\xA9\r\n\xF0\x9F\x98\x80", {L"--name=\u00E9", L"\U0001F600"}},
        {"\xEF\xBB\xBF", {}},
        {"\xEF\xBB", {L"\uFFFD"}},
        {"a\n\xEF\xBB\xBF"
         "b",
         {L"a", L"\uFEFF"
                L"b"}},
        {"\xEF\xBB\xBF\xEF\xBB\xBFx", {L"\uFEFFx"}},
        {"\xEF\xBB\xBF# comment\nx", {L"x"}},
        {"a\xFFz\n\xE2\x82", {L"a\uFFFDz", L"\uFFFD"}},
        {std::string("a\0b", 3), {std::wstring(L"a\0b", 3)}}};
    OptionFiles files(result);
    std::vector<Texts> expected;
    for (const auto& row : rows)
    {
        name(folder.write(L"file " + std::to_wstring(expected.size()), row.bytes));
        expected.push_back(row.arguments);
    }
    EXPECT_EQ(readAll(files), 0);
    EXPECT_EQ(parsed, expected);
}

// If another option has "option-file" as a second name, its first value moves the name to its
// record. That record may have fewer values than were read already.
TEST_F(OptionFilesTest, NameMayMoveToAShorterRecordMeanwhile)
{
    OptionDescription other(no_group, false, pool);
    other.addName(L"f").addName(option_file_name);
    OptionFiles files(result);
    name(folder.write(L"a", "--a"));
    name(folder.write(L"b", "--b"));
    whileParsing = [&](const Texts& arguments)
    {
        if (arguments == Texts{L"--b"})
        {
            OptionResult record;
            record.positions.push_back(1);
            record.values.push_back({L"c", variant_t(L"c"), 1});
            EXPECT_EQ(result.storeOption(other, record), 0);
        }
        return result_success;
    };
    EXPECT_EQ(readAll(files), 0);
    EXPECT_EQ(parsed, (std::vector<Texts>{{L"--a"}, {L"--b"}}));
    EXPECT_EQ(message, L"as before");
}

} // namespace
