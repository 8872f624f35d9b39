// When the trace is on: the keyword that the host never sees.
#include "TraceLines.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;

// What parsing one argument that nothing takes writes while the trace is on.
Lines linesOfIgnored(const std::string& argument)
{
    return {"PositionalOptionsParser: recognizing argument '" + argument + "'",
            "AbbreviationParser: recognizing argument '" + argument + "'", "ignoring " + argument};
}

class TraceSwitch : public testing::Test
{
protected:
    TraceSwitch()
    {
        host.addOption(L"name");
        host.parser().addEventHandler(&handler);
    }

    std::string outputOf(std::initializer_list<const wchar_t*> arguments)
    {
        return captureOutput([&] { EXPECT_EQ(host.parse(arguments), 0); });
    }

    Events events;
    RecordingHandler handler{events};
    Host host;
};

} // namespace

TEST_F(TraceSwitch, OffWithoutTheKeyword)
{
    EXPECT_EQ(outputOf({L"--name=a", L"x", L"--", L"y"}), "");
}

TEST_F(TraceSwitch, OnWithTheKeywordAsTheFirstArgument)
{
    EXPECT_EQ(outputOf({trace_keyword, L"x"}), "PositionalOptionsParser: recognizing argument 'x'\n"
                                               "AbbreviationParser: recognizing argument 'x'\n"
                                               "ignoring x\n");
}

TEST_F(TraceSwitch, TheTraceGoesToStandardOutputOnly)
{
    EXPECT_EQ(captureError([&] { traceOf(host, {L"--name=a", L"x"}); }), "");
}

TEST_F(TraceSwitch, TheKeywordIsSeenByNobody)
{
    host.addPositional(L"path");
    const Lines lines = traceOf(host, {L"--name=a", L"--", L"x"});
    EXPECT_FALSE(lines.empty());
    EXPECT_EQ(events,
              (Events{L"option name", L"value name 'a'", L"option path", L"value path 'x'"}));
    EXPECT_EQ(host.texts(L"path"), (Texts{L"x"}));
    EXPECT_TRUE(host.unparsed().empty());
}

TEST_F(TraceSwitch, TheKeywordAloneIsAnEmptyCommandLine)
{
    host.addSwitch(L"list");
    EXPECT_EQ(outputOf({trace_keyword}), "");
    EXPECT_TRUE(events.empty());
    EXPECT_TRUE(host.unparsed().empty());
}

TEST_F(TraceSwitch, ALaterKeywordIsAnOrdinaryArgument)
{
    EXPECT_EQ(outputOf({L"x", trace_keyword}), "");
    EXPECT_EQ(events, (Events{L"unknown x", L"unknown kexaoption=kexalogenable=1"}));

    Host strict(2);
    EXPECT_EQ(captureOutput(
                  [&]
                  {
                      strict.addOption(L"name");
                      EXPECT_EQ(strict.parse({L"--name=a", trace_keyword}), 2);
                  }),
              "");
    EXPECT_EQ(strict.message(), L"Unknown option: kexaoption=kexalogenable=1");
}

TEST_F(TraceSwitch, BehindTheKeywordItIsAnOrdinaryArgumentToo)
{
    EXPECT_EQ(traceOf(host, {trace_keyword}), linesOfIgnored("kexaoption=kexalogenable=1"));
    EXPECT_EQ(events, (Events{L"unknown kexaoption=kexalogenable=1"}));
}

TEST_F(TraceSwitch, BehindTheEndMarkerItIsLeftOver)
{
    EXPECT_EQ(outputOf({L"--", trace_keyword}), "");
    EXPECT_EQ(host.unparsed(), (Texts{trace_keyword}));
}

TEST_F(TraceSwitch, AnythingButTheExactKeywordIsAnOrdinaryArgument)
{
    for (const wchar_t* argument :
         {L"KEXAOPTION=KEXALOGENABLE=1", L"Kexaoption=kexalogenable=1",
          L"kexaoption=kexalogenable=1 ", L" kexaoption=kexalogenable=1",
          L"kexaoption=kexalogenable", L"kexaoption=kexalogenable=", L"kexaoption=kexalogenable=0",
          L"kexaoption=kexalogenable=11", L"kexaoption", L"--kexaoption=kexalogenable=1", L""})
    {
        SCOPED_TRACE(toUtf8(argument));
        events.clear();
        EXPECT_EQ(outputOf({argument, L"x"}), "");
        EXPECT_EQ(events, (Events{std::wstring(L"unknown ") + argument, L"unknown x"}));
    }
}

TEST_F(TraceSwitch, OffAgainAtTheNextParse)
{
    EXPECT_EQ(traceOf(host, {L"x"}), linesOfIgnored("x"));
    EXPECT_EQ(outputOf({L"x"}), "");
    EXPECT_EQ(traceOf(host, {L"x"}), linesOfIgnored("x"));
    EXPECT_EQ(captureOutput([&] { host.parseLines(L"x"); }), "");
}

TEST_F(TraceSwitch, OffAgainAtTheNextParseWithoutArguments)
{
    EXPECT_EQ(outputOf({trace_keyword}), "");
    EXPECT_EQ(outputOf({}), "");
    EXPECT_EQ(outputOf({L"--", L"x"}), "");
}

TEST_F(TraceSwitch, OffAgainWhenAnotherParserParses)
{
    Host other;
    EXPECT_EQ(traceOf(host, {L"x"}), linesOfIgnored("x"));
    EXPECT_EQ(captureOutput([&] { EXPECT_EQ(other.parse({L"x"}), 0); }), "");
}

TEST_F(TraceSwitch, OnWithoutAResult)
{
    EXPECT_EQ(linesOf(captureOutput(
                  [&] {
                      EXPECT_EQ(parse(host.parser(), {trace_keyword, L"x"}, nullptr), 0);
                  })),
              linesOfIgnored("x"));
}

TEST_F(TraceSwitch, OnInACommandLineTextWithTheKeywordAsItsFirstArgument)
{
    for (const wchar_t* text :
         {L"kexaoption=kexalogenable=1\nx", L"  kexaoption=kexalogenable=1\r\nx\r\n",
          L"; comment\n\nkexaoption=kexalogenable=1\nx"})
    {
        SCOPED_TRACE(toUtf8(text));
        EXPECT_EQ(linesOf(captureOutput([&] { EXPECT_EQ(host.parseLines(text), 0); })),
                  linesOfIgnored("x"));
    }
    for (const wchar_t* text : {L"kexaoption=kexalogenable=1 \nx", L"x\nkexaoption=kexalogenable=1",
                                L"kexaoption=kexalogenable=1 x"})
    {
        SCOPED_TRACE(toUtf8(text));
        EXPECT_EQ(captureOutput([&] { EXPECT_EQ(host.parseLines(text), 0); }), "");
    }
}

TEST_F(TraceSwitch, OffForAnOptionFileThatDoesNotBeginWithTheKeyword)
{
    const TemporaryFolder folder;
    host.parser().enableOptionFiles(L"", L"");
    const std::wstring argument = L"--option-file=" + folder.write(L"file", "x\n--\ny\n");
    const Lines lines = traceOf(host, {L"w", argument.c_str()});
    ASSERT_GE(lines.size(), 3U);
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 3), linesOfIgnored("w"));
    EXPECT_EQ(lines.back(), "AbbreviationParser: removing argument: '" + toUtf8(argument) + "'");
    EXPECT_EQ(host.unparsed(), (Texts{L"y"}));
}

TEST_F(TraceSwitch, OnForAnOptionFileThatBeginsWithTheKeyword)
{
    const TemporaryFolder folder;
    host.parser().enableOptionFiles(L"", L"");
    const std::wstring first =
        folder.write(L"1", "; comment\nkexaoption=kexalogenable=1\nx\n--\ny\n");
    const std::wstring second = folder.write(L"2", "z\n--\nw\n");
    const std::wstring argument = L"--option-file=" + first + L"," + second;
    Lines expected = linesOfIgnored("x");
    expected.insert(expected.end(), {"PositionalOptionsParser: recognizing argument 'y'",
                                     "collectNonparsingArguments: recognize result: 1, message: ",
                                     "collectNonparsingArguments: stored argument: 'y'"});
    EXPECT_EQ(linesOf(captureOutput([&] { EXPECT_EQ(host.parse({argument.c_str()}), 0); })),
              expected);
}

TEST_F(TraceSwitch, TheKeywordOfAFileIsSeenByNobody)
{
    const TemporaryFolder folder;
    host.parser().enableOptionFiles(L"", L"");
    host.addPositional(L"path");
    const std::wstring file = folder.write(L"file", "kexaoption=kexalogenable=1\nx");
    const std::wstring argument = L"--option-file=" + file;
    captureOutput([&] { EXPECT_EQ(host.parse({argument.c_str()}), 0); });
    EXPECT_EQ(host.texts(L"path"), (Texts{L"x"}));
}

namespace
{

class TraceSwitchedByAHandler : public testing::Test
{
protected:
    TraceSwitchedByAHandler()
    {
        host.addOption(L"name");
        host.parser().addEventHandler(&handler);
    }

    // What a handler does when it is to switch the trace: the keyword given to another parser
    // switches it on, anything else off.
    [[nodiscard]] auto parsingElsewhere(const wchar_t* argument)
    {
        return [this, argument](const auto&...)
        {
            other.parse({argument});
            return true;
        };
    }

    Lines linesWhileParsing(std::initializer_list<const wchar_t*> arguments)
    {
        return linesOf(captureOutput([&] { EXPECT_EQ(host.parse(arguments), 0); }));
    }

    Events events;
    RecordingHandler handler{events};
    Host host;
    Host other;
};

const Lines lines_behind_the_option = {"AbbreviationParser: sent event on option parsed",
                                       "AbbreviationParser: adding values to result container:",
                                       "AbbreviationParser: using tokenizer on char: ','"};
const Lines lines_behind_the_first_value = {
    "AbbreviationParser: sent event on value parsed, option: 'name', value: 'a'"};
const Lines lines_at_the_end = {"AbbreviationParser: stored option to result container.",
                                "AbbreviationParser: removing argument: '--name'",
                                "AbbreviationParser: removing argument: 'a,b'"};
const Lines lines_of_the_second_value = {
    "AbbreviationParser: value is: 'b'",
    "AbbreviationParser: sent event on value parsed, option: 'name', value: 'b'"};

} // namespace

// Where a line belongs is decided when it is written.
TEST_F(TraceSwitchedByAHandler, OnFromTheEventOfAnOption)
{
    handler.answerOption = parsingElsewhere(trace_keyword);
    EXPECT_EQ(linesWhileParsing({L"--name", L"a,b"}),
              joined({lines_behind_the_option, Lines{"AbbreviationParser: value is: 'a'"},
                      lines_behind_the_first_value, lines_of_the_second_value, lines_at_the_end}));
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a", L"b"}));
}

TEST_F(TraceSwitchedByAHandler, OnFromTheEventOfAValue)
{
    handler.answerValue = parsingElsewhere(trace_keyword);
    EXPECT_EQ(linesWhileParsing({L"--name", L"a,b"}),
              joined({lines_behind_the_first_value, lines_of_the_second_value, lines_at_the_end}));
    // The next argument is traced from its beginning.
    EXPECT_EQ(linesWhileParsing({L"--name=a", L"x"}),
              joined({lines_behind_the_first_value,
                      Lines{"AbbreviationParser: stored option to result container.",
                            "AbbreviationParser: removing argument: '--name=a'"},
                      linesOfIgnored("x")}));
}

TEST_F(TraceSwitchedByAHandler, OnFromTheEventOfAnUnknownArgument)
{
    handler.answerUnknown = parsingElsewhere(trace_keyword);
    EXPECT_EQ(linesWhileParsing({L"x", L"y"}), joined({Lines{"ignoring x"}, linesOfIgnored("y")}));
}

TEST_F(TraceSwitchedByAHandler, OnFromTheEventOfAPositionalArgument)
{
    Host positional(flag_positional_takes_rest);
    positional.addPositional(L"path");
    positional.parser().addEventHandler(&handler);
    handler.answerOption = parsingElsewhere(trace_keyword);
    const Lines stored = {"PositionalOptionsParser: adding values to result container:",
                          "PositionalOptionsParser: using tokenizer on char: ','",
                          "PositionalOptionsParser: value is: 'x'",
                          "PositionalOptionsParser: sent event on value parsed, option: 'path', "
                          "value: 'x'",
                          "PositionalOptionsParser: stored option to result container.",
                          "PositionalOptionsParser: removing argument: 'x'"};
    EXPECT_EQ(linesOf(captureOutput(
                  [&] {
                      EXPECT_EQ(positional.parse({L"x", L"x"}), 0);
                  })),
              joined({stored, stored}));
}

TEST_F(TraceSwitchedByAHandler, OffFromTheEventOfAnOption)
{
    handler.answerOption = parsingElsewhere(L"x");
    const Lines lines = linesWhileParsing({trace_keyword, L"--name=a", L"--name=b"});
    EXPECT_EQ(lines, (Lines{"PositionalOptionsParser: recognizing argument '--name=a'",
                            "AbbreviationParser: recognizing argument '--name=a'",
                            "AbbreviationParser: best match option for 'name' in argument "
                            "'--name=a' is 'name'",
                            "AbbreviationParser: parsing argument '--name=a'",
                            "AbbreviationParser: detected option: 'name'",
                            "AbbreviationParser: value from the same argument taken: 'a'"}));
}
