// The argument that switches the trace on, and when the trace is off again.
#include "TraceLines.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;

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

TEST_F(TraceSwitch, TheKeywordIsNoArgument)
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

TEST_F(TraceSwitch, TheKeywordOfAFileIsNoArgument)
{
    const TemporaryFolder folder;
    host.parser().enableOptionFiles(L"", L"");
    host.addPositional(L"path");
    const std::wstring file = folder.write(L"file", "kexaoption=kexalogenable=1\nx");
    const std::wstring argument = L"--option-file=" + file;
    captureOutput([&] { EXPECT_EQ(host.parse({argument.c_str()}), 0); });
    EXPECT_EQ(host.texts(L"path"), (Texts{L"x"}));
}
