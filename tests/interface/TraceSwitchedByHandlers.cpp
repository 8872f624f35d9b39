// Handlers that switch the trace on or off while an argument is parsed.
#include "RecordingHandler.h"
#include "TraceLines.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;

class TraceSwitchedByAHandler : public testing::Test
{
protected:
    TraceSwitchedByAHandler()
    {
        host.addOption(L"name");
        host.parser().addEventHandler(&handler);
    }

    // A handler that parses one argument with another parser. The trace is on afterwards if the
    // argument is the keyword, else off.
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

// The switch is read for each line, so a trace can begin or end within an argument.
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
    // The second argument is traced from its first line on.
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
