// The arguments left over, as a result keeps and gives them.
#include <string>
#include <vector>

#include "result/ParseResult.h"

#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;

using Texts = std::vector<std::wstring>;

Texts walk(ParseResult& result)
{
    Texts texts;
    const wchar_t* argument = nullptr;
    for (int code = result.getFirstUnparsed(&argument); code == 0;
         code = result.getNextUnparsed(&argument))
    {
        texts.emplace_back(argument);
    }
    return texts;
}

TEST(UnparsedArguments, AreWalkedInTheOrderOfAdding)
{
    ParseResult result;
    EXPECT_EQ(walk(result), Texts());
    for (const wchar_t* const argument : {L"b", L"a", L"b", L"", L"\U0001F600"})
    {
        result.addUnparsed(argument);
    }
    const Texts expected = {L"b", L"a", L"b", L"", L"\U0001F600"};
    EXPECT_EQ(walk(result), expected);
    EXPECT_EQ(walk(result), expected);
}

TEST(UnparsedArguments, AreCopiedAndTerminated)
{
    ParseResult result;
    std::wstring source = L"argument";
    result.addUnparsed(std::wstring_view(source).substr(0, 3));
    source.assign(source.size(), L'x');
    EXPECT_EQ(walk(result), (Texts{L"arg"}));
}

TEST(UnparsedArguments, EndLeavesTheOutAlone)
{
    ParseResult result;
    const wchar_t* argument = L"before";
    EXPECT_EQ(result.getFirstUnparsed(&argument), 1);
    EXPECT_EQ(result.getNextUnparsed(&argument), 1);
    EXPECT_EQ(std::wstring(argument), L"before");
    result.addUnparsed(L"a");
    EXPECT_EQ(result.getFirstUnparsed(&argument), 0);
    EXPECT_EQ(result.getNextUnparsed(&argument), 1);
    EXPECT_EQ(result.getNextUnparsed(&argument), 1);
    EXPECT_EQ(std::wstring(argument), L"a");
}

TEST(UnparsedArguments, ArgumentAddedAtTheEndIsWalkedNext)
{
    ParseResult result;
    result.addUnparsed(L"a");
    const wchar_t* argument = nullptr;
    EXPECT_EQ(result.getFirstUnparsed(&argument), 0);
    EXPECT_EQ(result.getNextUnparsed(&argument), 1);
    result.addUnparsed(L"b");
    EXPECT_EQ(result.getNextUnparsed(&argument), 0);
    EXPECT_EQ(std::wstring(argument), L"b");
}

TEST(UnparsedArguments, NullOutAdvancesAllTheSame)
{
    ParseResult result;
    result.addUnparsed(L"a");
    result.addUnparsed(L"b");
    EXPECT_EQ(result.getFirstUnparsed(nullptr), 0);
    const wchar_t* argument = nullptr;
    EXPECT_EQ(result.getNextUnparsed(&argument), 0);
    EXPECT_EQ(std::wstring(argument), L"b");
    EXPECT_EQ(result.getFirstUnparsed(nullptr), 0);
    EXPECT_EQ(result.getNextUnparsed(nullptr), 0);
    EXPECT_EQ(result.getNextUnparsed(nullptr), 1);
}

} // namespace
