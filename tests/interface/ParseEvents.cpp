// The events of a parse, and handlers that refuse values, take arguments or throw.
#include <new>
#include <stdexcept>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

class ParseEvents : public testing::Test
{
protected:
    ParseEvents()
    {
        host.addOption(L"name,n");
        host.addOption(L"count", value_type_integer);
        host.parser().addEventHandler(&handler);
    }

    void refuse(const std::wstring& refused)
    {
        handler.answerValue = [refused](const wchar_t*, const ValueRecord& value)
        {
            return value.value.get<const wchar_t*>() != refused;
        };
    }

    Events events;
    RecordingHandler handler{events};
    Host host{2};
};

} // namespace

TEST_F(ParseEvents, ComeInTheOrderOfTheArguments)
{
    EXPECT_EQ(host.parse({L"-n", L"a", L"--count=7"}), 0);
    EXPECT_EQ(events,
              (Events{L"option name", L"value name 'a'", L"option count", L"value count 7"}));
}

TEST_F(ParseEvents, AListGivesOneOptionEventAndOneForEachValue)
{
    EXPECT_EQ(host.parse({L"--name=a,b"}), 0);
    EXPECT_EQ(events, (Events{L"option name", L"value name 'a'", L"value name 'b'"}));
}

TEST_F(ParseEvents, ARecordCarriesThePositionThatTheResultReports)
{
    std::vector<std::int32_t> numbers;
    std::vector<std::wstring> names;
    handler.answerValue = [&](const wchar_t*, const ValueRecord& value)
    {
        numbers.push_back(value.sequenceNumber);
        names.emplace_back(value.optionName);
        return true;
    };
    const std::int32_t base = nextPosition();
    EXPECT_EQ(host.parse({L"-n", L"a,b"}), 0);
    EXPECT_EQ(numbers, (std::vector<std::int32_t>{base, base + 1}));
    EXPECT_EQ(names, (std::vector<std::wstring>{L"name", L"name"}));
    EXPECT_EQ(host.values(L"name"), (std::vector<ReadValue>{{L"a", value_type_string, base},
                                                            {L"b", value_type_string, base + 1}}));
}

TEST_F(ParseEvents, AnOptionIsNamedByOneTextInAllEvents)
{
    std::vector<const wchar_t*> texts;
    handler.answerOption = [&](const wchar_t* name)
    {
        texts.push_back(name);
        return true;
    };
    handler.answerValue = [&](const wchar_t* name, const ValueRecord& value)
    {
        texts.push_back(name);
        texts.push_back(value.optionName);
        return true;
    };
    EXPECT_EQ(host.parse({L"-n", L"a"}), 0);
    EXPECT_EQ(host.parse({L"--count=7", L"--name=b"}), 0);
    host.parser().onOptionParsed(std::wstring(L"name").c_str());
    host.parser().onOptionParsed(std::wstring(L"count").c_str());

    ASSERT_EQ(texts.size(), 11U);
    const wchar_t* const name = texts[0];
    const wchar_t* const count = texts[3];
    EXPECT_STREQ(name, L"name");
    EXPECT_STREQ(count, L"count");
    EXPECT_EQ(texts, (std::vector<const wchar_t*>{name, name, name, count, count, count, name, name,
                                                  name, name, count}));
}

TEST_F(ParseEvents, NamesOutliveManyParsesAndDeclarations)
{
    std::vector<const wchar_t*> names;
    handler.answerOption = [&](const wchar_t* name)
    {
        names.push_back(name);
        return true;
    };
    for (int number = 0; number < 500; ++number)
    {
        const std::wstring later = L"later" + std::to_wstring(number);
        host.addOption(later.c_str());
        EXPECT_EQ(host.parse({L"--name=a", (L"--" + later + L"=b").c_str()}), 0);
    }
    ASSERT_EQ(names.size(), 1000U);
    for (int number = 0; number < 500; ++number)
    {
        const auto index = static_cast<std::size_t>(number) * 2;
        EXPECT_STREQ(names[index], L"name");
        EXPECT_EQ(names[index + 1], L"later" + std::to_wstring(number));
    }
}

TEST_F(ParseEvents, AFailedConversionSendsNoValue)
{
    EXPECT_EQ(host.parse({L"--count=x"}), 2);
    EXPECT_EQ(events, (Events{L"option count"}));
}

TEST_F(ParseEvents, ARefusedValueEndsTheParseWithOne)
{
    refuse(L"b");
    EXPECT_EQ(host.parse({L"--name=a,b,c", L"--count=1"}), 1);
    EXPECT_EQ(host.message(),
              L"Value 'a,b,c' is not valid for option 'name' in argument '--name=a,b,c'");
    EXPECT_EQ(events, (Events{L"option name", L"value name 'a'", L"value name 'b'"}));
}

TEST_F(ParseEvents, ARefusedValueLeavesNothingOfItsOccurrence)
{
    refuse(L"c");
    EXPECT_EQ(host.parse({L"--name=a", L"--name=b,c"}), 1);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a"}));
}

TEST_F(ParseEvents, ATakenArgumentIsNoError)
{
    handler.answerUnknown = [](const wchar_t*)
    {
        return false;
    };
    EXPECT_EQ(host.parse({L"x", L"--name=a"}), 0);
    EXPECT_EQ(events, (Events{L"unknown x", L"option name", L"value name 'a'"}));
    EXPECT_EQ(host.message(), L"");
}

TEST_F(ParseEvents, OneHandlerThatTakesTheArgumentIsEnough)
{
    Events otherEvents;
    RecordingHandler other(otherEvents);
    other.answerUnknown = [](const wchar_t*)
    {
        return false;
    };
    ASSERT_TRUE(host.parser().addEventHandler(&other));
    EXPECT_EQ(host.parse({L"x"}), 0);
    EXPECT_EQ(events, (Events{L"unknown x"}));
    EXPECT_EQ(otherEvents, (Events{L"unknown x"}));
}

TEST_F(ParseEvents, AnArgumentThatNoHandlerTakesIsAnError)
{
    EXPECT_EQ(host.parse({L"x", L"y"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: x");
    EXPECT_EQ(events, (Events{L"unknown x"}));
}

TEST_F(ParseEvents, AStandardExceptionGivesThreeAndNoMessage)
{
    handler.answerOption = [](const wchar_t*) -> bool
    {
        throw std::runtime_error("option");
    };
    EXPECT_EQ(host.parse({L"--name=a"}), 3);
    handler.answerOption = nullptr;
    handler.answerValue = [](const wchar_t*, const ValueRecord&) -> bool
    {
        throw std::logic_error("value");
    };
    EXPECT_EQ(host.parse({L"--name=a"}), 3);
    handler.answerUnknown = [](const wchar_t*) -> bool
    {
        throw std::bad_alloc();
    };
    EXPECT_EQ(host.parse({L"x"}), 3);
    EXPECT_EQ(host.parseLines(L"x"), 3);
    EXPECT_EQ(host.message(), L"");
}

TEST_F(ParseEvents, AStandardExceptionKeepsTheMessageBefore)
{
    EXPECT_EQ(host.parse({L"x"}), 2);
    handler.answerUnknown = [](const wchar_t*) -> bool
    {
        throw std::runtime_error("y");
    };
    EXPECT_EQ(host.parse({L"y"}), 3);
    EXPECT_EQ(host.message(), L"Unknown option: x");
}

TEST_F(ParseEvents, AnyOtherExceptionInOnOptionParsedGivesFourAndItsMessage)
{
    handler.answerOption = [](const wchar_t*) -> bool
    {
        throw 42;
    };
    EXPECT_EQ(host.parse({L"--name=a"}), 4);
    EXPECT_EQ(host.message(), L"Unidentified problem detected.");
}

TEST_F(ParseEvents, AnyOtherExceptionInOnValueParsedGivesFourAndItsMessage)
{
    handler.answerValue = [](const wchar_t*, const ValueRecord&) -> bool
    {
        throw 42;
    };
    EXPECT_EQ(host.parse({L"--name=a"}), 4);
    EXPECT_EQ(host.message(), L"Unidentified problem detected.");
}

TEST_F(ParseEvents, AnyOtherExceptionInOnUnknownArgumentGivesFourAndItsMessage)
{
    handler.answerUnknown = [](const wchar_t*) -> bool
    {
        throw 42;
    };
    EXPECT_EQ(host.parse({L"x"}), 4);
    EXPECT_EQ(host.message(), L"Unidentified problem detected.");
}

TEST_F(ParseEvents, AnyOtherExceptionInACommandLineTextGivesFourToo)
{
    handler.answerUnknown = [](const wchar_t*) -> bool
    {
        throw 42;
    };
    EXPECT_EQ(host.parseLines(L"x"), 4);
    EXPECT_EQ(host.message(), L"Unidentified problem detected.");
}

TEST_F(ParseEvents, AnExceptionForALeftOverArgumentIsCaughtToo)
{
    host.addPositional(L"path");
    handler.answerValue = [](const wchar_t*, const ValueRecord&) -> bool
    {
        throw 42;
    };
    EXPECT_EQ(host.parse({L"--", L"x"}), 4);
    EXPECT_EQ(host.message(), L"Unidentified problem detected.");
    handler.answerValue = [](const wchar_t*, const ValueRecord&) -> bool
    {
        throw std::runtime_error("x");
    };
    EXPECT_EQ(host.parse({L"--", L"x"}), 3);
}

TEST_F(ParseEvents, AnExceptionStoresNothingOfItsOccurrence)
{
    handler.answerValue = [](const wchar_t*, const ValueRecord& value) -> bool
    {
        if (value.value.get<const wchar_t*>() == std::wstring(L"c"))
        {
            throw std::runtime_error("c");
        }
        return true;
    };
    EXPECT_EQ(host.parse({L"--name=a", L"--name=b,c", L"--name=d"}), 3);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a"}));
}

TEST_F(ParseEvents, AfterAnExceptionTheParserParsesAgain)
{
    handler.answerValue = [](const wchar_t*, const ValueRecord&) -> bool
    {
        throw 42;
    };
    EXPECT_EQ(host.parse({L"--name=a"}), 4);
    handler.answerValue = nullptr;
    EXPECT_EQ(host.parse({L"--name=a"}), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a"}));
}
