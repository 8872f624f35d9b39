// Option files: their arguments with the lines at which these stand.
#include "text/OptionFileReading.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/FileReading.h"
#include "TemporaryFolder.h"
#include "text/Encoding.h"

using namespace kexa::detail;
using namespace toolbox;

namespace
{

struct ContentRow
{
    std::string content;
    std::vector<OptionFileArgument> arguments;
};

void expectSame(const std::vector<OptionFileArgument>& found,
                const std::vector<OptionFileArgument>& expected, const std::string& content)
{
    ASSERT_EQ(found.size(), expected.size()) << content;
    for (std::size_t index = 0; index < found.size(); ++index)
    {
        EXPECT_EQ(found[index].text, expected[index].text) << content;
        EXPECT_EQ(found[index].line, expected[index].line) << content;
    }
}

void expectArguments(const std::vector<ContentRow>& rows)
{
    const TemporaryFolder folder;
    for (const ContentRow& row : rows)
    {
        expectSame(splitOptionFile(row.content), row.arguments, row.content);
        const OptionFile file = readOptionFile(narrow(folder.write(L"file", row.content)));
        expectSame(file.arguments, row.arguments, row.content);
        EXPECT_EQ(file.error, "");
    }
}

} // namespace

TEST(OptionFileReading, EachLineIsOneArgument)
{
    expectArguments({
        {"", {}},
        {"a", {{"a", 1}}},
        {"a\nb\n", {{"a", 1}, {"b", 2}}},
        {"a\r\nb\r\nc", {{"a", 1}, {"b", 2}, {"c", 3}}},
        {"--name 'a b'\n", {{"--name 'a b'", 1}}},
        {"a\rb\r\r\n", {{"a\rb", 1}}},
        {"\v\f\t a b \t\r\n", {{"a b \t", 1}}},
    });
}

TEST(OptionFileReading, BlankLinesAndCommentsCountAsLines)
{
    expectArguments({
        {"\n\r\n \t\na", {{"a", 4}}},
        {"# a\n; b\n  # c\n\t;d\r\ne#f;", {{"e#f;", 5}}},
        {"a\n\n\nb\n#\nc\n", {{"a", 1}, {"b", 4}, {"c", 6}}},
        {"#", {}},
    });
}

TEST(OptionFileReading, AByteOrderMarkAtTheFrontIsDropped)
{
    expectArguments({
        {"\xEF\xBB\xBF", {}},
        {"\xEF\xBB\xBF  a\nb", {{"a", 1}, {"b", 2}}},
        {"\xEF\xBB\xBF#a\nb", {{"b", 2}}},
        {"a\n\xEF\xBB\xBF"
         "b",
         {{"a", 1},
          {"\xEF\xBB\xBF"
           "b",
           2}}},
    });
}

TEST(OptionFileReading, EveryByteIsKept)
{
    using namespace std::string_literals;
    expectArguments({
        {"gr\xC3\xB6\xC3\x9F\x65\n\xE6\x97\xA5\xE6\x9C\xAC",
         {{"gr\xC3\xB6\xC3\x9F\x65", 1}, {"\xE6\x97\xA5\xE6\x9C\xAC", 2}}},
        {"\xE9t\xE9\n\xFF\xFE\n\xEF\xBB", {{"\xE9t\xE9", 1}, {"\xFF\xFE", 2}, {"\xEF\xBB", 3}}},
        {"a\0b\n\0\n"s, {{"a\0b"s, 1}, {"\0"s, 2}}},
        {"\xC2\xA0\n\xC2\x85x", {{"\xC2\xA0", 1}, {"\xC2\x85x", 2}}},
    });
}

TEST(OptionFileReading, AFileMayBeLarge)
{
    std::string content;
    for (int number = 0; number < 30000; ++number)
    {
        content += "# comment\nargument " + std::to_string(number) + "\n";
    }
    const TemporaryFolder folder;
    const OptionFile file = readOptionFile(narrow(folder.write(L"file", content)));
    ASSERT_EQ(file.arguments.size(), 30000U);
    EXPECT_EQ(file.arguments.back().text, "argument 29999");
    EXPECT_EQ(file.arguments.back().line, 60000U);
}

TEST(OptionFileReading, TheIdentityIsThatOfTheFile)
{
    const TemporaryFolder folder;
    folder.write(L"\u00F6.txt", "");
    folder.write(L"b.txt", "");
    std::filesystem::create_directory(folder.path() / "inner");
    const CurrentFolder current(folder.path());
    const std::string file = narrow(L"\u00F6.txt");
    const std::string identity = fileIdentity(file);
    EXPECT_NE(identity, file); // it is absolute
    EXPECT_EQ(fileIdentity("./" + file), identity);
    EXPECT_EQ(fileIdentity("inner/../" + file), identity);
    EXPECT_EQ(fileIdentity(narrow(folder.name(L"\u00F6.txt"))), identity);
    EXPECT_NE(fileIdentity("b.txt"), identity);
    EXPECT_EQ(fileIdentity("missing"), "missing");
    EXPECT_EQ(fileIdentity(std::string("b.txt\0x", 7)), std::string("b.txt\0x", 7));
}
