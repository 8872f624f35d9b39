// Event handlers that query the result being filled, create help texts, or parse.
#include <string>
#include <vector>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;

class HandlersThatCallBack : public testing::Test
{
protected:
    HandlersThatCallBack()
    {
        host.addOption(L"name,n");
        host.addOption(L"other");
        host.parser().addEventHandler(&handler);
    }

    Events events;
    RecordingHandler handler{events};
    Host host{flag_unknown_is_error};
    int depth = 0;
};

} // namespace

TEST_F(HandlersThatCallBack, TheResultShowsTheArgumentsBeforeTheOneBeingParsed)
{
    std::vector<Texts> seen;
    handler.answerValue = [&](const wchar_t*, const ValueRecord&)
    {
        seen.push_back(host.texts(L"n"));
        return true;
    };
    EXPECT_EQ(host.parse({L"--name=a,b", L"--name=c"}), result_success);
    EXPECT_EQ(seen, (std::vector<Texts>{{}, {}, {L"a", L"b"}}));
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a", L"b", L"c"}));
}

TEST_F(HandlersThatCallBack, AWalkBegunBeforeTheParseReachesTheNewValues)
{
    EXPECT_EQ(host.parse({L"--name=a"}), result_success);
    Value value;
    ASSERT_EQ(host.result().getFirstValue(&value, L"name", 0, no_position), result_success);
    Texts walked;
    handler.answerUnknown = [&](const wchar_t*)
    {
        while (host.result().getNextValue(&value, L"name") == result_success)
        {
            walked.emplace_back(value.as<const wchar_t*>());
        }
        return false;
    };
    EXPECT_EQ(host.parse({L"--name=b,c,d,e,f,g,h", L"stop", L"--name=i", L"stop"}), result_success);
    EXPECT_EQ(walked, (Texts{L"b", L"c", L"d", L"e", L"f", L"g", L"h", L"i"}));
}

TEST_F(HandlersThatCallBack, HelpAndQueriesWorkInsideAnEvent)
{
    const std::wstring help = host.parser().showFullHelp(false);
    int calls = 0;
    const auto query = [&](const wchar_t*)
    {
        ++calls;
        EXPECT_EQ(host.parser().showFullHelp(false), help);
        EXPECT_STREQ(host.parser().showTopicHelp(L"nothing", false),
                     L"Help for nothing not available.Please use one of the following topics:\n");
        EXPECT_TRUE(host.parser().hasOption(L"other", false, nullptr));
        EXPECT_STREQ(host.parser().getErrorMessage(), L"");
        return false;
    };
    handler.answerOption = query;
    handler.answerUnknown = query;
    EXPECT_EQ(host.parse({L"--name=a", L"unknown"}), result_success);
    EXPECT_EQ(calls, 2);
}

TEST_F(HandlersThatCallBack, AParseInsideAnEventFillsItsOwnResult)
{
    const ResultOwner inner = createResult(host.parser());
    handler.answerValue = [&](const wchar_t*, const ValueRecord&)
    {
        if (depth++ == 0)
        {
            EXPECT_EQ(
                toolbox::parse(host.parser(), {L"--name=inner,deep", L"--other=x"}, inner.get()),
                result_success);
        }
        return true;
    };
    EXPECT_EQ(host.parse({L"--name=a,b", L"--other=y"}), result_success);
    EXPECT_EQ(host.texts(L"n"), (Texts{L"a", L"b"}));
    EXPECT_EQ(host.texts(L"other"), Texts{L"y"});
    EXPECT_EQ(readTexts(*inner, L"n"), (Texts{L"inner", L"deep"}));
    EXPECT_EQ(readTexts(*inner, L"other"), Texts{L"x"});
}

TEST_F(HandlersThatCallBack, AParseInsideAnEventMayFillTheSameResult)
{
    handler.answerOption = [&](const wchar_t*)
    {
        if (depth++ == 0)
        {
            EXPECT_EQ(host.parse({L"--name=inner"}), result_success);
        }
        return true;
    };
    EXPECT_EQ(host.parse({L"--name=a", L"--name=b"}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"inner", L"a", L"b"}));
}

TEST_F(HandlersThatCallBack, AFailedParseInsideAnEventSetsTheMessage)
{
    handler.answerOption = [&](const wchar_t*)
    {
        if (depth++ == 0)
        {
            EXPECT_EQ(toolbox::parse(host.parser(), {L"--unknown"}, nullptr),
                      result_invalid_arguments);
        }
        return true;
    };
    EXPECT_EQ(host.parse({L"--name=a", L"--name=b"}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a", L"b"}));
    EXPECT_EQ(host.message(), L"Unknown option: --unknown");
}

TEST_F(HandlersThatCallBack, AnExceptionInAnInnerParseDoesNotReachTheOuterOne)
{
    result_t inner = result_success;
    handler.answerOption = [&](const wchar_t*) -> bool
    {
        if (depth++ == 0)
        {
            inner = toolbox::parse(host.parser(), {L"--other=x"}, nullptr);
            return true;
        }
        if (depth == 2)
        {
            throw 1;
        }
        return true;
    };
    EXPECT_EQ(host.parse({L"--name=a", L"--name=b"}), result_success);
    EXPECT_EQ(inner, result_unknown_exception);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a", L"b"}));
}

TEST_F(HandlersThatCallBack, AResultMayBeReleasedOnceItsParseIsOver)
{
    handler.answerOption = [&](const wchar_t*)
    {
        const ResultOwner shortLived = createResult(host.parser());
        return shortLived->isPresent(L"name", 0, no_position) == 0;
    };
    EXPECT_EQ(host.parse({L"--name=a", L"--other=b"}), result_success);
    EXPECT_EQ(host.texts(L"other"), Texts{L"b"});
}
