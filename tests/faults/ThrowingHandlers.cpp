// Exceptions thrown by event handlers: how the parse ends, and the state of parser and result after
// it.
#include <functional>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

struct Thrown
{
    const char* what;
    std::function<void()> raise;
    result_t code;
    const wchar_t* message; // after a parse that failed for "before"
};

const std::vector<Thrown>& thrownByHandlers()
{
    static const std::vector<Thrown> table = {
        {"std::runtime_error", [] { throw std::runtime_error("handler"); },
         result_standard_exception, L"Unknown option: before"},
        {"std::bad_alloc", [] { throw std::bad_alloc(); }, result_standard_exception,
         L"Unknown option: before"},
        {"AssertionFailure", [] { vexkit2::variant_t(1).get<bool>(); }, result_standard_exception,
         L"Unknown option: before"},
        {"int", [] { throw 7; }, result_unknown_exception, L"Unidentified problem detected."},
        {"const char*", [] { throw "text"; }, result_unknown_exception,
         L"Unidentified problem detected."},
    };
    return table;
}

// A handler that throws once, at one of the three events. Parameter: the index of the event.
class ThrowingHandlers : public testing::TestWithParam<int>
{
protected:
    ThrowingHandlers()
    {
        host.addOption(L"name,n").addName(L"further");
        host.parser().addEventHandler(&handler);
    }

    void throwOnce(const std::function<void()>& raise)
    {
        const auto once = [this, raise]
        {
            if (!std::exchange(thrown, true))
            {
                raise();
            }
            return true;
        };
        thrown = false;
        handler.answerOption = nullptr;
        handler.answerValue = nullptr;
        handler.answerUnknown = nullptr;
        switch (GetParam())
        {
        case 0:
            handler.answerOption = [once](const wchar_t* name)
            {
                return std::wstring(name) != L"name" || once();
            };
            break;
        case 1:
            handler.answerValue = [once](const wchar_t*, const ValueRecord& value)
            {
                return std::wstring(value.value.get<const wchar_t*>()) != L"second" || once();
            };
            break;
        default:
            handler.answerUnknown = [once](const wchar_t*)
            {
                return once();
            };
        }
    }

    // Sets the message to "Unknown option: before".
    void failBefore()
    {
        handler.answerUnknown = nullptr;
        EXPECT_EQ(host.parse({L"before"}), result_invalid_arguments);
        host.renewResult();
    }

    Events events;
    RecordingHandler handler{events};
    Host host{flag_unknown_is_error};
    bool thrown = false;
};

} // namespace

TEST_P(ThrowingHandlers, EndTheParseWithACode)
{
    for (const Thrown& row : thrownByHandlers())
    {
        SCOPED_TRACE(row.what);
        failBefore();
        throwOnce(row.raise);
        EXPECT_EQ(host.parse({L"-n=first,second", L"unknown"}), row.code);
        EXPECT_TRUE(thrown);
        EXPECT_EQ(host.message(), row.message);
    }
}

TEST_P(ThrowingHandlers, EndAParseOfLinesWithACode)
{
    for (const Thrown& row : thrownByHandlers())
    {
        SCOPED_TRACE(row.what);
        failBefore();
        throwOnce(row.raise);
        EXPECT_EQ(host.parseLines(L"-n=first,second\nunknown\n"), row.code);
        EXPECT_EQ(host.message(), row.message);
    }
}

TEST_P(ThrowingHandlers, EndAParseOfOptionFilesWithACode)
{
    const TemporaryFolder folder;
    const std::wstring argument =
        L"--option-file=" + folder.write(L"file", "-n=first,second\nunknown\n");
    ASSERT_TRUE(host.parser().enableOptionFiles(L"", L""));
    for (const Thrown& row : thrownByHandlers())
    {
        SCOPED_TRACE(row.what);
        failBefore();
        throwOnce(row.raise);
        EXPECT_EQ(host.parse({argument.c_str()}), row.code);
        EXPECT_EQ(host.message(), row.message);
    }
}

TEST_P(ThrowingHandlers, LeaveAllNamesOfAnOptionWithEqualValues)
{
    for (const Thrown& row : thrownByHandlers())
    {
        SCOPED_TRACE(row.what);
        host.renewResult();
        throwOnce(row.raise);
        EXPECT_EQ(host.parse({L"-n=first,second", L"unknown"}), row.code);
        // An occurrence is stored only if no handler threw before its end.
        const std::vector<std::wstring> stored =
            GetParam() == 2 ? std::vector<std::wstring>{L"first", L"second"}
                            : std::vector<std::wstring>{};
        EXPECT_EQ(host.texts(L"name"), stored);
        EXPECT_EQ(host.texts(L"n"), stored);
        EXPECT_EQ(host.texts(L"further"), stored);
        EXPECT_TRUE(host.unparsed().empty());
    }
}

TEST_P(ThrowingHandlers, LeaveAParserThatParsesAgain)
{
    for (const Thrown& row : thrownByHandlers())
    {
        SCOPED_TRACE(row.what);
        throwOnce(row.raise);
        EXPECT_EQ(host.parse({L"-n=first,second", L"unknown"}), row.code);
        host.renewResult();
        events.clear();
        EXPECT_EQ(host.parse({L"-n=first,second"}), result_success);
        EXPECT_EQ(host.texts(L"further"), (std::vector<std::wstring>{L"first", L"second"}));
        EXPECT_EQ(events, (Events{L"option name", L"value name 'first'", L"value name 'second'"}));
    }
}

TEST_P(ThrowingHandlers, KeepTheRemainingHandlersFromBeingCalled)
{
    Events later;
    std::vector<RecordingHandler> pair(2, RecordingHandler(later));
    Host other;
    other.addOption(L"name");
    other.parser().addEventHandler(&pair[0]);
    other.parser().addEventHandler(&pair[1]);
    const auto raise = [](auto&&...) -> bool
    {
        throw std::runtime_error("handler");
    };
    if (GetParam() == 0)
    {
        pair[0].answerOption = raise;
    }
    else if (GetParam() == 1)
    {
        pair[0].answerValue = raise;
    }
    else
    {
        pair[0].answerUnknown = raise;
    }
    EXPECT_EQ(other.parse({L"--name=a", L"unknown"}), result_standard_exception);
    const std::vector<Events> expected = {
        {L"option name"},
        {L"option name", L"option name", L"value name 'a'"},
        {L"option name", L"option name", L"value name 'a'", L"value name 'a'", L"unknown unknown"}};
    EXPECT_EQ(later, expected[static_cast<std::size_t>(GetParam())]);
}

INSTANTIATE_TEST_SUITE_P(AtEachEvent, ThrowingHandlers, testing::Values(0, 1, 2));
