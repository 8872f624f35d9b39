// Parsing of arguments that the abbreviation parser recognized.
#include "recognition/AbbreviationParser.h"

#include <optional>
#include <stdexcept>

#include "Recognition.h"

namespace
{

using namespace kexa_3_3;
using toolbox::toUtf8;
using unit::Texts;

constexpr std::nullopt_t no_option = std::nullopt;

class AbbreviationParsing : public unit::RecognitionTest
{
protected:
    Outcome parse(const Texts& arguments)
    {
        AbbreviationParser parser(&handler, pool, 0);
        return run(parser, arguments);
    }

    // Expects a failure with this code and message that removes and stores nothing. no_option: the
    // argument names no single option.
    void expectFailure(const Texts& arguments, int code, std::optional<std::int64_t> optionIndex,
                       const std::wstring& message)
    {
        collector.stored.clear();
        const Outcome outcome = parse(arguments);
        EXPECT_EQ(outcome.recognized, 0) << toUtf8(arguments[0]);
        EXPECT_EQ(outcome.code, code) << toUtf8(arguments[0]);
        EXPECT_EQ(outcome.optionIndex, optionIndex.value_or(outcome.optionIndex))
            << toUtf8(arguments[0]);
        EXPECT_EQ(outcome.message, message);
        EXPECT_EQ(outcome.rest, arguments);
        EXPECT_EQ(collector.stored, Texts());
    }

    // Expects a success that stores this text and leaves these arguments.
    void expectStored(const Texts& arguments, std::int64_t optionIndex, const std::wstring& stored,
                      const Texts& rest)
    {
        setNextSequenceNumber(0);
        collector.stored.clear();
        const Outcome outcome = parse(arguments);
        EXPECT_EQ(outcome.recognized, 0) << toUtf8(arguments[0]);
        EXPECT_EQ(outcome.code, 0) << toUtf8(arguments[0]);
        EXPECT_EQ(outcome.optionIndex, optionIndex) << toUtf8(arguments[0]);
        EXPECT_EQ(outcome.message, L"") << toUtf8(arguments[0]);
        EXPECT_EQ(outcome.rest, rest) << toUtf8(arguments[0]);
        EXPECT_EQ(collector.stored, (Texts{stored})) << toUtf8(arguments[0]);
    }
};

TEST_F(AbbreviationParsing, TakesTheValueFromTheSameArgument)
{
    add(L"first");
    add(L"name,n");
    expectStored({L"--name=v", L"next"}, 1, L"name [0 v=v]", {L"next"});
    expectStored({L"-n=-5", L"next"}, 1, L"name [0 -5=-5]", {L"next"});
    expectStored({L"\u2014na \t v w"}, 1, L"name [0 v w=v w]", {});
}

TEST_F(AbbreviationParsing, TakesTheValueFromTheNextArgument)
{
    add(L"name,n");
    expectStored({L"--name", L"v", L"next"}, 0, L"name [0 v=v]", {L"next"});
    expectStored({L"--name=", L"v"}, 0, L"name [0 v=v]", {});
    expectStored({L"--name  ", L" v"}, 0, L"name [0  v= v]", {});
    expectStored({L"-n", L"\u2014v"}, 0, L"name [0 \u2014v=\u2014v]", {});
    expectStored({L"-n", L"="}, 0, L"name [0 ===]", {});
}

TEST_F(AbbreviationParsing, BooleanValueComesFromTheFormOfTheName)
{
    add(L"verbose,v", value_type_boolean);
    expectStored({L"--verbose", L"next"}, 0, L"verbose [0 1=1]", {L"next"});
    expectStored({L"-no-v"}, 0, L"verbose [0 0=0]", {});
    expectStored({L"--no-verb=", L"1"}, 0, L"verbose [0 0=0]", {L"1"});
    expectStored({L"--verb ", L"0"}, 0, L"verbose [0 1=1]", {L"0"});
}

TEST_F(AbbreviationParsing, OptionWithoutValueIsStoredWithoutOne)
{
    setNextSequenceNumber(0);
    add(L"flag", value_type_none);
    expectStored({L"--flag", L"next"}, 0, L"flag [0]", {L"next"});
    expectStored({L"--fl=", L"next"}, 0, L"flag [0]", {L"next"});
    EXPECT_EQ(handler.events, (Texts{L"option flag", L"option flag"}));
}

TEST_F(AbbreviationParsing, UnknownOptionIsReportedWhereItIsClaimed)
{
    add(L"-x", value_type_none);
    add(L"name");
    expectFailure({L"---x"}, 2, 0, L"Unknown option '---x'");
    expectFailure({L"---"}, 2, 0, L"Unknown option '---'");
    expectFailure({L"--"}, 2, no_option, L"Unknown option '--'");
    expectFailure({L"--=5"}, 2, no_option, L"Unknown option '--=5'");
    expectFailure({L"- name"}, 2, no_option, L"Unknown option '- name'");
    EXPECT_EQ(handler.events, Texts());
}

TEST_F(AbbreviationParsing, AmbiguityListsTheCandidates)
{
    add(L"verbose", value_type_boolean);
    add(L"version");
    expectFailure({L"--ver", L"next"}, 2, no_option,
                  L"Ambiguous option 'ver' in argument: '--ver', could be: 'verbose', 'version'");
    expectFailure({L"\u2014v=1"}, 2, no_option,
                  L"Ambiguous option 'v' in argument: '\u2014v=1', could be: 'verbose', 'version'");
    EXPECT_EQ(handler.events, Texts());
}

TEST_F(AbbreviationParsing, SuperfluousValueIsAnError)
{
    add(L"flag,f", value_type_none);
    add(L"verbose,v", value_type_boolean);
    expectFailure({L"-f=x"}, 2, 0, L"Option 'flag'does not requires a value in argument: '-f=x'");
    expectFailure({L"--verb=1", L"next"}, 2, 1,
                  L"Option 'verbose' is boolean and should be declared in form '--option' or "
                  L"'--no-option' in argument: '--verb=1'");
    expectFailure({L"--no-v 0"}, 2, 1,
                  L"Option 'verbose' is boolean and should be declared in form '--option' or "
                  L"'--no-option' in argument: '--no-v 0'");
    EXPECT_EQ(handler.events, Texts());
}

TEST_F(AbbreviationParsing, MissingValueIsAnError)
{
    add(L"name,n");
    expectFailure({L"--name"}, 2, 0, L"Option 'name' requires a value in argument: '--name'");
    expectFailure({L"-n="}, 2, 0, L"Option 'name' requires a value in argument: '-n='");
    expectFailure({L"-n", L"", L"v"}, 2, 0, L"Option 'name' requires a value in argument: '-n'");
    expectFailure({L"--na", L"-5", L"v"}, 2, 0,
                  L"Option 'name' received value from the next argument: '-5', but it seems to be "
                  L"an option. Use '-option=value' declaration form or make sure that value is not "
                  L"missed");
    expectFailure({L"--na", L"--"}, 2, 0,
                  L"Option 'name' received value from the next argument: '--', but it seems to be "
                  L"an option. Use '-option=value' declaration form or make sure that value is not "
                  L"missed");
    EXPECT_EQ(handler.events, Texts());
}

TEST_F(AbbreviationParsing, FailureOfStoringIsPassedOn)
{
    add(L"size,s", value_type_integer);
    expectFailure({L"-s", L"big"}, 2, 0,
                  L"Value validation problem in argument '-s': Option 'size' can not parse 'big' "
                  L"value, requires a type 'integer' here.");
    expectFailure({L"-s=,"}, 2, 0, L"No value parsed in argument ',' for option 'size'");
    handler.judge = [](const ValueRecord& record)
    {
        return record.value != vexkit2::variant_t(2);
    };
    expectFailure({L"--size=1,2,3", L"next"}, 1, 0,
                  L"Value '1,2,3' is not valid for option 'size' in argument '--size=1,2,3'");
    EXPECT_EQ(handler.events, (Texts{L"option size", L"option size", L"option size",
                                     L"value size 1 0", L"value size 2 1"}));
}

TEST_F(AbbreviationParsing, EventsComeBeforeStoring)
{
    add(L"name");
    Texts storedAtEvent;
    handler.judge = [&](const ValueRecord&)
    {
        storedAtEvent = collector.stored;
        return true;
    };
    EXPECT_EQ(parse({L"--name=a,b"}).code, 0);
    EXPECT_EQ(handler.events, (Texts{L"option name", L"value name a 0", L"value name b 1"}));
    EXPECT_EQ(storedAtEvent, Texts());
    EXPECT_EQ(collector.stored, (Texts{L"name [0 a=a, 1 b=b]"}));
}

TEST_F(AbbreviationParsing, ExceptionOfAHandlerLeavesTheArguments)
{
    add(L"name");
    handler.judge = [](const ValueRecord&) -> bool
    {
        throw std::runtime_error("handler");
    };
    unit::GivenArguments given({L"--name", L"v"});
    AbbreviationParser parser(&handler, pool, 0);
    ArgumentQueue queue(given);
    std::wstring message;
    std::int64_t optionIndex = -1;
    ASSERT_EQ(parser.recognize(queue, options, message), 0);
    EXPECT_THROW(parser.parse(queue, &collector, options, optionIndex, message),
                 std::runtime_error);
    EXPECT_EQ(unit::takeAll(queue), (Texts{L"--name", L"v"}));
    EXPECT_EQ(collector.stored, Texts());
}

TEST_F(AbbreviationParsing, CollectorIsOptional)
{
    add(L"name");
    AbbreviationParser parser(&handler, pool, 0);
    unit::GivenArguments given({L"--name", L"v", L"next"});
    ArgumentQueue queue(given);
    std::wstring message;
    std::int64_t optionIndex = -1;
    ASSERT_EQ(parser.recognize(queue, options, message), 0);
    EXPECT_EQ(parser.parse(queue, nullptr, options, optionIndex, message), ParseStatus::parsed);
    EXPECT_EQ(unit::takeAll(queue), (Texts{L"next"}));
    EXPECT_EQ(handler.events, (Texts{L"option name", L"value name v 0"}));
}

TEST_F(AbbreviationParsing, HandlerIsOptional)
{
    add(L"name");
    AbbreviationParser parser(nullptr, pool, 0);
    unit::GivenArguments given({L"--name=v,w", L"next"});
    ArgumentQueue queue(given);
    std::wstring message;
    std::int64_t optionIndex = -1;
    ASSERT_EQ(parser.recognize(queue, options, message), 0);
    EXPECT_EQ(parser.parse(queue, &collector, options, optionIndex, message), ParseStatus::parsed);
    EXPECT_EQ(unit::takeAll(queue), (Texts{L"next"}));
    EXPECT_EQ(collector.stored, (Texts{L"name [0 v=v, 1 w=w]"}));
}

} // namespace
