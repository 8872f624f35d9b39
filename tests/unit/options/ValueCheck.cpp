// The check of one value against what its option allows.
#include "options/ValueCheck.h"

#include <string>

#include "options/OptionDescription.h"
#include "options/ValueConversion.h"
#include "support/memory/Garbage.h"
#include "support/memory/SharedTexts.h"

#include "ConsoleCapture.h"
#include "HeapOnly.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;
using toolbox::toUtf8;
using vexkit2::variant_t;

const OptionGroup no_group;

// As a parse treats a text.
ValueVerdict convertAndCheck(const OptionDescription& option, std::wstring_view text,
                             variant_t& value, SharedTexts* texts = nullptr)
{
    value = convertValue(option.valueType, text, texts);
    return checkValue(option, text, value, texts);
}

class ValueCheck : public testing::Test
{
protected:
    explicit ValueCheck(std::int32_t type = value_type_string)
    {
        option.addName(L"mode").addName(L"m");
        option.valueType = type;
    }

    ValueVerdict check(std::wstring_view text)
    {
        value = variant_t();
        warning = toolbox::captureError([&] { verdict = convertAndCheck(option, text, value); });
        return verdict;
    }

    // Accepted unchanged: the value is the one written, and no warning is printed.
    void expectAccepted(std::wstring_view text, const variant_t& expected)
    {
        EXPECT_EQ(check(text), ValueVerdict::accepted) << toUtf8(text);
        EXPECT_EQ(value, expected) << toUtf8(text);
        EXPECT_EQ(value.kind(), option.valueType) << toUtf8(text);
        EXPECT_EQ(warning, "") << toUtf8(text);
    }
    void expectChanged(std::wstring_view text, const variant_t& expected,
                       const char* expectedWarning)
    {
        EXPECT_EQ(check(text), ValueVerdict::changed) << toUtf8(text);
        EXPECT_EQ(value, expected) << toUtf8(text);
        EXPECT_EQ(warning, expectedWarning) << toUtf8(text);
    }
    void expectRejected(std::wstring_view text, const wchar_t* expected)
    {
        EXPECT_TRUE(isRejected(check(text))) << toUtf8(text);
        EXPECT_EQ(rejectionMessage(verdict, option, text), expected) << toUtf8(text);
        EXPECT_EQ(warning, "") << toUtf8(text);
    }

    Garbage pool{unit::heap_only};
    OptionDescription option{no_group, false, pool};
    ValueVerdict verdict = ValueVerdict::refused;
    variant_t value;
    std::string warning;
};

class ValueCheckOfIntegers : public ValueCheck
{
protected:
    ValueCheckOfIntegers() : ValueCheck(value_type_integer) {}
};

TEST_F(ValueCheck, EverythingIsAllowedWithoutAList)
{
    expectAccepted(L"anything", variant_t(L"anything"));
    expectAccepted(L"", variant_t(L""));
}

TEST_F(ValueCheck, DeprecatedValuesNeedAList)
{
    option.addDeprecatedValue(variant_t(L"old"), variant_t(L"new"));
    expectAccepted(L"old", variant_t(L"old"));
}

TEST_F(ValueCheck, ExactMatchIsTakenBeforeAnAbbreviation)
{
    option.addAllowedValue(variant_t(L"faster")).addAllowedValue(variant_t(L"fast"));
    expectAccepted(L"fast", variant_t(L"fast"));
    expectChanged(L"faste", variant_t(L"faster"), "");
    EXPECT_EQ(value.kind(), 13);
    expectRejected(L"f", L"Ambiguous value for option 'mode'. Possible values follows: 'faster', "
                         L"'fast'");
}

TEST_F(ValueCheck, CompletedTextIsOwnedByTheValue)
{
    {
        OptionDescription shortLived(no_group, false, pool);
        shortLived.valueType = value_type_string;
        shortLived.addAllowedValue(variant_t(L"fast"));
        EXPECT_EQ(convertAndCheck(shortLived, L"f", value), ValueVerdict::changed);
    }
    EXPECT_EQ(value, variant_t(L"fast"));
}

TEST_F(ValueCheck, ReferencesAndNarrowTextsAreCompletedToOwnedText)
{
    option.addAllowedValue(variant_t::reference(L"reference")).addAllowedValue(variant_t("narrow"));
    expectAccepted(L"reference", variant_t(L"reference"));
    expectChanged(L"re", variant_t(L"reference"), "");
    EXPECT_EQ(value.kind(), 13);
    expectChanged(L"narrow", variant_t(L"narrow"), "");
    expectChanged(L"n", variant_t(L"narrow"), "");
    EXPECT_EQ(value.kind(), 13);
}

TEST_F(ValueCheck, ValueOutsideTheListIsRefusedWithTheList)
{
    option.addAllowedValue(variant_t(L"fast"))
        .addAllowedValue(variant_t(2))
        .addAllowedValue(variant_t(2.5))
        .addDeprecatedValue(variant_t(L"old"), variant_t(L"fast"));
    expectRejected(L"x", L"Option 'mode' does not allow value 'x'. Possible values follows: "
                         L"'fast', '2', '2.5'");
    expectRejected(L"Fast", L"Option 'mode' does not allow value 'Fast'. Possible values follows: "
                            L"'fast', '2', '2.5'");
}

TEST_F(ValueCheck, DeprecatedValueIsReplacedWithAWarning)
{
    option.addAllowedValue(variant_t(L"fast"))
        .addDeprecatedValue(variant_t(L"quick"), variant_t(L"fast"));
    expectChanged(L"quick", variant_t(L"fast"),
                  "Warning: 'quick' argument is deprecated for the option '-mode'. Use the 'fast' "
                  "argument instead.\n");
    expectChanged(L"qu", variant_t(L"fast"),
                  "Warning: 'quick' argument is deprecated for the option '-mode'. Use the 'fast' "
                  "argument instead.\n");
    expectAccepted(L"fast", variant_t(L"fast"));
}

TEST_F(ValueCheck, AllowedValueMayBeDeprecatedToo)
{
    option.addAllowedValue(variant_t(L"old"))
        .addAllowedValue(variant_t(L"new"))
        .addDeprecatedValue(variant_t(L"old"), variant_t(L"new"));
    expectChanged(L"old", variant_t(L"new"),
                  "Warning: 'old' argument is deprecated for the option '-mode'. Use the 'new' "
                  "argument instead.\n");
    // Declared in both lists, it is two candidates for an abbreviation.
    expectRejected(L"ol", L"Ambiguous value for option 'mode'. Possible values follows: 'old', "
                          L"'new'");
}

TEST_F(ValueCheck, ReplacementNeedNotBeAllowedNorOfTheType)
{
    option.addAllowedValue(variant_t(L"a")).addDeprecatedValue(variant_t(L"old"), variant_t(7));
    expectChanged(L"old", variant_t(7),
                  "Warning: 'old' argument is deprecated for the option '-mode'. Use the '7' "
                  "argument instead.\n");
    EXPECT_EQ(value.kind(), 6);
}

TEST_F(ValueCheck, EmptyTextBeginsEveryCandidate)
{
    option.addAllowedValue(variant_t(L"only"));
    expectChanged(L"", variant_t(L"only"), "");
    option.addAllowedValue(variant_t(L"other"));
    expectRejected(L"",
                   L"Ambiguous value for option 'mode'. Possible values follows: 'only', 'other'");
    option.addAllowedValue(variant_t(L""));
    expectAccepted(L"", variant_t(L""));
}

TEST_F(ValueCheckOfIntegers, TextThatDoesNotConvertIsRefused)
{
    option.addAllowedValue(variant_t(1));
    expectRejected(L"abc",
                   L"Option 'mode' can not parse 'abc' value, requires a type 'integer' here.");
    expectRejected(L"", L"Option 'mode' can not parse '' value, requires a type 'integer' here.");
}

TEST_F(ValueCheckOfIntegers, NumbersAreNotAbbreviated)
{
    option.addAllowedValue(variant_t(10)).addAllowedValue(variant_t(2));
    expectRejected(L"1",
                   L"Option 'mode' does not allow value '1'. Possible values follows: '10', '2'");
    expectAccepted(L"+010", variant_t(10));
}

TEST_F(ValueCheckOfIntegers, ValuesAreComparedAcrossKinds)
{
    option.addAllowedValue(variant_t(2.0)).addAllowedValue(variant_t(vexkit2::u64_t{3}));
    option.addDeprecatedValue(variant_t(vexkit2::s64_t{4}), variant_t(2));
    expectAccepted(L"2", variant_t(2));
    expectAccepted(L"3", variant_t(3));
    expectChanged(L"4", variant_t(2),
                  "Warning: '4' argument is deprecated for the option '-mode'. Use the '2' "
                  "argument instead.\n");
}

TEST(ValueCheckOfNamelessOption, MessagesHaveAnEmptyName)
{
    Garbage pool{unit::heap_only};
    OptionDescription option(no_group, false, pool);
    option.valueType = value_type_double;
    variant_t value;
    EXPECT_EQ(convertAndCheck(option, L"x", value), ValueVerdict::unreadable);
    EXPECT_EQ(rejectionMessage(ValueVerdict::unreadable, option, L"x"),
              L"Option '' can not parse 'x' value, requires a type 'double' here.");
}

} // namespace
