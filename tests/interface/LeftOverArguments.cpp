// The arguments after the end marker "--".
#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;
using Arguments = std::vector<const wchar_t*>;

struct LeftOverCase
{
    int flags;
    Arguments arguments;
    Texts positional;
    Texts unparsed;
};

std::string show(const LeftOverCase& row)
{
    std::string text = "flags " + std::to_string(row.flags) + ":";
    for (const wchar_t* argument : row.arguments)
    {
        text += " [" + toUtf8(argument) + "]";
    }
    return text;
}

} // namespace

TEST(LeftOverArguments, WithoutAPositionalOptionAllAreKeptInOrder)
{
    for (const int flags : {0, 2, 4, 8, 16, 4 | 8, 8 | 16, 4 | 8 | 16, 4 | 16})
    {
        SCOPED_TRACE(flags);
        Host host(flags);
        host.addOption(L"name");
        EXPECT_EQ(host.parse({L"--", L"x", L"", L"--name=a", L"--", L"-y", L"x"}), 0);
        EXPECT_EQ(host.unparsed(), (Texts{L"x", L"", L"--name=a", L"--", L"-y", L"x"}));
        EXPECT_FALSE(host.isPresent(L"name"));
    }
}

TEST(LeftOverArguments, FlagsSelectWhichOnesArePositional)
{
    const LeftOverCase rows[] = {
        // Flags 0: everything is positional, a second marker included.
        {0, {L"--", L"x", L"-y", L"--", L"--name=a"}, {L"x", L"-y", L"--", L"--name=a"}, {}},
        // Flag 4 alone has no effect: it cancels flag 8.
        {4, {L"--", L"x", L"-y", L"--"}, {L"x", L"-y", L"--"}, {}},
        // Flag 8: arguments that begin with a hyphen are not positional; they are left over.
        {8, {L"--", L"x", L"-y", L"z", L"--", L"-"}, {L"x", L"z"}, {L"-y", L"--", L"-"}},
        {8, {L"--", L"\u2014y"}, {L"\u2014y"}, {}},
        // Flags 4 and 8: flag 8 has no effect after the marker.
        {4 | 8, {L"--", L"x", L"-y", L"--"}, {L"x", L"-y", L"--"}, {}},
        // Flag 16: after the first positional argument all others are positional.
        {16, {L"--", L"x", L"-y", L"--", L"--name=a"}, {L"x", L"-y", L"--", L"--name=a"}, {}},
        {8 | 16, {L"--", L"-x", L"y", L"-z", L"--"}, {L"y", L"-z", L"--"}, {L"-x"}},
        {8 | 16, {L"--", L"-x", L"--"}, {}, {L"-x", L"--"}},
        {4 | 8 | 16, {L"--", L"-x", L"y", L"-z"}, {L"-x", L"y", L"-z"}, {}},
        {4 | 16, {L"--", L"-x", L"y"}, {L"-x", L"y"}, {}},
        {2, {L"--", L"x", L"-y"}, {L"x", L"-y"}, {}},
        {2 | 8, {L"--", L"x", L"-y"}, {L"x"}, {L"-y"}},
        // Flag 16 before the marker: the marker is a positional argument as well.
        {16, {L"x", L"--", L"-y"}, {L"x", L"--", L"-y"}, {}},
        {8 | 16, {L"x", L"--", L"-y"}, {L"x", L"--", L"-y"}, {}},
        {0, {L"x", L"--", L"-y"}, {L"x", L"-y"}, {}},
        {8, {L"x", L"--", L"-y"}, {L"x"}, {L"-y"}},
        // Flag 4 has no effect before the marker: "-x" is unknown and dropped.
        {4 | 8, {L"-x", L"--", L"-y"}, {L"-y"}, {}},
        // Only the first marker is dropped.
        {0, {L"--", L"--", L"x"}, {L"--", L"x"}, {}},
        {8, {L"--", L"--", L"x"}, {L"x"}, {L"--"}},
        {0, {L"--"}, {}, {}},
    };
    for (const LeftOverCase& row : rows)
    {
        SCOPED_TRACE(show(row));
        Host host(row.flags);
        host.addOption(L"name");
        host.addPositional(L"path");
        EXPECT_EQ(parse(host.parser(), row.arguments, &host.result()), 0);
        EXPECT_EQ(host.texts(L"path"), row.positional);
        EXPECT_EQ(host.unparsed(), row.unparsed);
        EXPECT_FALSE(host.isPresent(L"name"));
    }
}

TEST(LeftOverArguments, Flag4ChangesNothingBeforeTheMarker)
{
    Host host(2 | 4 | 8);
    host.addPositional(L"path");
    EXPECT_EQ(host.parse({L"-x", L"--", L"-y"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: -x");
    EXPECT_FALSE(host.isPresent(L"path"));
}

TEST(LeftOverArguments, AreNeverUnknown)
{
    Events events;
    RecordingHandler handler(events);
    Host host(2);
    ASSERT_TRUE(host.parser().addEventHandler(&handler));
    EXPECT_EQ(host.parse({L"--", L"x", L"--y"}), 0);
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(host.unparsed(), (Texts{L"x", L"--y"}));
}

TEST(LeftOverArguments, PositionalOnesSendTheirEvents)
{
    Events events;
    RecordingHandler handler(events);
    Host host(8);
    host.addPositional(L"path");
    ASSERT_TRUE(host.parser().addEventHandler(&handler));
    EXPECT_EQ(host.parse({L"--", L"x", L"-y", L"z"}), 0);
    EXPECT_EQ(events,
              (Events{L"option path", L"value path 'x'", L"option path", L"value path 'z'"}));
}

TEST(LeftOverArguments, ARefusedOneEndsTheParseWithOne)
{
    Events events;
    RecordingHandler handler(events);
    handler.answerValue = [](const wchar_t*, const ValueRecord& value)
    {
        return value.value.get<const wchar_t*>() != std::wstring(L"y");
    };
    Host host;
    host.addPositional(L"path");
    ASSERT_TRUE(host.parser().addEventHandler(&handler));
    EXPECT_EQ(host.parse({L"--", L"x", L"y", L"z"}), 1);
    EXPECT_EQ(host.message(), L"Value 'y' is not valid for option 'path' in argument 'y'");
    EXPECT_EQ(host.texts(L"path"), (Texts{L"x"}));
}

TEST(LeftOverArguments, AnInvalidOneEndsTheParseWithItsMessage)
{
    for (const int flags : {0, 16})
    {
        SCOPED_TRACE(flags);
        Host host(flags);
        host.addOption(L"number", value_type_integer).setMarked();
        EXPECT_EQ(host.parse({L"--", L"1", L"x", L"2"}), 2);
        EXPECT_EQ(host.message(), L"Value validation problem in argument 'x': Option 'number' can "
                                  L"not parse 'x' value, requires a type 'integer' here.");
        EXPECT_EQ(host.texts(L"number"), (Texts{L"1"}));
    }
}

TEST(LeftOverArguments, AnEmptyOneIsAnOccurrenceWithoutAValue)
{
    Host host(8);
    host.addPositional(L"path");
    const std::int32_t base = nextPosition();
    EXPECT_EQ(host.parse({L"--", L"", nullptr}), 0);
    EXPECT_EQ(host.values(L"path"),
              (std::vector<ReadValue>{{L"", value_type_none, base}, {L"", value_type_none, base}}));
    EXPECT_TRUE(host.unparsed().empty());
}

TEST(LeftOverArguments, ListsAreSplitInThemToo)
{
    Host host;
    host.addPositional(L"path");
    EXPECT_EQ(host.parse({L"--", L"a,b"}), 0);
    EXPECT_EQ(host.texts(L"path"), (Texts{L"a", L"b"}));
}

TEST(LeftOverArguments, AreKeptWithoutAResultToo)
{
    Host host;
    EXPECT_EQ(parse(host.parser(), {L"--", L"x"}, nullptr), 0);
    EXPECT_TRUE(host.unparsed().empty());
}

TEST(LeftOverArguments, OfACommandLineTextAreTheLinesBehindTheMarker)
{
    Host host;
    host.addOption(L"name");
    EXPECT_EQ(host.parseLines(L"--name=a\n--\n--name=b\n; comment\n\nx y"), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a"}));
    EXPECT_EQ(host.unparsed(), (Texts{L"--name=b", L"x y"}));
}
