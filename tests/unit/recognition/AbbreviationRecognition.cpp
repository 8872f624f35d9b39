// Arguments that the abbreviation parser recognizes.
#include "recognition/AbbreviationParser.h"

#include <locale>

#include "Recognition.h"

namespace
{

using namespace kexa_3_3;
using toolbox::toUtf8;
using unit::Texts;

class AbbreviationRecognition : public unit::RecognitionTest
{
protected:
    int recognize(AbbreviationParser& parser, const std::wstring& argument)
    {
        unit::GivenArguments given({argument, L"next"});
        ArgumentQueue queue(given);
        std::wstring message;
        const int status = parser.recognize(queue, options, message);
        EXPECT_EQ(message, L"") << toUtf8(argument);
        EXPECT_EQ(unit::takeAll(queue), (Texts{argument, L"next"})) << toUtf8(argument);
        return status;
    }
    int recognize(const std::wstring& argument)
    {
        AbbreviationParser parser(&handler, pool, 0);
        return recognize(parser, argument);
    }
};

TEST_F(AbbreviationRecognition, ClaimsWhatBeginsWithAHyphenAndMatches)
{
    add(L"verbose,v", value_type_boolean);
    add(L"version");
    for (const wchar_t* const argument :
         {L"-v", L"--v", L"-v=", L"-v=1", L"--verbose", L"-verb", L"--vers=x", L"--vers x",
          L"--no-verb", L"\u2012v", L"\u2013v", L"\u2014v", L"\u2015v", L"\u2053v", L"\u2014-v",
          L"-\u2014v"})
    {
        EXPECT_EQ(recognize(argument), 0) << toUtf8(argument);
    }
}

TEST_F(AbbreviationRecognition, ClaimsWhatIsAmbiguous)
{
    add(L"verbose", value_type_boolean);
    add(L"version");
    for (const wchar_t* const argument : {L"--ver", L"--ver=1", L"-v", L"--", L"--=5", L"- x"})
    {
        EXPECT_EQ(recognize(argument), 0) << toUtf8(argument);
    }
}

TEST_F(AbbreviationRecognition, DeclinesEverythingElse)
{
    add(L"verbose,v", value_type_boolean);
    add(L"version");
    for (const wchar_t* const argument :
         {L"", L"-", L"\u2014", L"v", L"verbose", L"vv", L"--x", L"--verbosee", L"---v", L"---x",
          L"--Verbose", L"--no-vers", L"=v", L"/v", L"\u2212v", L"\u00ADv", L" -v", L"+v"})
    {
        EXPECT_EQ(recognize(argument), 1) << toUtf8(argument);
    }
}

TEST_F(AbbreviationRecognition, DeclinesEverythingWithoutOptions)
{
    for (const wchar_t* const argument : {L"--", L"---", L"-v", L"--=5", L"--no-"})
    {
        EXPECT_EQ(recognize(argument), 1) << toUtf8(argument);
    }
}

TEST_F(AbbreviationRecognition, NameMayBeginWithHyphens)
{
    add(L"-x");
    EXPECT_EQ(recognize(L"---x"), 0);
    EXPECT_EQ(recognize(L"---"), 0);
    EXPECT_EQ(recognize(L"--x"), 1);
}

TEST_F(AbbreviationRecognition, EarlierArgumentsHaveNoEffect)
{
    add(L"verbose", value_type_boolean);
    add(L"version");
    AbbreviationParser parser(&handler, pool, 0);
    EXPECT_EQ(recognize(parser, L"--ver"), 0);
    EXPECT_EQ(recognize(parser, L"--x"), 1);
    EXPECT_EQ(recognize(parser, L"--vers"), 0);
    EXPECT_EQ(recognize(parser, L"x"), 1);
    EXPECT_EQ(recognize(parser, L"-"), 1);

    EXPECT_EQ(recognize(parser, L"--ver"), 0);
    const Outcome outcome = run(parser, {L"--verbose"});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.optionIndex, 0);
    EXPECT_EQ(collector.stored, (Texts{L"verbose [0 1=1]"}));
}

// A locale facet in which "_" is white space.
class UnderscoreSpace final : public std::ctype<wchar_t>
{
protected:
    bool do_is(mask wanted, char_type character) const override
    {
        return ((wanted & space) != 0 && character == L'_') ||
               std::ctype<wchar_t>::do_is(wanted, character);
    }
};

TEST_F(AbbreviationRecognition, WhiteSpaceIsThatOfTheLocaleWhenTheRunBegins)
{
    add(L"name");
    const std::locale before = std::locale::global(std::locale(std::locale(), new UnderscoreSpace));
    AbbreviationParser parser(&handler, pool, 0);
    std::locale::global(before);
    EXPECT_EQ(run(parser, {L"--name__a_b"}).code, 0);
    EXPECT_EQ(run(parser, {L"--name a"}).code, 0);
    EXPECT_EQ(collector.stored, (Texts{L"name [0 a_b=a_b]", L"name [1 a=a]"}));
    EXPECT_EQ(recognize(L"--name_"), 1);
}

} // namespace
