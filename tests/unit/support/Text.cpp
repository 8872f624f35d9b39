// Small operations on wide texts.
#include "support/text/Text.h"

#include <cstddef>
#include <string>
#include <vector>

#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;
using toolbox::toUtf8;

std::vector<std::wstring> piecesOf(std::wstring_view text, wchar_t separator)
{
    std::vector<std::wstring> pieces;
    forEachPiece(text, separator,
                 [&pieces](std::wstring_view piece) { pieces.emplace_back(piece); });
    return pieces;
}

TEST(Texts, NullIsAnEmptyView)
{
    EXPECT_EQ(viewOf(nullptr), L"");
    EXPECT_EQ(*viewOf(nullptr).data(), L'\0');
    EXPECT_EQ(viewOf(L""), L"");
    EXPECT_EQ(viewOf(L"text"), L"text");
}

TEST(Texts, ConcatenationKeepsEveryCharacter)
{
    EXPECT_EQ(concatenate({}), L"");
    EXPECT_EQ(concatenate({L"", {}, L""}), L"");
    EXPECT_EQ(concatenate({L"Option '", L"", L"name", L"'"}), L"Option 'name'");
    const std::wstring_view zero(L"a\0", 2);
    EXPECT_EQ(concatenate({zero, zero}), std::wstring(L"a\0a\0", 4));
}

TEST(Texts, ContainedCharacterIsFoundAtEveryPlace)
{
    for (const std::size_t length : {1U, 2U, 15U, 16U, 17U, 18U, 100U})
    {
        const std::wstring without(length, L'a');
        EXPECT_FALSE(containsCharacter(without, L',')) << length;
        for (std::size_t place = 0; place < length; ++place)
        {
            std::wstring with = without;
            with[place] = L',';
            EXPECT_TRUE(containsCharacter(with, L',')) << length << " " << place;
            EXPECT_FALSE(containsCharacter(std::wstring_view(with).substr(0, place), L','));
        }
    }
    EXPECT_FALSE(containsCharacter({}, L','));
}

TEST(Texts, PiecesAreTheMaximalRunsWithoutTheSeparator)
{
    const struct
    {
        std::wstring text;
        std::vector<std::wstring> pieces;
    } rows[] = {{L"", {}},
                {L",", {}},
                {L",,,", {}},
                {L"a", {L"a"}},
                {L"a,b", {L"a", L"b"}},
                {L"a,,b", {L"a", L"b"}},
                {L",a,", {L"a"}},
                {L",,ab,,,c,,", {L"ab", L"c"}},
                {L" a , b ", {L" a ", L" b "}},
                {L" ,", {L" "}},
                {L"a;b", {L"a;b"}},
                {std::wstring(L"a\0,\0", 4), {std::wstring(L"a\0", 2), std::wstring(1, L'\0')}}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(piecesOf(row.text, L','), row.pieces) << toUtf8(row.text);
    }
    EXPECT_EQ(piecesOf(L"a b\u2014c", L'\u2014'), (std::vector<std::wstring>{L"a b", L"c"}));
}

TEST(Texts, SixCharactersAreClassicSpace)
{
    std::wstring spaces;
    for (unsigned code = 0; code <= 0xFFFF; ++code)
    {
        if (isClassicSpace(static_cast<wchar_t>(code)))
        {
            spaces.push_back(static_cast<wchar_t>(code));
        }
    }
    EXPECT_EQ(spaces, L"\t\n\v\f\r ");
}

TEST(Texts, SurrogatesAreTwoRanges)
{
    for (unsigned code = 0; code <= 0xFFFF; ++code)
    {
        const auto unit = static_cast<wchar_t>(code);
        ASSERT_EQ(isHighSurrogate(unit), code >= 0xD800 && code < 0xDC00) << code;
        ASSERT_EQ(isLowSurrogate(unit), code >= 0xDC00 && code < 0xE000) << code;
    }
}

} // namespace
