// The arguments of a narrow main, read again from the command line of its process.
#include <string>

#include <gtest/gtest.h>

#include "ChildProgram_windows.h"
#include "text/Encoding.h"

using namespace kexa::detail;

namespace
{

// What argument_reader writes when it is started with a command line that ends so.
std::string outputOf(const std::wstring& arguments)
{
    return outputOfProgram(L"argument_reader.exe", arguments, 0);
}

constexpr const char* as_they_are = "as they are\n";

} // namespace

TEST(ProcessArguments, AreReadAsWritten)
{
    const struct
    {
        const wchar_t* arguments;
        const wchar_t* expected;
    } rows[] = {
        {L"0 a", L"0\na\n"},
        {L"0 gr\u00F6\u00DFe \u65E5\u672C \U0001F600",
         L"0\ngr\u00F6\u00DFe\n\u65E5\u672C\n\U0001F600\n"},
        {L"0 \"\u65E5 \u672C\" \"\" \\\"", L"0\n\u65E5 \u672C\n\n\"\n"},
        {L"0 a \"\u65E5\"\"\u672C\"", L"0\na\n\u65E5\"\u672C\n"},
        {L"0 C:\\\u65E5\\ a", L"0\nC:\\\u65E5\\\na\n"},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(outputOf(row.arguments), narrow(row.expected)) << narrow(row.arguments);
    }
}

TEST(ProcessArguments, LoneSurrogatesAreKept)
{
    const std::wstring surrogate(1, static_cast<wchar_t>(0xD83D));
    EXPECT_EQ(outputOf(L"0 a" + surrogate), "0\na\xED\xA0\xBD\n");
}

TEST(ProcessArguments, TheHostMayDropArgumentsFromTheFront)
{
    EXPECT_EQ(outputOf(L"1 \u65E5 \u672C"), narrow(L"\u65E5\n\u672C\n"));
    EXPECT_EQ(outputOf(L"2 \u65E5 \u672C"), narrow(L"\u672C\n"));
}

TEST(ProcessArguments, NoneAreTakenAsTheyAre)
{
    EXPECT_EQ(outputOf(L"3 \u65E5 \u672C"), as_they_are);
}

TEST(ProcessArguments, ThoseThatTheHostChangedAreTakenAsTheyAre)
{
    EXPECT_EQ(outputOf(L"change a \u65E5"), as_they_are);
    EXPECT_EQ(outputOf(L"null a \u65E5"), as_they_are);
}
