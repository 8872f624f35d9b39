// The option that a typed name or abbreviation selects.
#include "recognition/BestMatch.h"

#include <string>
#include <vector>

#include "Recognition.h"

namespace
{

using namespace kexa_3_3;

class BestMatchTest : public unit::RecognitionTest
{
protected:
    [[nodiscard]] BestMatch find(const std::wstring& typedName) const
    {
        return findBestMatch(options.index(), HashedText(typedName));
    }

    // The name that matches, or "N matches".
    std::wstring match(const std::wstring& typedName)
    {
        const BestMatch match = find(typedName);
        if (match.count != 1)
        {
            return std::to_wstring(match.count) + L" matches";
        }
        return std::wstring(match.candidate);
    }
    std::size_t optionOf(const std::wstring& typedName) { return find(typedName).option; }
    std::wstring candidates(const std::wstring& typedName)
    {
        return listCandidates(options.index(), typedName);
    }
};

TEST_F(BestMatchTest, UniqueBeginningStandsForTheName)
{
    add(L"verbose,v2", value_type_boolean);
    add(L"version");
    EXPECT_EQ(match(L"verb"), L"verbose");
    EXPECT_EQ(optionOf(L"verb"), 0U);
    EXPECT_EQ(match(L"vers"), L"version");
    EXPECT_EQ(optionOf(L"vers"), 1U);
    EXPECT_EQ(match(L"v2"), L"v2");
    EXPECT_EQ(match(L"no-verb"), L"no-verbose");
    EXPECT_EQ(optionOf(L"no-verb"), 0U);
    EXPECT_EQ(match(L"no-v2"), L"no-v2");
}

TEST_F(BestMatchTest, WholeNameStandsForItselfThoughItBeginsOthers)
{
    add(L"version");
    add(L"ver,v");
    add(L"verb", value_type_boolean);
    EXPECT_EQ(match(L"ver"), L"ver");
    EXPECT_EQ(optionOf(L"ver"), 1U);
    EXPECT_EQ(match(L"v"), L"v");
    EXPECT_EQ(match(L"verb"), L"verb");
    EXPECT_EQ(optionOf(L"verb"), 2U);
    EXPECT_EQ(match(L"no-verb"), L"no-verb");
}

TEST_F(BestMatchTest, SharedBeginningIsAmbiguous)
{
    add(L"verbose", value_type_boolean);
    add(L"version");
    add(L"note,not");
    EXPECT_EQ(match(L"ver"), L"2 matches");
    EXPECT_EQ(candidates(L"ver"), L"'verbose', 'version'");
    EXPECT_EQ(match(L"no"), L"3 matches");
    EXPECT_EQ(candidates(L"no"), L"'no-verbose', 'note', 'not'");
    EXPECT_EQ(match(L""), L"5 matches");
    EXPECT_EQ(candidates(L""), L"'verbose', 'no-verbose', 'version', 'note', 'not'");
}

TEST_F(BestMatchTest, TwoNamesOfOneOptionAreTwoMatches)
{
    add(L"color,colour");
    EXPECT_EQ(match(L"col"), L"2 matches");
    EXPECT_EQ(candidates(L"col"), L"'color', 'colour'");
    EXPECT_EQ(match(L"colo"), L"2 matches");
    EXPECT_EQ(match(L"color"), L"color");
}

TEST_F(BestMatchTest, CaseCounts)
{
    add(L"Name");
    add(L"name");
    EXPECT_EQ(optionOf(L"N"), 0U);
    EXPECT_EQ(optionOf(L"n"), 1U);
    EXPECT_EQ(match(L"NAME"), L"0 matches");
}

TEST_F(BestMatchTest, OnlyBooleansHaveANegation)
{
    add(L"on", value_type_boolean);
    add(L"text", value_type_string);
    add(L"flag", value_type_none);
    options.registerSwitch(L"action", L"", value_type_boolean, L"");
    EXPECT_EQ(match(L"no-on"), L"no-on");
    EXPECT_EQ(match(L"no-t"), L"0 matches");
    EXPECT_EQ(match(L"no-f"), L"0 matches");
    EXPECT_EQ(match(L"no-a"), L"no-action");
    EXPECT_EQ(match(L"no-no-on"), L"0 matches");
}

TEST_F(BestMatchTest, EqualTextsAreOneWholeMatchButSeveralBeginnings)
{
    add(L"first,f").addName(L"same");
    add(L"second,s").addName(L"same");
    EXPECT_EQ(match(L"same"), L"same");
    EXPECT_EQ(optionOf(L"same"), 0U);
    EXPECT_EQ(match(L"sam"), L"2 matches");
    EXPECT_EQ(candidates(L"sam"), L"'same', 'same'");
}

TEST_F(BestMatchTest, NameThatReadsAsANegationBelongsToTheFirstInTableOrder)
{
    add(L"no-a");
    add(L"a", value_type_boolean);
    EXPECT_EQ(optionOf(L"no-a"), 0U);
    add(L"b", value_type_boolean);
    add(L"no-b");
    EXPECT_EQ(optionOf(L"no-b"), 2U);
    EXPECT_EQ(match(L"no-b"), L"no-b");
}

TEST_F(BestMatchTest, NothingMatchesWithoutOptions)
{
    EXPECT_EQ(match(L""), L"0 matches");
    EXPECT_EQ(match(L"a"), L"0 matches");
    EXPECT_EQ(candidates(L"a"), L"");
}

TEST_F(BestMatchTest, NegationAtTheBeginningIsReported)
{
    add(L"on", value_type_boolean);
    add(L"no-text");
    add(L"nothing");
    const auto negated = [this](const wchar_t* typedName)
    {
        return find(typedName).beginsWithNegation();
    };
    EXPECT_TRUE(negated(L"no-on"));
    EXPECT_TRUE(negated(L"no-o"));
    EXPECT_TRUE(negated(L"no-text"));
    EXPECT_TRUE(negated(L"no-t"));
    EXPECT_FALSE(negated(L"on"));
    EXPECT_FALSE(negated(L"o"));
    EXPECT_FALSE(negated(L"noth"));
}

} // namespace
