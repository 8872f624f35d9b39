// Trace lines of refused values, positional, unknown and left-over arguments.
#include "TraceLines.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

// The lines before the storing of a value given in the same argument as its option "name".
Lines namedValue(const std::string& argument, const std::string& value)
{
    return {"PositionalOptionsParser: recognizing argument '" + argument + "'",
            "AbbreviationParser: recognizing argument '" + argument + "'",
            "AbbreviationParser: best match option for 'name' in argument '" + argument +
                "' is 'name'",
            "AbbreviationParser: parsing argument '" + argument + "'",
            "AbbreviationParser: detected option: 'name'",
            "AbbreviationParser: value from the same argument taken: '" + value + "'",
            "AbbreviationParser: sent event on option parsed",
            "AbbreviationParser: adding values to result container:"};
}

// The lines of storing a positional value, up to the removal of its argument.
Lines positionalStored(const std::string& option, const std::string& value)
{
    return {"PositionalOptionsParser: adding values to result container:",
            "PositionalOptionsParser: using tokenizer on char: ','",
            "PositionalOptionsParser: value is: '" + value + "'",
            "PositionalOptionsParser: sent event on value parsed, option: '" + option +
                "', value: '" + value + "'",
            "PositionalOptionsParser: stored option to result container."};
}

} // namespace

TEST(TraceOfRejectedValues, OnlySeparators)
{
    Host host;
    host.addOption(L"name").setSeparator(L';');
    EXPECT_EQ(
        traceOf(host, {L"--name=;;"}, 2),
        joined({namedValue("--name=;;", ";;"),
                Lines{"AbbreviationParser: using tokenizer on char: ';'",
                      "AbbreviationParser: No value parsed in argument ';;' for option 'name'"}}));
}

TEST(TraceOfRejectedValues, AValueThatDoesNotConvert)
{
    Host host;
    host.addOption(L"name", value_type_integer);
    EXPECT_EQ(
        traceOf(host, {L"--name=1,x,2"}, 2),
        joined({namedValue("--name=1,x,2", "1,x,2"),
                Lines{"AbbreviationParser: using tokenizer on char: ','",
                      "AbbreviationParser: value is: '1'",
                      "AbbreviationParser: sent event on value parsed, option: 'name', value: "
                      "'1'",
                      "AbbreviationParser: value is: 'x'",
                      "AbbreviationParser: Value validation problem in argument '--name=1,x,2': "
                      "Option 'name' can not parse 'x' value, requires a type 'integer' here."}}));
}

TEST(TraceOfRejectedValues, AValueThatDoesNotConvertWithoutATokenizer)
{
    Host host;
    host.addOption(L"name", value_type_integer).setSeparator(0);
    EXPECT_EQ(
        traceOf(host, {L"--name=x"}, 2),
        joined({namedValue("--name=x", "x"),
                Lines{"AbbreviationParser: not using tokenizer",
                      "AbbreviationParser: Value validation problem in argument '--name=x': "
                      "Option 'name' can not parse 'x' value, requires a type 'integer' here."}}));
}

TEST(TraceOfRejectedValues, AValueThatAHandlerRefuses)
{
    Events events;
    RecordingHandler handler(events);
    handler.answerValue = [](const wchar_t*, const ValueRecord&)
    {
        return false;
    };
    Host host;
    IOption& option = host.addOption(L"name");
    ASSERT_TRUE(host.parser().addEventHandler(&handler));
    EXPECT_EQ(
        traceOf(host, {L"--name=a,b"}, 1),
        joined({namedValue("--name=a,b", "a,b"),
                Lines{"AbbreviationParser: using tokenizer on char: ','",
                      "AbbreviationParser: value is: 'a'",
                      "AbbreviationParser: sent event on value parsed, option: 'name', value: "
                      "'a'",
                      "AbbreviationParserValue 'a,b' is not valid for option 'name' in argument "
                      "'--name=a,b' One of the handler signaled the value is not valid."}}));
    option.setSeparator(0);
    EXPECT_EQ(
        traceOf(host, {L"--name=a"}, 1),
        joined({namedValue("--name=a", "a"),
                Lines{"AbbreviationParser: not using tokenizer",
                      "AbbreviationParserValue 'a' is not valid for option 'name' in argument "
                      "'--name=a' One of the handler signaled the value is not valid."}}));
}

// A list is split at the separator that the option had before the first event.
TEST(TraceOfValues, HandlerThatChangesTheSeparatorChangesNoLineOfTheList)
{
    const std::string sent = "AbbreviationParser: sent event on value parsed, option: 'name', ";
    const struct
    {
        wchar_t before;
        wchar_t after;
        Lines lines;
    } rows[] = {
        {L',',
         0,
         {"AbbreviationParser: using tokenizer on char: ','", "AbbreviationParser: value is: 'a'",
          sent + "value: 'a'", "AbbreviationParser: value is: 'b'", sent + "value: 'b'"}},
        {0, L',', {"AbbreviationParser: not using tokenizer"}}};
    for (const auto& row : rows)
    {
        Host host;
        IOption& option = host.addOption(L"name").setSeparator(row.before);
        Events events;
        RecordingHandler handler(events);
        handler.answerValue = [&](const wchar_t*, const ValueRecord&)
        {
            option.setSeparator(row.after);
            return true;
        };
        host.parser().addEventHandler(&handler);
        EXPECT_EQ(traceOf(host, {L"--name=a,b"}),
                  joined({namedValue("--name=a,b", "a,b"), row.lines,
                          Lines{"AbbreviationParser: stored option to result container.",
                                "AbbreviationParser: removing argument: '--name=a,b'"}}));
    }
}

TEST(TraceOfPositionalArguments, OneValue)
{
    Host host;
    host.addPositional(L"path");
    EXPECT_EQ(traceOf(host, {L"x"}),
              joined({Lines{"PositionalOptionsParser: recognizing argument 'x'",
                            "AbbreviationParser: recognizing argument 'x'",
                            "PositionalOptionsParser: parsing argument 'x'",
                            "PositionalOptionsParser: option is 'path'"},
                      positionalStored("path", "x"),
                      Lines{"PositionalOptionsParser: removing argument: 'x'"}}));
}

TEST(TraceOfPositionalArguments, AnEmptyValueStoresNothingButTheOption)
{
    Host host;
    host.addPositional(L"path");
    EXPECT_EQ(traceOf(host, {L""}),
              (Lines{"PositionalOptionsParser: recognizing argument ''",
                     "AbbreviationParser: recognizing argument ''",
                     "PositionalOptionsParser: parsing argument ''",
                     "PositionalOptionsParser: option is 'path'",
                     "PositionalOptionsParser: stored option to result container.",
                     "PositionalOptionsParser: removing argument: ''"}));
}

TEST(TraceOfPositionalArguments, Flag16StoresAllInOneParse)
{
    Host host(16);
    host.addPositional(L"path");
    EXPECT_EQ(traceOf(host, {L"x", L"-y"}),
              joined({Lines{"PositionalOptionsParser: recognizing argument 'x'",
                            "AbbreviationParser: recognizing argument 'x'",
                            "PositionalOptionsParser: parsing argument 'x'",
                            "PositionalOptionsParser: option is 'path'"},
                      positionalStored("path", "x"),
                      Lines{"PositionalOptionsParser: removing argument: 'x'"},
                      positionalStored("path", "-y"),
                      Lines{"PositionalOptionsParser: removing argument: '-y'"}}));
}

TEST(TraceOfPositionalArguments, Flag8TracesWhatItDeclines)
{
    Host host(8);
    host.addPositional(L"path");
    EXPECT_EQ(traceOf(host, {L"-x"}),
              (Lines{"PositionalOptionsParser: recognizing argument '-x'",
                     "AbbreviationParser: recognizing argument '-x'", "ignoring -x"}));
}

TEST(TraceOfPositionalArguments, AFailureLeavesTheArgument)
{
    Host host;
    host.addOption(L"number", value_type_integer).setMarked();
    EXPECT_EQ(traceOf(host, {L"x"}, 2),
              (Lines{"PositionalOptionsParser: recognizing argument 'x'",
                     "AbbreviationParser: recognizing argument 'x'",
                     "PositionalOptionsParser: parsing argument 'x'",
                     "PositionalOptionsParser: option is 'number'",
                     "PositionalOptionsParser: adding values to result container:",
                     "PositionalOptionsParser: using tokenizer on char: ','",
                     "PositionalOptionsParser: value is: 'x'",
                     "PositionalOptionsParser: Value validation problem in argument 'x': Option "
                     "'number' can not parse 'x' value, requires a type 'integer' here."}));
}

TEST(TraceOfUnknownArguments, ADroppedOneIsIgnored)
{
    Host host;
    EXPECT_EQ(traceOf(host, {L"x y", L""}),
              (Lines{"PositionalOptionsParser: recognizing argument 'x y'",
                     "AbbreviationParser: recognizing argument 'x y'", "ignoring x y",
                     "PositionalOptionsParser: recognizing argument ''",
                     "AbbreviationParser: recognizing argument ''", "ignoring "}));
}

TEST(TraceOfUnknownArguments, ATakenOneIsIgnoredUnderFlag2)
{
    Events events;
    RecordingHandler handler(events);
    handler.answerUnknown = [](const wchar_t*)
    {
        return false;
    };
    Host host(2);
    ASSERT_TRUE(host.parser().addEventHandler(&handler));
    EXPECT_EQ(traceOf(host, {L"x"}),
              (Lines{"PositionalOptionsParser: recognizing argument 'x'",
                     "AbbreviationParser: recognizing argument 'x'", "ignoring x"}));
}

TEST(TraceOfUnknownArguments, AReportedOneIsNotIgnored)
{
    Host host(2);
    EXPECT_EQ(traceOf(host, {L"x"}, 2), (Lines{"PositionalOptionsParser: recognizing argument 'x'",
                                               "AbbreviationParser: recognizing argument 'x'"}));
}

TEST(TraceOfLeftOverArguments, AreStored)
{
    Host host;
    EXPECT_EQ(traceOf(host, {L"--", L"x", L"--"}),
              (Lines{"PositionalOptionsParser: recognizing argument 'x'",
                     "collectNonparsingArguments: recognize result: 1, message: ",
                     "collectNonparsingArguments: stored argument: 'x'",
                     "PositionalOptionsParser: recognizing argument '--'",
                     "collectNonparsingArguments: recognize result: 1, message: ",
                     "collectNonparsingArguments: stored argument: '--'"}));
}

TEST(TraceOfLeftOverArguments, AreParsedWhenPositional)
{
    Host host;
    host.addPositional(L"path");
    EXPECT_EQ(traceOf(host, {L"--", L"x"}),
              joined({Lines{"PositionalOptionsParser: recognizing argument 'x'",
                            "collectNonparsingArguments: recognize result: 0, message: ",
                            "PositionalOptionsParser: parsing argument 'x'",
                            "PositionalOptionsParser: option is 'path'"},
                      positionalStored("path", "x"),
                      Lines{"PositionalOptionsParser: removing argument: 'x'",
                            "collectNonparsingArguments: parse result: 0, message: "}}));
}

// After the marker, flag 4 cancels flag 8 but not flag 16.
TEST(TraceOfLeftOverArguments, AreParsedInOneGoUnderFlags4And16)
{
    Host host(4 | 8 | 16);
    host.addPositional(L"path");
    EXPECT_EQ(traceOf(host, {L"--", L"-x", L"y"}),
              joined({Lines{"PositionalOptionsParser: recognizing argument '-x'",
                            "collectNonparsingArguments: recognize result: 0, message: ",
                            "PositionalOptionsParser: parsing argument '-x'",
                            "PositionalOptionsParser: option is 'path'"},
                      positionalStored("path", "-x"),
                      Lines{"PositionalOptionsParser: removing argument: '-x'"},
                      positionalStored("path", "y"),
                      Lines{"PositionalOptionsParser: removing argument: 'y'",
                            "collectNonparsingArguments: parse result: 0, message: "}}));
}

TEST(TraceOfLeftOverArguments, ShowTheirError)
{
    const std::string error = "Value validation problem in argument 'x': Option 'number' can not "
                              "parse 'x' value, requires a type 'integer' here.";
    Host host;
    host.addOption(L"number", value_type_integer).setMarked().setSeparator(0);
    EXPECT_EQ(
        traceOf(host, {L"--", L"x"}, 2),
        (Lines{"PositionalOptionsParser: recognizing argument 'x'",
               "collectNonparsingArguments: recognize result: 0, message: ",
               "PositionalOptionsParser: parsing argument 'x'",
               "PositionalOptionsParser: option is 'number'",
               "PositionalOptionsParser: adding values to result container:",
               "PositionalOptionsParser: not using tokenizer", "PositionalOptionsParser: " + error,
               "collectNonparsingArguments: parse result: 2, message: " + error}));
}

TEST(TraceOfLeftOverArguments, ShowTheMessageThatAnEarlierParseLeft)
{
    Host host(2);
    EXPECT_EQ(host.parse({L"x"}), 2);
    EXPECT_EQ(traceOf(host, {L"--", L"y"}),
              (Lines{"PositionalOptionsParser: recognizing argument 'y'",
                     "collectNonparsingArguments: recognize result: 1, message: Unknown option: x",
                     "collectNonparsingArguments: stored argument: 'y'"}));
}
