// Arguments that no option and no positional option takes.
#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

class UnknownArguments : public testing::TestWithParam<int>
{
protected:
    UnknownArguments()
    {
        host.addOption(L"name");
        host.parser().addEventHandler(&handler);
    }

    Events events;
    RecordingHandler handler{events};
    Host host{GetParam()};
};

using UnknownIsAnError = UnknownArguments;
using UnknownIsDropped = UnknownArguments;

INSTANTIATE_TEST_SUITE_P(Flags, UnknownIsAnError, testing::Values(2, 2 | 8, 2 | 4 | 8 | 16 | 32));
INSTANTIATE_TEST_SUITE_P(Flags, UnknownIsDropped, testing::Values(0, 1, 8, 4 | 8 | 16 | 32));

TEST(UnknownArgumentTexts, LiveAsLongAsTheParserOnceForEachText)
{
    struct Keeper final : EventHandler
    {
        bool onUnknownArgument(const wchar_t* argument) override
        {
            texts.push_back(argument);
            return true;
        }
        std::vector<const wchar_t*> texts;
    };
    Host host;
    Keeper keeper;
    host.parser().addEventHandler(&keeper);
    ASSERT_EQ(host.parse({L"x", L"y", L"x"}), 0);
    ASSERT_EQ(host.parseLines(L"x\ny\nx"), 0);
    ASSERT_EQ(keeper.texts.size(), 6U);
    for (const std::size_t index : {0U, 2U, 3U, 5U})
    {
        EXPECT_STREQ(keeper.texts[index], L"x");
        EXPECT_EQ(keeper.texts[index], keeper.texts[0]);
    }
    EXPECT_STREQ(keeper.texts[1], L"y");
    EXPECT_EQ(keeper.texts[4], keeper.texts[1]);
}

} // namespace

TEST_P(UnknownIsAnError, TheMessageEndsWithTheArgumentAsGiven)
{
    const wchar_t* const arguments[] = {
        L"x", L"--other", L"--other=5", L"--Name=a", L"/name",      L"-",        L"---name=a",
        L"",  L"name=a",  L" --name=a", L"a b",      L"\u2212name", L"'quoted'", L"-\U0001F600"};
    for (const wchar_t* argument : arguments)
    {
        SCOPED_TRACE(toUtf8(argument));
        EXPECT_EQ(host.parse({argument}), 2);
        EXPECT_EQ(host.message(), std::wstring(L"Unknown option: ") + argument);
    }
}

TEST_P(UnknownIsAnError, TheFirstUnknownArgumentEndsTheParse)
{
    EXPECT_EQ(host.parse({L"--name=a", L"x", L"--name=b", L"y"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: x");
    EXPECT_EQ(events, (Events{L"option name", L"value name 'a'", L"unknown x"}));
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a"}));
}

TEST_P(UnknownIsAnError, AnArgumentThatAHandlerTakesIsDropped)
{
    handler.answerUnknown = [](const wchar_t* argument)
    {
        return std::wstring(argument) != L"mine";
    };
    EXPECT_EQ(host.parse({L"mine", L"--name=a", L"x"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: x");
    EXPECT_EQ(events, (Events{L"unknown mine", L"option name", L"value name 'a'", L"unknown x"}));
    EXPECT_TRUE(host.unparsed().empty());
}

TEST_P(UnknownIsAnError, InACommandLineTextToo)
{
    EXPECT_EQ(host.parseLines(L"--name=a\nx y\n"), 2);
    EXPECT_EQ(host.message(), L"Unknown option: x y");
}

TEST_P(UnknownIsDropped, OnlyUnknownArgumentsEndWithZero)
{
    EXPECT_EQ(host.parse({L"x", L"--other", L"", L"-"}), 0);
    EXPECT_EQ(events, (Events{L"unknown x", L"unknown --other", L"unknown ", L"unknown -"}));
    EXPECT_EQ(host.message(), L"");
    EXPECT_TRUE(host.unparsed().empty());
}

TEST_P(UnknownIsDropped, TheParseContinuesAfterIt)
{
    EXPECT_EQ(host.parse({L"x", L"--name=a", L"y", L"--name", L"b"}), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a", L"b"}));
}

TEST_P(UnknownIsDropped, WhateverTheHandlersReturn)
{
    handler.answerUnknown = [](const wchar_t*)
    {
        return false;
    };
    EXPECT_EQ(host.parse({L"x", L"y"}), 0);
    EXPECT_EQ(events, (Events{L"unknown x", L"unknown y"}));
}
