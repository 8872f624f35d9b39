// Event handlers that add and remove handlers, including themselves, while they are called.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

// Three handlers with ascending addresses, because handlers are called in the order of their
// addresses.
class HandlersThatChangeHandlers : public testing::Test
{
protected:
    HandlersThatChangeHandlers() { host.addOption(L"name"); }

    void registerHandlers(std::initializer_list<std::size_t> indices)
    {
        for (const std::size_t index : indices)
        {
            ASSERT_TRUE(host.parser().addEventHandler(&handlers[index]));
        }
    }

    // Makes a handler run an action at each of its events.
    void at(std::size_t index, const std::function<void()>& action)
    {
        handlers[index].answerOption = [action](const wchar_t*)
        {
            action();
            return true;
        };
        handlers[index].answerValue = [action](const wchar_t*, const ValueRecord&)
        {
            action();
            return true;
        };
        handlers[index].answerUnknown = handlers[index].answerOption;
    }

    Events eventsOf(std::initializer_list<const wchar_t*> arguments)
    {
        events.clear();
        EXPECT_EQ(host.parse(arguments), result_success);
        return events;
    }

    Events events;
    RecordingHandler handlers[3] = {RecordingHandler(events, L"1: "),
                                    RecordingHandler(events, L"2: "),
                                    RecordingHandler(events, L"3: ")};
    Host host;
};

} // namespace

TEST_F(HandlersThatChangeHandlers, OneThatRemovesItselfIsNotCalledAgain)
{
    registerHandlers({0, 1, 2});
    at(1, [this] { EXPECT_TRUE(host.parser().removeEventHandler(&handlers[1])); });
    EXPECT_EQ(eventsOf({L"x", L"y"}), (Events{L"1: unknown x", L"2: unknown x", L"3: unknown x",
                                              L"1: unknown y", L"3: unknown y"}));
}

TEST_F(HandlersThatChangeHandlers, OneThatRemovesItselfMayBeDestroyedAtOnce)
{
    registerHandlers({0, 2});
    auto dying = std::make_unique<RecordingHandler>(events, L"dying: ");
    ASSERT_TRUE(host.parser().addEventHandler(dying.get()));
    dying->answerUnknown = [&](const wchar_t*)
    {
        // Destroying the handler also destroys the std::function that is running, so it is moved to
        // a local variable first.
        IParser& parser = host.parser();
        RecordingHandler* const self = dying.release();
        parser.removeEventHandler(self);
        std::function<bool(const wchar_t*)> running;
        running.swap(self->answerUnknown);
        delete self;
        return true;
    };
    // The address of this handler may be below or above the others, so the order of calls is
    // unknown.
    const Events all = eventsOf({L"x", L"y"});
    EXPECT_EQ(std::count(all.begin(), all.end(), L"dying: unknown x"), 1);
    EXPECT_EQ(std::count(all.begin(), all.end(), L"dying: unknown y"), 0);
    EXPECT_EQ(std::count(all.begin(), all.end(), L"3: unknown y"), 1);
    EXPECT_EQ(all.size(), 5U);
}

TEST_F(HandlersThatChangeHandlers, OneThatIsRemovedBeforeItsTurnIsNotCalled)
{
    registerHandlers({0, 1, 2});
    at(0, [this] { host.parser().removeEventHandler(&handlers[1]); });
    EXPECT_EQ(eventsOf({L"x"}), (Events{L"1: unknown x", L"3: unknown x"}));
}

TEST_F(HandlersThatChangeHandlers, OneThatIsRemovedAfterItsTurnIsNotCalledForTheNextEvent)
{
    registerHandlers({0, 1, 2});
    at(2, [this] { host.parser().removeEventHandler(&handlers[0]); });
    EXPECT_EQ(eventsOf({L"x", L"y"}), (Events{L"1: unknown x", L"2: unknown x", L"3: unknown x",
                                              L"2: unknown y", L"3: unknown y"}));
}

TEST_F(HandlersThatChangeHandlers, OneThatIsAddedAtAHigherAddressIsCalledForTheSameEvent)
{
    registerHandlers({0});
    at(0, [this] { host.parser().addEventHandler(&handlers[2]); });
    EXPECT_EQ(eventsOf({L"x"}), (Events{L"1: unknown x", L"3: unknown x"}));
}

TEST_F(HandlersThatChangeHandlers, OneThatIsAddedAtALowerAddressIsCalledForTheNextEvent)
{
    registerHandlers({2});
    at(2, [this] { host.parser().addEventHandler(&handlers[0]); });
    EXPECT_EQ(eventsOf({L"x", L"y"}), (Events{L"3: unknown x", L"1: unknown y", L"3: unknown y"}));
}

TEST_F(HandlersThatChangeHandlers, OneThatIsRemovedAndAddedInItsOwnCallIsNotCalledTwice)
{
    registerHandlers({1});
    at(1,
       [this]
       {
           host.parser().removeEventHandler(&handlers[1]);
           host.parser().addEventHandler(&handlers[1]);
       });
    EXPECT_EQ(eventsOf({L"x"}), (Events{L"2: unknown x"}));
}

TEST_F(HandlersThatChangeHandlers, AllMayRemoveEachOther)
{
    registerHandlers({0, 1, 2});
    at(0,
       [this]
       {
           for (RecordingHandler& handler : handlers)
           {
               host.parser().removeEventHandler(&handler);
           }
       });
    EXPECT_EQ(eventsOf({L"--name=a", L"x"}), (Events{L"1: option name"}));
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a"}));
}

TEST_F(HandlersThatChangeHandlers, ReturnValueOfARemovedHandlerCounts)
{
    registerHandlers({0, 1});
    handlers[0].answerValue = [this](const wchar_t*, const ValueRecord&)
    {
        host.parser().removeEventHandler(&handlers[0]);
        return false;
    };
    EXPECT_EQ(host.parse({L"--name=a"}), result_nothing);
    EXPECT_EQ(host.message(), L"Value 'a' is not valid for option 'name' in argument '--name=a'");
    EXPECT_EQ(events, (Events{L"1: option name", L"2: option name", L"1: value name 'a'"}));
}
