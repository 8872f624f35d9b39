// Splitting a command line as a shell does.
#include "text/LineSplitting.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace kexa::detail;

using Arguments = std::vector<std::string>;

TEST(LineSplitting, SplitsAsAShellDoes)
{
    using namespace std::string_literals;
    const struct
    {
        std::string line;
        Arguments arguments;
    } rows[] = {
        {"", {}},
        {" \t\r\n\v\f", {}},
        {"a", {"a"}},
        {"  sum  --mode fast a.txt ", {"sum", "--mode", "fast", "a.txt"}},
        {"a\tb\nc\r\nd\ve\ff", {"a", "b", "c", "d", "e", "f"}},
        {"'a b'", {"a b"}},
        {"\"a b\"", {"a b"}},
        {"--name='a b'", {"--name=a b"}},
        {"a'b'\"c\"d", {"abcd"}},
        {"'' \"\"", {"", ""}},
        {"a ''", {"a", ""}},
        {"--name=''", {"--name="}},
        {"'a\"b'", {"a\"b"}},
        {"\"a'b\"", {"a'b"}},
        {"'a\\b\\'", {"a\\b\\"}},
        {"a\\ b", {"a b"}},
        {"\\'a\\\"", {"'a\""}},
        {"\\\\server\\\\share", {"\\server\\share"}},
        {"C:\\folder", {"C:folder"}},
        {"'C:\\folder'", {"C:\\folder"}},
        {"\"C:\\folder\"", {"C:\\folder"}},
        {"\"a\\\\b\\\"c\\$d\\`e\\'f\\ g\"", {"a\\b\"c$d`e\\'f\\ g"}},
        {"a\\", {"a\\"}},
        {"\\", {"\\"}},
        {"a\\\nb", {"ab"}},
        {"a \\\n b", {"a", "b"}},
        {"\\\n", {}},
        {"\"a\\\nb\"", {"ab"}},
        {"'a\\\nb'", {"a\\\nb"}},
        {"\"a\nb\"", {"a\nb"}},
        {"$HOME `x` * ~ # ; | & > $(y)",
         {"$HOME", "`x`", "*", "~", "#", ";", "|", "&", ">", "$(y)"}},
        {"gr\xC3\xB6\xC3\x9F"
         "e \xFF",
         {"gr\xC3\xB6\xC3\x9F"
          "e",
          "\xFF"}},
        {"\xC2\xA0 \xC2\x85",
         {"\xC2\xA0", "\xC2\x85"}}, // other blanks than ASCII's separate nothing
        {"a\0b c"s, {"a\0b"s, "c"}},
    };
    for (const auto& row : rows)
    {
        const SplitLine split = splitLine(row.line);
        EXPECT_EQ(split.arguments, row.arguments) << row.line;
        EXPECT_FALSE(split.unterminatedQuote.has_value()) << row.line;
    }
}

TEST(LineSplitting, TellsWhereAQuoteBeginsThatDoesNotEnd)
{
    const struct
    {
        const char* line;
        std::size_t position;
    } rows[] = {
        {"'", 0},       {"\"", 0},   {"a 'b", 2},        {"a \"b", 2},   {"'a' 'b", 4},
        {"a'b'c'd", 5}, {"'a\"", 0}, {"\"a'", 0},        {"\"a\\\"", 0}, {"\"a\\", 0},
        {"\"a\\\n", 0}, {"\\''", 2}, {"\xC3\xB6 'b", 3},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(splitLine(row.line).unterminatedQuote, row.position) << row.line;
    }
}
