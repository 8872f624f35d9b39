// Storing a value: splitting, conversion, events, sequence numbers.
#include "recognition/ValueStoring.h"

#include <limits>

#include "recognition/PositionalOptionsParser.h"

#include "ConsoleCapture.h"
#include "Recognition.h"

namespace
{

using namespace kexa_3_3;
using toolbox::toUtf8;
using unit::Texts;
using vexkit2::variant_t;

// Taken during static initialization, before any test runs.
const std::int32_t first_sequence_number = nextSequenceNumber();

class ValueStoringTest : public unit::RecognitionTest
{
protected:
    int store(const OptionDescription& option, std::wstring_view value)
    {
        error.clear();
        return resultOf(storing.store({option, value, L"--argument"}, &collector, error));
    }

    PositionalOptionsParser parser{&handler, pool, 0};
    ValueStoring storing{parser};
    std::wstring error;
};

TEST_F(ValueStoringTest, CounterStartsAtZero)
{
    EXPECT_EQ(first_sequence_number, 0);
}

TEST_F(ValueStoringTest, PiecesAreTheMaximalRunsWithoutTheSeparator)
{
    const OptionDescription& option = add(L"o");
    const struct
    {
        const wchar_t* value;
        const wchar_t* stored;
    } rows[] = {{L"a", L"o [0 a=a]"},           {L"a,b", L"o [0 a=a, 1 b=b]"},
                {L"a,,b", L"o [0 a=a, 1 b=b]"}, {L",a,", L"o [0 a=a]"},
                {L" , ", L"o [0  = , 1  = ]"},  {L"a;b", L"o [0 a;b=a;b]"}};
    for (const auto& row : rows)
    {
        setNextSequenceNumber(0);
        collector.stored.clear();
        EXPECT_EQ(store(option, row.value), 0) << toUtf8(row.value);
        EXPECT_EQ(collector.stored, (Texts{row.stored}));
    }
}

TEST_F(ValueStoringTest, SeparatorIsThatOfTheOption)
{
    OptionDescription& option = add(L"o");
    option.setSeparator(L'\u2014');
    EXPECT_EQ(store(option, L"a,b\u2014c"), 0);
    option.setSeparator(0);
    EXPECT_EQ(store(option, L",a\u2014b,"), 0);
    EXPECT_EQ(collector.stored, (Texts{L"o [0 a,b=a,b, 1 c=c]", L"o [2 ,a\u2014b,=,a\u2014b,]"}));
}

TEST_F(ValueStoringTest, SeparatorsOnlyAreAnError)
{
    const OptionDescription& option = add(L"o,x");
    for (const wchar_t* const value : {L",", L",,,"})
    {
        EXPECT_EQ(store(option, value), 2) << toUtf8(value);
        EXPECT_EQ(error,
                  std::wstring(L"No value parsed in argument '") + value + L"' for option 'o'");
    }
    EXPECT_EQ(collector.stored, Texts());
    EXPECT_EQ(nextSequenceNumber(), 0);
}

TEST_F(ValueStoringTest, EmptyValueHasTheNextNumberWithoutTakingIt)
{
    const OptionDescription& option = add(L"o");
    setNextSequenceNumber(7);
    EXPECT_EQ(store(option, L""), 0);
    EXPECT_EQ(store(option, L""), 0);
    EXPECT_EQ(nextSequenceNumber(), 7);
    EXPECT_EQ(store(option, L"a"), 0);
    EXPECT_EQ(store(option, L""), 0);
    EXPECT_EQ(collector.stored, (Texts{L"o [7]", L"o [7]", L"o [7 a=a]", L"o [8]"}));
    EXPECT_EQ(handler.events, (Texts{L"value o a 7"}));
}

TEST_F(ValueStoringTest, CounterWrapsBeforeTheMarkForNoPosition)
{
    const OptionDescription& option = add(L"o");
    setNextSequenceNumber(no_position - 2);
    EXPECT_EQ(store(option, L"a,b,c"), 0);
    EXPECT_EQ(collector.stored, (Texts{L"o [2147483645 a=a, 2147483646 b=b, 0 c=c]"}));
    EXPECT_EQ(nextSequenceNumber(), 1);
    setNextSequenceNumber(no_position - 1);
    EXPECT_EQ(store(option, L""), 0);
    EXPECT_EQ(nextSequenceNumber(), no_position - 1);
    EXPECT_EQ(store(option, L"d"), 0);
    EXPECT_EQ(nextSequenceNumber(), 0);
}

TEST_F(ValueStoringTest, RefusedValueTakesANumberAndOneThatDoesNotConvertTakesNone)
{
    const OptionDescription& option = add(L"o", value_type_integer);
    EXPECT_EQ(store(option, L"1,x,3"), 2);
    EXPECT_EQ(error, L"Value validation problem in argument '--argument': Option 'o' can not parse "
                     L"'x' value, requires a type 'integer' here.");
    EXPECT_EQ(nextSequenceNumber(), 1);
    handler.judge = [](const ValueRecord& record)
    {
        return record.value == variant_t(1);
    };
    EXPECT_EQ(store(option, L"1,2,3"), 1);
    EXPECT_EQ(error, L"Value '1,2,3' is not valid for option 'o' in argument '--argument'");
    EXPECT_EQ(nextSequenceNumber(), 3);
    EXPECT_EQ(collector.stored, Texts());
    EXPECT_EQ(handler.events, (Texts{L"value o 1 0", L"value o 1 1", L"value o 2 2"}));
}

TEST_F(ValueStoringTest, FailedOccurrenceLeavesNothingForTheNext)
{
    const OptionDescription& option = add(L"o", value_type_integer);
    EXPECT_EQ(store(option, L"1,2,x"), 2);
    EXPECT_EQ(store(option, L"3"), 0);
    EXPECT_EQ(store(option, L""), 0);
    EXPECT_EQ(collector.stored, (Texts{L"o [2 3=3]", L"o [3]"}));
}

TEST_F(ValueStoringTest, TextIsThatOfTheFinalValue)
{
    OptionDescription& option = add(L"o");
    option.addAllowedValue(variant_t(L"fast"))
        .addAllowedValue(variant_t(L"slow"))
        .addDeprecatedValue(variant_t(L"lazy"), variant_t(L"slow"))
        .addDeprecatedValue(variant_t(L"nine"), variant_t(9))
        .addDeprecatedValue(variant_t(L"eight"), variant_t("8"));
    toolbox::captureError([&] { EXPECT_EQ(store(option, L"fast,f,la,nine,eight"), 0); });
    EXPECT_EQ(collector.stored,
              (Texts{L"o [0 fast=fast, 1 fast=fast, 2 slow=slow, 3 9=9, 4 8=8]"}));
    EXPECT_EQ(handler.events, (Texts{L"value o fast 0", L"value o fast 1", L"value o slow 2",
                                     L"value o 9 3", L"value o 8 4"}));
}

TEST_F(ValueStoringTest, TextOfANumberIsAsWritten)
{
    const OptionDescription& option = add(L"o", value_type_unsigned64);
    EXPECT_EQ(store(option, L"0x1F,1fh,+31, 31 "), 0);
    EXPECT_EQ(collector.stored, (Texts{L"o [0 0x1F=31, 1 1fh=31, 2 +31=31, 3  31 =31]"}));
}

TEST_F(ValueStoringTest, CollectorIsNotNeeded)
{
    const OptionDescription& option = add(L"o");
    EXPECT_EQ(storing.store({option, L"a,b", L"--argument"}, nullptr, error), ParseStatus::parsed);
    EXPECT_EQ(storing.store({option, L"", L"--argument"}, nullptr, error), ParseStatus::parsed);
    EXPECT_EQ(nextSequenceNumber(), 2);
    EXPECT_EQ(handler.events, (Texts{L"value o a 0", L"value o b 1"}));
}

TEST_F(ValueStoringTest, HandlerMayChangeTheOptionMeanwhile)
{
    OptionDescription& option = add(L"o");
    handler.judge = [&option](const ValueRecord&)
    {
        option.setSeparator(L';');
        return true;
    };
    EXPECT_EQ(store(option, L"a,b;c,d"), 0);
    EXPECT_EQ(collector.stored, (Texts{L"o [0 a=a, 1 b;c=b;c, 2 d=d]"}));
}

TEST_F(ValueStoringTest, RecordOfAHandlerNamesThePrimaryName)
{
    const OptionDescription& option = add(L"name,n");
    const wchar_t* seen = nullptr;
    handler.judge = [&seen](const ValueRecord& record)
    {
        seen = record.optionName;
        return true;
    };
    EXPECT_EQ(store(option, L"a"), 0);
    EXPECT_EQ(seen, option.primaryName().data());
}

} // namespace
