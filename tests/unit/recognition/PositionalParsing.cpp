// Recognition and parsing of positional arguments.
#include "recognition/PositionalOptionsParser.h"

#include "Recognition.h"

namespace
{

using namespace kexa_3_3;
using toolbox::toUtf8;
using unit::Texts;

class PositionalParsing : public unit::RecognitionTest
{
protected:
    Outcome parse(const Texts& arguments, std::uint32_t flags = 0)
    {
        PositionalOptionsParser parser(&handler, pool, flags);
        return run(parser, arguments);
    }
    int recognize(const std::wstring& argument, std::uint32_t flags = 0)
    {
        PositionalOptionsParser parser(&handler, pool, flags);
        unit::GivenArguments given({argument});
        const ArgumentQueue queue(given);
        std::wstring message;
        return parser.recognize(queue, options, message);
    }
};

TEST_F(PositionalParsing, NothingIsClaimedWithoutAPositionalOption)
{
    add(L"name");
    options.registerSwitch(L"action,kexa_positional_option", L"", 0, L"").option->setMarked();
    for (const std::uint32_t flags : {0U, 8U, 16U, 24U})
    {
        for (const wchar_t* const argument : {L"", L"x", L"-x", L"--"})
        {
            EXPECT_EQ(recognize(argument, flags), 1) << toUtf8(argument) << ", flags " << flags;
        }
    }
}

TEST_F(PositionalParsing, EverythingIsClaimedWithOne)
{
    add(L"name");
    add(L"path").addKeywords(L"kexa_positional_option");
    for (const std::uint32_t flags : {0U, 2U, 4U, 16U, 32U})
    {
        for (const wchar_t* const argument : {L"", L"x", L"-", L"-x", L"--name=1", L"\u2014x"})
        {
            EXPECT_EQ(recognize(argument, flags), 0) << toUtf8(argument) << ", flags " << flags;
        }
    }
}

TEST_F(PositionalParsing, FlagEightDeclinesWhatBeginsWithAHyphen)
{
    add(L"path").setMarked();
    for (const wchar_t* const argument : {L"-", L"-x", L"--name=1"})
    {
        EXPECT_EQ(recognize(argument, 8), 1) << toUtf8(argument);
        EXPECT_EQ(recognize(argument, 8 | 4), 1) << toUtf8(argument);
    }
    for (const wchar_t* const argument : {L"", L"x", L"x-", L"\u2014x", L" -x"})
    {
        EXPECT_EQ(recognize(argument, 8), 0) << toUtf8(argument);
    }
}

TEST_F(PositionalParsing, FirstPositionalOptionOfTheTableGetsTheValue)
{
    add(L"name");
    OptionDescription& path = add(L"path,p");
    add(L"other").setMarked();
    path.setMarked(); // marked later than the other, but declared before it
    const Outcome outcome = parse({L"--name=a b", L"next"});
    EXPECT_EQ(outcome.recognized, 0);
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.optionIndex, 1);
    EXPECT_EQ(outcome.message, L"");
    EXPECT_EQ(outcome.rest, (Texts{L"next"}));
    EXPECT_EQ(collector.stored, (Texts{L"path [0 --name=a b=--name=a b]"}));
    EXPECT_EQ(handler.events, (Texts{L"option path", L"value path --name=a b 0"}));
}

TEST_F(PositionalParsing, ValueIsSplitAtTheSeparator)
{
    add(L"path").setMarked();
    EXPECT_EQ(parse({L",a,,b", L"next"}).rest, (Texts{L"next"}));
    EXPECT_EQ(collector.stored, (Texts{L"path [0 a=a, 1 b=b]"}));
}

TEST_F(PositionalParsing, EmptyArgumentIsAnOccurrenceWithoutAValue)
{
    add(L"path").setMarked();
    setNextSequenceNumber(5);
    EXPECT_EQ(parse({L""}).code, 0);
    EXPECT_EQ(collector.stored, (Texts{L"path [5]"}));
    EXPECT_EQ(nextSequenceNumber(), 5);
    EXPECT_EQ(handler.events, (Texts{L"option path"}));
}

TEST_F(PositionalParsing, FlagSixteenTakesAllArguments)
{
    add(L"path").setMarked();
    const Outcome outcome = parse({L"a", L"-b", L"--", L"", L"c,d"}, 16);
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.optionIndex, 0);
    EXPECT_EQ(outcome.rest, Texts());
    EXPECT_EQ(collector.stored, (Texts{L"path [0 a=a]", L"path [1 -b=-b]", L"path [2 --=--]",
                                       L"path [3]", L"path [3 c=c, 4 d=d]"}));
    EXPECT_EQ(handler.events.size(), 10U);
}

TEST_F(PositionalParsing, FlagEightDoesNotLimitFlagSixteen)
{
    add(L"path").setMarked();
    EXPECT_EQ(parse({L"a", L"-b"}, 8 | 16).rest, Texts());
    EXPECT_EQ(collector.stored, (Texts{L"path [0 a=a]", L"path [1 -b=-b]"}));
}

TEST_F(PositionalParsing, FailureKeepsTheArgumentAndThoseBehindIt)
{
    add(L"size", value_type_integer).setMarked();
    const Outcome outcome = parse({L"1", L"2", L"x", L"3"}, 16);
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.optionIndex, 0);
    EXPECT_EQ(outcome.message, L"Value validation problem in argument 'x': Option 'size' can not "
                               L"parse 'x' value, requires a type 'integer' here.");
    EXPECT_EQ(outcome.rest, (Texts{L"x", L"3"}));
    EXPECT_EQ(collector.stored, (Texts{L"size [0 1=1]", L"size [1 2=2]"}));
}

TEST_F(PositionalParsing, RefusalIsPassedOn)
{
    add(L"path").setMarked();
    handler.judge = [](const ValueRecord&)
    {
        return false;
    };
    const Outcome outcome = parse({L"a,b", L"c"});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.message, L"Value 'a,b' is not valid for option 'path' in argument 'a,b'");
    EXPECT_EQ(outcome.rest, (Texts{L"a,b", L"c"}));
    EXPECT_EQ(collector.stored, Texts());
}

} // namespace
