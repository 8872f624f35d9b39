// Booleans with their "no-" form, and options without a value.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;

using Texts = std::vector<std::wstring>;

std::wstring booleanMessage(const std::wstring& name, const std::wstring& argument)
{
    return L"Option '" + name +
           L"' is boolean and should be declared in form '--option' or '--no-option' in argument: "
           L"'" +
           argument + L"'";
}

TEST(BooleanOptions, PlainFormStoresOneAndNegatedFormZero)
{
    const struct
    {
        const wchar_t* argument;
        const wchar_t* text;
    } rows[] = {
        {L"--verbose", L"1"},     {L"-verbose", L"1"},        {L"--verb", L"1"},
        {L"--no-verbose", L"0"},  {L"-no-verbose", L"0"},     {L"--no-verb", L"0"},
        {L"--n", L"0"},           {L"--no-", L"0"},           {L"\u2014verbose", L"1"},
        {L"\u2014no-v", L"0"},    {L"--verbose=", L"1"},      {L"--verbose ", L"1"},
        {L"--no-verbose=", L"0"}, {L"--no-verbose \t", L"0"},
    };
    for (const auto& row : rows)
    {
        Host host;
        host.addOption(L"verbose", value_type_boolean);
        EXPECT_EQ(host.parse({row.argument}), 0) << toUtf8(row.argument);
        const Value value = getLastValue(&host.result(), L"verbose", 0, no_position);
        EXPECT_STREQ(value.as<const wchar_t*>(), row.text) << toUtf8(row.argument);
        ASSERT_EQ(value.value.kind(), 0) << toUtf8(row.argument);
        EXPECT_EQ(value.value.get<bool>(), row.text[0] == L'1') << toUtf8(row.argument);
    }
}

TEST(BooleanOptions, EveryNameHasItsNegatedForm)
{
    Host host;
    host.addOption(L"verbose,v", value_type_boolean).addName(L"loud");
    EXPECT_EQ(host.parse({L"-v", L"--no-v", L"--loud", L"--no-loud", L"--no-verbose"}), 0);
    EXPECT_EQ(host.texts(L"verbose"), (Texts{L"1", L"0", L"1", L"0", L"0"}));
}

TEST(BooleanOptions, ValueIsRefusedInAnyForm)
{
    for (const wchar_t* argument : {L"--verbose=1", L"--verbose=0", L"--verbose=true",
                                    L"--no-verbose=1", L"-v 1", L"--verbose= ", L"--verbose=x=y"})
    {
        Host host;
        host.addOption(L"verbose,v", value_type_boolean);
        EXPECT_EQ(host.parse({argument}), 2) << toUtf8(argument);
        EXPECT_EQ(host.message(), booleanMessage(L"verbose", argument));
        EXPECT_FALSE(host.isPresent(L"verbose")) << toUtf8(argument);
    }
}

TEST(BooleanOptions, NextArgumentIsNotTaken)
{
    Host host;
    host.addOption(L"verbose", value_type_boolean);
    host.addPositional(L"file");
    EXPECT_EQ(host.parse({L"--verbose", L"1", L"--verbose=", L"0"}), 0);
    EXPECT_EQ(host.texts(L"verbose"), (Texts{L"1", L"1"}));
    EXPECT_EQ(host.texts(L"file"), (Texts{L"1", L"0"}));
}

TEST(BooleanOptions, NameThatBeginsWithNoStoresZero)
{
    Host host;
    host.addOption(L"no-cache", value_type_boolean);
    EXPECT_EQ(host.parse({L"--no-cache", L"--no-no-cache", L"--no-c"}), 0);
    EXPECT_EQ(host.texts(L"no-cache"), (Texts{L"0", L"0", L"0"}));
}

TEST(BooleanOptions, NameThatBeginsWithNoButNoHyphenStoresOne)
{
    Host host;
    host.addOption(L"notify", value_type_boolean);
    EXPECT_EQ(host.parse({L"--notify", L"--no-notify", L"--not"}), 0);
    EXPECT_EQ(host.texts(L"notify"), (Texts{L"1", L"0", L"1"}));
}

TEST(BooleanOptions, OnlyBooleansHaveANegatedForm)
{
    for (const std::int32_t type : {6, 13, 17})
    {
        Host host(flag_unknown_is_error);
        host.addOption(L"name", type);
        EXPECT_EQ(host.parse({L"--no-name"}), 2) << type;
        EXPECT_EQ(host.message(), L"Unknown option: --no-name") << type;
    }
}

TEST(BooleanOptions, BooleanSwitchIsNegatedToo)
{
    Host host;
    host.addSwitch(L"list");
    EXPECT_EQ(host.parse({L"--no-list"}), 0);
    EXPECT_EQ(host.texts(L"list"), Texts{L"0"});
}

TEST(ValuelessOptions, OccurrenceIsStoredWithoutAValue)
{
    for (const wchar_t* argument : {L"--flag", L"-f", L"--flag=", L"--flag ", L"\u2013fl"})
    {
        Host host;
        host.addOption(L"flag", value_type_none);
        const std::int32_t base = nextPosition();
        EXPECT_EQ(host.parse({argument}), 0) << toUtf8(argument);
        EXPECT_TRUE(host.isPresent(L"flag")) << toUtf8(argument);
        EXPECT_EQ(host.values(L"flag"), (std::vector<ReadValue>{{L"", 17, base}}))
            << toUtf8(argument);
        EXPECT_EQ(getLastValue(&host.result(), L"flag", 0, no_position).data, nullptr);
    }
}

TEST(ValuelessOptions, ValueIsRefused)
{
    for (const wchar_t* argument : {L"--flag=x", L"-f x", L"--flag= ", L"--flag=0"})
    {
        Host host;
        host.addOption(L"flag,f", value_type_none);
        EXPECT_EQ(host.parse({argument}), 2) << toUtf8(argument);
        EXPECT_EQ(host.message(), std::wstring(L"Option 'flag'does not requires a value in "
                                               L"argument: '") +
                                      argument + L"'");
        EXPECT_FALSE(host.isPresent(L"flag")) << toUtf8(argument);
    }
}

TEST(ValuelessOptions, NextArgumentIsNeverAValue)
{
    Host host;
    host.addOption(L"flag", value_type_none);
    host.addPositional(L"file");
    EXPECT_EQ(host.parse({L"--flag", L"1", L"--flag=", L"2"}), 0);
    EXPECT_EQ(host.texts(L"file"), (Texts{L"1", L"2"}));
    EXPECT_EQ(host.parse({L"--flag"}), 0);
}

TEST(ValuelessOptions, OnlyTheOptionEventIsSent)
{
    Host host;
    host.addOption(L"flag", value_type_none);
    Events events;
    RecordingHandler handler(events);
    host.parser().addEventHandler(&handler);
    EXPECT_EQ(host.parse({L"--flag", L"--flag="}), 0);
    EXPECT_EQ(events, (Events{L"option flag", L"option flag"}));
}

TEST(OptionEvents, OptionEventComesBeforeItsValueEvents)
{
    Host host;
    host.addOption(L"name,n");
    host.addOption(L"verbose", value_type_boolean);
    Events events;
    RecordingHandler handler(events);
    host.parser().addEventHandler(&handler);
    EXPECT_EQ(host.parse({L"-n=a,b", L"--no-verb", L"--name", L"c"}), 0);
    EXPECT_EQ(events,
              (Events{L"option name", L"value name 'a'", L"value name 'b'", L"option verbose",
                      L"value verbose false", L"option name", L"value name 'c'"}));
}

TEST(OptionEvents, OptionEventIsSentThoughItsValueDoesNotConvert)
{
    Host host;
    host.addOption(L"number", value_type_integer);
    Events events;
    RecordingHandler handler(events);
    host.parser().addEventHandler(&handler);
    EXPECT_EQ(host.parse({L"--number=1,x,2"}), 2);
    EXPECT_EQ(events, (Events{L"option number", L"value number 1"}));
}

TEST(OptionEvents, RefusedArgumentSendsNoEvent)
{
    for (const wchar_t* argument :
         {L"--verbose=1", L"--flag=1", L"--name", L"--=5", L"--nam", L"--name=x"})
    {
        Host host;
        host.addOption(L"verbose", value_type_boolean);
        host.addOption(L"flag", value_type_none);
        host.addOption(L"name");
        host.addOption(L"names");
        Events events;
        RecordingHandler handler(events);
        host.parser().addEventHandler(&handler);
        const bool accepted = std::wstring(argument) == L"--name=x";
        EXPECT_EQ(host.parse({argument}), accepted ? 0 : 2) << toUtf8(argument);
        EXPECT_EQ(events.empty(), !accepted) << toUtf8(argument);
    }
}

} // namespace
