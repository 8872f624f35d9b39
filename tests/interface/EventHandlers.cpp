// Registration of event handlers, and the order and the effect of their calls.
#include <algorithm>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

// Three handlers in an array have ascending addresses. They are registered in another order, to
// show that events are sent by address.
class EventForwarding : public testing::Test
{
protected:
    EventForwarding()
    {
        for (const std::size_t index : {1U, 2U, 0U})
        {
            host.parser().addEventHandler(&handlers[index]);
        }
    }

    Events events;
    RecordingHandler handlers[3] = {RecordingHandler(events, L"1: "),
                                    RecordingHandler(events, L"2: "),
                                    RecordingHandler(events, L"3: ")};
    Host host{2};
    ValueRecord record{L"name", vexkit2::variant_t(7), 0};
};

class SilentHandler : public EventHandler
{
public:
    virtual ~SilentHandler() = default;
};

} // namespace

TEST(EventHandlerDefaults, ReturnTrueForEveryEvent)
{
    SilentHandler handler;
    const ValueRecord record{L"name", vexkit2::variant_t(), 0};
    EXPECT_TRUE(handler.onOptionParsed(L"name"));
    EXPECT_TRUE(handler.onValueParsed(L"name", &record));
    EXPECT_TRUE(handler.onUnknownArgument(L"x"));
}

TEST(EventHandlerDefaults, RefuseNoValueAndTakeNoArgument)
{
    SilentHandler handler;
    Host host(2);
    host.addOption(L"name");
    ASSERT_TRUE(host.parser().addEventHandler(&handler));
    EXPECT_EQ(host.parse({L"--name=a"}), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a"}));
    EXPECT_EQ(host.parse({L"x"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: x");
}

TEST(HandlerRegistration, ANewHandlerIsAccepted)
{
    SilentHandler handler;
    Host host;
    EXPECT_TRUE(host.parser().addEventHandler(&handler));
}

TEST(HandlerRegistration, ASecondRegistrationIsRefusedAndEveryEventComesOnce)
{
    Events events;
    RecordingHandler handler(events);
    Host host;
    host.addOption(L"name");
    EXPECT_TRUE(host.parser().addEventHandler(&handler));
    EXPECT_FALSE(host.parser().addEventHandler(&handler));
    EXPECT_EQ(host.parse({L"--name=a", L"x"}), 0);
    EXPECT_EQ(events, (Events{L"option name", L"value name 'a'", L"unknown x"}));
}

TEST(HandlerRegistration, NullIsNeverRegistered)
{
    Host host;
    EXPECT_FALSE(host.parser().addEventHandler(nullptr));
    EXPECT_FALSE(host.parser().removeEventHandler(nullptr));
    EXPECT_EQ(host.parse({L"x"}), 0);
}

TEST(HandlerRegistration, RemovingAnUnknownHandlerChangesNothing)
{
    Events events;
    RecordingHandler known(events);
    SilentHandler unknown;
    Host host;
    ASSERT_TRUE(host.parser().addEventHandler(&known));
    EXPECT_FALSE(host.parser().removeEventHandler(&unknown));
    EXPECT_EQ(host.parse({L"x"}), 0);
    EXPECT_EQ(events, (Events{L"unknown x"}));
}

TEST(HandlerRegistration, ARemovedHandlerGetsNoEvents)
{
    Events events;
    RecordingHandler handler(events);
    Host host;
    host.addOption(L"name");
    ASSERT_TRUE(host.parser().addEventHandler(&handler));
    EXPECT_TRUE(host.parser().removeEventHandler(&handler));
    EXPECT_EQ(host.parse({L"--name=a", L"x"}), 0);
    EXPECT_TRUE(events.empty());
    EXPECT_FALSE(host.parser().removeEventHandler(&handler));
}

TEST(HandlerRegistration, ARemovedHandlerMayBeRegisteredAgain)
{
    Events events;
    RecordingHandler handler(events);
    Host host;
    ASSERT_TRUE(host.parser().addEventHandler(&handler));
    ASSERT_TRUE(host.parser().removeEventHandler(&handler));
    EXPECT_TRUE(host.parser().addEventHandler(&handler));
    EXPECT_EQ(host.parse({L"x"}), 0);
    EXPECT_EQ(events, (Events{L"unknown x"}));
}

TEST(HandlerRegistration, OneHandlerMayBeRegisteredWithTwoParsers)
{
    Events events;
    RecordingHandler handler(events);
    Host first;
    Host second;
    EXPECT_TRUE(first.parser().addEventHandler(&handler));
    EXPECT_TRUE(second.parser().addEventHandler(&handler));
    EXPECT_EQ(first.parse({L"x"}), 0);
    EXPECT_EQ(second.parse({L"y"}), 0);
    EXPECT_EQ(events, (Events{L"unknown x", L"unknown y"}));
}

TEST(HandlerRegistration, AParserMayHandleTheEventsOfAnother)
{
    Events events;
    RecordingHandler handler(events);
    Host outer;
    Host inner;
    ASSERT_TRUE(outer.parser().addEventHandler(&handler));
    ASSERT_TRUE(inner.parser().addEventHandler(&outer.parser()));
    EXPECT_EQ(inner.parse({L"x"}), 0);
    EXPECT_EQ(events, (Events{L"unknown x"}));
}

TEST(EventForwardingWithoutHandlers, ReturnsTrue)
{
    Host host;
    const ValueRecord record{L"name", vexkit2::variant_t(), 0};
    EXPECT_TRUE(host.parser().onOptionParsed(L"name"));
    EXPECT_TRUE(host.parser().onValueParsed(L"name", &record));
    EXPECT_TRUE(host.parser().onUnknownArgument(L"x"));
}

TEST_F(EventForwarding, OptionsGoToHandlersByAscendingAddress)
{
    EXPECT_TRUE(host.parser().onOptionParsed(L"name"));
    EXPECT_EQ(events, (Events{L"1: option name", L"2: option name", L"3: option name"}));
}

TEST_F(EventForwarding, ValuesGoToHandlersByAscendingAddress)
{
    EXPECT_TRUE(host.parser().onValueParsed(L"name", &record));
    EXPECT_EQ(events, (Events{L"1: value name 7", L"2: value name 7", L"3: value name 7"}));
}

TEST_F(EventForwarding, UnknownArgumentsGoToHandlersByAscendingAddress)
{
    EXPECT_TRUE(host.parser().onUnknownArgument(L"x"));
    EXPECT_EQ(events, (Events{L"1: unknown x", L"2: unknown x", L"3: unknown x"}));
}

TEST_F(EventForwarding, ResultsOfTheOptionEventAreIgnored)
{
    handlers[0].answerOption = [](const wchar_t*)
    {
        return false;
    };
    EXPECT_TRUE(host.parser().onOptionParsed(L"name"));
    EXPECT_EQ(events, (Events{L"1: option name", L"2: option name", L"3: option name"}));
}

TEST_F(EventForwarding, ARefusedValueIsNotSentToHigherAddresses)
{
    handlers[1].answerValue = [](const wchar_t*, const ValueRecord&)
    {
        return false;
    };
    EXPECT_FALSE(host.parser().onValueParsed(L"name", &record));
    EXPECT_EQ(events, (Events{L"1: value name 7", L"2: value name 7"}));
}

TEST_F(EventForwarding, TheLastHandlerMayRefuseAValueToo)
{
    handlers[2].answerValue = [](const wchar_t*, const ValueRecord&)
    {
        return false;
    };
    EXPECT_FALSE(host.parser().onValueParsed(L"name", &record));
    EXPECT_EQ(events.size(), 3U);
}

TEST_F(EventForwarding, EveryHandlerGetsAnUnknownArgument)
{
    for (std::size_t taker = 0; taker < 3; ++taker)
    {
        SCOPED_TRACE(taker);
        events.clear();
        handlers[taker].answerUnknown = [](const wchar_t*)
        {
            return false;
        };
        EXPECT_FALSE(host.parser().onUnknownArgument(L"x"));
        EXPECT_EQ(events, (Events{L"1: unknown x", L"2: unknown x", L"3: unknown x"}));
        handlers[taker].answerUnknown = nullptr;
    }
}

TEST_F(EventForwarding, TheValueRecordIsPassedOnUnchanged)
{
    std::vector<const ValueRecord*> seen;
    for (RecordingHandler& handler : handlers)
    {
        handler.answerValue = [&seen](const wchar_t*, const ValueRecord& value)
        {
            seen.push_back(&value);
            return true;
        };
    }
    EXPECT_TRUE(host.parser().onValueParsed(L"name", &record));
    EXPECT_EQ(seen, (std::vector<const ValueRecord*>{&record, &record, &record}));
}

TEST_F(EventForwarding, TextsOutliveTheArgumentsOfTheCaller)
{
    std::vector<const wchar_t*> texts;
    const auto keep = [&texts](const wchar_t* text)
    {
        texts.push_back(text);
        return true;
    };
    handlers[0].answerOption = keep;
    handlers[0].answerValue = [keep](const wchar_t* name, const ValueRecord&)
    {
        return keep(name);
    };
    handlers[0].answerUnknown = keep;

    std::wstring text = L"option";
    host.parser().onOptionParsed(text.c_str());
    text = L"value";
    host.parser().onValueParsed(text.c_str(), &record);
    text = L"unknown";
    host.parser().onUnknownArgument(text.c_str());
    std::fill(text.begin(), text.end(), L'#');

    ASSERT_EQ(texts.size(), 3U);
    EXPECT_STREQ(texts[0], L"option");
    EXPECT_STREQ(texts[1], L"value");
    EXPECT_STREQ(texts[2], L"unknown");
}

TEST_F(EventForwarding, ANullTextBecomesAnEmptyOne)
{
    EXPECT_TRUE(host.parser().onOptionParsed(nullptr));
    EXPECT_TRUE(host.parser().onUnknownArgument(nullptr));
    EXPECT_EQ(events, (Events{L"1: option ", L"2: option ", L"3: option ", L"1: unknown ",
                              L"2: unknown ", L"3: unknown "}));
}
