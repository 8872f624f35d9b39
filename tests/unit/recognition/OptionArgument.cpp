// Splitting an argument into name and value; hyphens and white space.
#include "recognition/OptionArgument.h"

#include <locale>
#include <string>

#include "TextPrinting.h"

namespace
{

using kexa_3_3::HashedText;
using kexa_3_3::hyphenPrefixLength;
using kexa_3_3::OptionArgument;
using kexa_3_3::splitOptionArgument;
using kexa_3_3::WhiteSpace;
using toolbox::toUtf8;

TEST(HyphenPrefix, SixCharactersCount)
{
    std::wstring hyphens;
    for (unsigned code = 0; code <= 0xFFFF; ++code)
    {
        const wchar_t character = static_cast<wchar_t>(code);
        if (hyphenPrefixLength({&character, 1}, 0) != 0)
        {
            hyphens.push_back(character);
        }
    }
    EXPECT_EQ(hyphens, L"-\u2012\u2013\u2014\u2015\u2053");
}

TEST(HyphenPrefix, LooksAtOnePositionOnly)
{
    const std::wstring_view text = L"--a\u2014";
    EXPECT_EQ(hyphenPrefixLength(text, 0), 1U);
    EXPECT_EQ(hyphenPrefixLength(text, 1), 1U);
    EXPECT_EQ(hyphenPrefixLength(text, 2), 0U);
    EXPECT_EQ(hyphenPrefixLength(text, 3), 1U);
    EXPECT_EQ(hyphenPrefixLength(text, 4), 0U);
    EXPECT_EQ(hyphenPrefixLength(text, 1000), 0U);
    EXPECT_EQ(hyphenPrefixLength({}, 0), 0U);
    EXPECT_EQ(hyphenPrefixLength(text.substr(0, 1), 1), 0U);
}

struct Row
{
    std::wstring argument;
    std::wstring name;
    bool hasValue;
    std::wstring value;
};

void expectSplit(const std::vector<Row>& rows)
{
    const WhiteSpace whiteSpace;
    for (const Row& row : rows)
    {
        const OptionArgument parts = splitOptionArgument(row.argument, whiteSpace);
        EXPECT_EQ(parts.name.text(), row.name) << toUtf8(row.argument);
        EXPECT_EQ(parts.name.hash(), HashedText(row.name).hash()) << toUtf8(row.argument);
        EXPECT_EQ(parts.hasValue, row.hasValue) << toUtf8(row.argument);
        EXPECT_EQ(std::wstring(parts.value), row.value) << toUtf8(row.argument);
    }
}

TEST(OptionArgument, AtMostTwoHyphensAreSkipped)
{
    expectSplit({{L"", L"", false, L""},
                 {L"-", L"", false, L""},
                 {L"--", L"", false, L""},
                 {L"---", L"-", false, L""},
                 {L"name", L"name", false, L""},
                 {L"-name", L"name", false, L""},
                 {L"--name", L"name", false, L""},
                 {L"---name", L"-name", false, L""},
                 {L"\u2014name", L"name", false, L""},
                 {L"\u2013-name", L"name", false, L""},
                 {L"-\u2053name", L"name", false, L""},
                 {L"\u2012\u2015\u2014name", L"\u2014name", false, L""},
                 {L"-na-me", L"na-me", false, L""},
                 {L"n-", L"n-", false, L""}});
}

TEST(OptionArgument, CharactersBehindTheArgumentAreNoPartOfIt)
{
    const WhiteSpace whiteSpace;
    const std::wstring_view text = L"--name=value";
    for (std::size_t length = 0; length <= text.size(); ++length)
    {
        const std::wstring alone(text.substr(0, length));
        const OptionArgument parts = splitOptionArgument(text.substr(0, length), whiteSpace);
        const OptionArgument expected = splitOptionArgument(alone, whiteSpace);
        EXPECT_EQ(parts.name, expected.name) << length;
        EXPECT_EQ(parts.name.text().data() - text.data(),
                  expected.name.text().data() - alone.data())
            << length;
        EXPECT_EQ(parts.value, expected.value) << length;
        EXPECT_EQ(parts.hasValue, expected.hasValue) << length;
    }
}

TEST(OptionArgument, ValueBeginsBehindTheFirstEqualsSign)
{
    expectSplit({{L"--name=value", L"name", true, L"value"},
                 {L"--name=", L"name", true, L""},
                 {L"--name==", L"name", true, L"="},
                 {L"--name=a=b c", L"name", true, L"a=b c"},
                 {L"--name= a", L"name", true, L" a"},
                 {L"--=5", L"", true, L"5"},
                 {L"-=", L"", true, L""},
                 {L"=", L"", true, L""},
                 {L"a=b", L"a", true, L"b"}});
}

TEST(OptionArgument, ValueBeginsBehindTheFirstRunOfWhiteSpace)
{
    expectSplit({{L"--name value", L"name", true, L"value"},
                 {L"--name \t\n\v\f\r value ", L"name", true, L"value "},
                 {L"--name ", L"name", true, L""},
                 {L"--name   ", L"name", true, L""},
                 {L"-- value", L"", true, L"value"},
                 {L"--name =value", L"name", true, L"=value"},
                 {L"--name a=b", L"name", true, L"a=b"},
                 {L" name", L"", true, L"name"},
                 {L"--name\u00A0value", L"name\u00A0value", false, L""}});
}

TEST(OptionArgument, ZeroCharacterIsACharacter)
{
    expectSplit({{std::wstring(L"--a\0b=c\0", 8), std::wstring(L"a\0b", 3), true,
                  std::wstring(L"c\0", 2)}});
}

// A locale facet in which "_" is white space and " " is not.
class OddSpaces final : public std::ctype<wchar_t>
{
protected:
    bool do_is(mask wanted, char_type character) const override
    {
        if ((wanted & space) != 0 && (character == L'_' || character == L' '))
        {
            return character == L'_';
        }
        return std::ctype<wchar_t>::do_is(wanted, character);
    }
};

class OddLocale
{
public:
    OddLocale() : m_before(std::locale::global(std::locale(std::locale(), new OddSpaces))) {}
    OddLocale(const OddLocale&) = delete;
    OddLocale& operator=(const OddLocale&) = delete;
    ~OddLocale() { std::locale::global(m_before); }

private:
    std::locale m_before;
};

TEST(WhiteSpace, IsThatOfTheClassicLocaleAtFirst)
{
    const WhiteSpace whiteSpace;
    for (unsigned code = 0; code <= 0xFFFF; ++code)
    {
        const auto character = static_cast<wchar_t>(code);
        const bool expected = character == L' ' || (character >= L'\t' && character <= L'\r');
        ASSERT_EQ(whiteSpace.contains(character), expected) << code;
    }
}

TEST(WhiteSpace, IsThatOfTheGlobalLocaleAtConstruction)
{
    const WhiteSpace before;
    const OddLocale locale;
    const WhiteSpace odd;
    EXPECT_TRUE(odd.contains(L'_'));
    EXPECT_TRUE(odd.contains(L'\t'));
    EXPECT_FALSE(odd.contains(L' '));
    EXPECT_FALSE(odd.contains(L'a'));
    EXPECT_FALSE(before.contains(L'_'));
    EXPECT_TRUE(before.contains(L' '));
}

TEST(WhiteSpace, IsKeptWhenTheLocaleIsDestroyed)
{
    const WhiteSpace odd = []
    {
        const OddLocale locale;
        return WhiteSpace();
    }();
    EXPECT_TRUE(odd.contains(L'_'));
    EXPECT_FALSE(odd.contains(L' '));
    const OptionArgument parts = splitOptionArgument(L"--name__ value", odd);
    EXPECT_EQ(parts.name, HashedText(L"name"));
    EXPECT_EQ(parts.value, L" value");
    EXPECT_EQ(splitOptionArgument(L"--na me=x", odd).name, HashedText(L"na me"));
}

} // namespace
