// The report of each mistake of a user: the whole message, the hint and the place.
#include <gtest/gtest.h>

#include <string>

#include "Outcomes.h"

namespace
{

enum class Mode
{
    fast,
    careful
};

struct Settings
{
    bool list = false;
    bool sum = false;
    bool remove = false;
    bool verbose = false;
    bool color = true;
    Mode mode = Mode::careful;
    std::int32_t offset = 0;
    std::uint8_t level = 3;
    std::uint32_t buffer = 4096;
    double ratio = 0.5;
    std::string output = "out";
    int depth = 1;
    std::vector<int> sizes;
    std::vector<std::string> paths;
};

kexa::Command<Settings> makeCommand()
{
    kexa::Command<Settings> command("filesum", "Lists and sums up files.");
    const auto list = command.action(&Settings::list, "list,l", "Print sizes");
    const auto sum = command.action(&Settings::sum, "sum,s", "Print checksums");
    command.action(&Settings::remove, "remove", "Remove files");
    command.together(list, sum);
    command.option(&Settings::verbose, "verbose,v", "Say what happens");
    command.option(&Settings::color, "color", "Use colours");
    command.option(&Settings::mode, "mode,m", "How to read")
        .values({{"fast", Mode::fast}, {"careful", Mode::careful}});
    command.option(&Settings::offset, "offset", "Where to begin");
    command.option(&Settings::level, "level", "How much");
    command.option(&Settings::buffer, "buffer-size", "Bytes to read at a time").range(1, 1 << 26);
    command.option(&Settings::ratio, "ratio", "How many");
    command.option(&Settings::output, "output,o", "Write here").of(sum);
    command.option(&Settings::depth, "depth", "How deep").of(list, sum);
    command.option(&Settings::sizes, "sizes", "Sizes")
        .separator(',')
        .check([](int size) { return size % 2 == 0 ? nullptr : "is odd"; });
    command.positional(&Settings::paths, "path", "Files and folders").required();
    return command;
}

struct Row
{
    const char* line;
    const char* outcome;
};

std::string dots(const Settings&)
{
    return "accepted";
}

void PrintTo(const Row& row, std::ostream* stream)
{
    *stream << row.line;
}

class UserMistake : public testing::TestWithParam<Row>
{
};

TEST_P(UserMistake, IsToldWhole)
{
    kexa::Command<Settings> command = makeCommand();
    EXPECT_EQ(toolbox::outcomeOf(command, GetParam().line, dots), GetParam().outcome);
}

INSTANTIATE_TEST_SUITE_P(
    Names, UserMistake,
    testing::Values(
        Row{"-s --outptu=f x", "2 Unknown option: --outptu=f | did you mean '--output'? | #2"},
        Row{"-s --no-verbsoe x",
            "2 Unknown option: --no-verbsoe | did you mean '--no-verbose'? | #2"},
        Row{"--lits x", "2 Unknown option: --lits | did you mean '--list'? | #1"},
        Row{"-s --xyzzy x", "2 Unknown option: --xyzzy | #2"},
        Row{"-s -x x", "2 Unknown option: -x | #2"},
        Row{"-s --no x", "2 Ambiguous option 'no' in argument: '--no', could be: 'no-verbose', "
                         "'no-v', 'no-color' | #2"},
        Row{"-s --=f x", "2 Unknown option '--=f' | #2"},
        Row{"-s ---sum x", "2 Unknown option: ---sum | did you mean '--sum'? | #2"},
        Row{"-s --sum=3 x",
            "2 Option 'sum'does not requires a value in argument: '--sum=3' | sum #2"}));

INSTANTIATE_TEST_SUITE_P(
    Values, UserMistake,
    testing::Values(
        Row{"-s x --output", "2 Option 'output' requires a value in argument: '--output' | "
                             "output #3"},
        Row{"-s x --outp ''",
            "2 Option 'output' requires a value in argument: '--outp' | output #3"},
        Row{"-s x --outp= y", "2 Option 'output' requires a value in argument: '--outp=' | "
                              "output #3"},
        Row{"-s x --output --verbose",
            "2 Option 'output' received value from the next argument: '--verbose', but it seems to "
            "be an option. Use '-option=value' declaration form or make sure that value is not "
            "missed | output #3"},
        Row{"-s x --off 12x",
            "2 Value validation problem in argument '--off': Option 'offset' can not parse '12x' "
            "value, requires a type 'integer' here. | offset #3"},
        Row{"-s x --off=99999999999",
            "2 Value validation problem in argument '--off=99999999999': Option 'offset' can not "
            "parse '99999999999' value, requires a type 'integer' here. | allowed are -2147483648 "
            "to 2147483647 | offset #3"},
        Row{"-s x --level=256",
            "1 Value '256' is not valid for option 'level' in argument "
            "'--level=256': greater than 255 | allowed are 0 to 255 | level #3"},
        Row{"-s x --buffer 0", "1 Value '0' is not valid for option 'buffer-size' in argument "
                               "'--buffer': less than 1 | allowed are 1 to 67108864 | "
                               "buffer-size #3"},
        Row{"-s x --buffer -3",
            "2 Value validation problem in argument '--buffer': Option 'buffer-size' can not parse "
            "'-3' value, requires a type 'unsigned integer' here. | allowed are 1 to 67108864 | "
            "buffer-size #3"},
        Row{"-s x --ratio=1e999",
            "2 Value validation problem in argument '--ratio=1e999': Option 'ratio' can not parse "
            "'1e999' value, requires a type 'double' here. | ratio #3"},
        Row{"-s x -m fsat",
            "2 Value validation problem in argument '-m': Option 'mode' does not allow value "
            "'fsat'. Possible values follows: 'fast', 'careful' | did you mean 'fast'? | mode #3"},
        Row{"-s x --sizes 2,3,4", "1 Value '2,3,4' is not valid for option 'sizes' in argument "
                                  "'--sizes': '3': is odd | sizes #3"},
        Row{"-s x --sizes 3",
            "1 Value '3' is not valid for option 'sizes' in argument '--sizes': is odd | sizes #3"},
        Row{"-s x --sizes=,", "2 No value parsed in argument ',' for option 'sizes' | sizes #3"},
        Row{"-s x --verbose=maybe",
            "2 Option 'verbose' is boolean and should be declared in form '--option' or "
            "'--no-option' in argument: '--verbose=maybe' | allowed are 'true' and 'false' | "
            "verbose #3"}));

INSTANTIATE_TEST_SUITE_P(
    Actions, UserMistake,
    testing::Values(
        Row{"x", "2 No action defined. | give one of '--list', '--sum', '--remove'"},
        Row{"--list --remove x", "2 Action '-remove' and action '-list' were defined, but only one "
                                 "action possible."},
        Row{"-l --output=f x", "2 Action '-list' doesn't accept option '-output' | output #2"},
        Row{"--list --sum -o f x", "accepted"}, Row{"-s -o f x", "accepted"},
        Row{"-o f x --list", "2 Action '-list' doesn't accept option '-output' | output #1"},
        Row{"--remove -o f --depth 3 x",
            "2 Action '-remove' doesn't accept option '-depth' | depth #4"},
        Row{"-l", "2 missing argument: path | path"}, Row{"", "2 missing argument: path | path"},
        Row{"-l 'x", "2 unterminated quote: 'x"}));

// If a line has several mistakes, the first one is reported.
INSTANTIATE_TEST_SUITE_P(
    Several, UserMistake,
    testing::Values(
        Row{"--offset=x --outptu",
            "2 Value validation problem in argument '--offset=x': Option 'offset' can not parse "
            "'x' value, requires a type 'integer' here. | offset #1"},
        Row{"--outptu --offset=x", "2 Unknown option: --outptu | did you mean '--output'? | #1"}));

TEST(UserMistakes, DoNotSpoilTheNextParse)
{
    kexa::Command<Settings> command = makeCommand();
    EXPECT_EQ(toolbox::outcomeOf(command, "--sum --outptu x", dots),
              "2 Unknown option: --outptu | did you mean '--output'? | #2");
    EXPECT_EQ(toolbox::outcomeOf(command, "--sum --output=f x", dots), "accepted");
}

TEST(UserMistakes, AreOverruledByHelp)
{
    kexa::Command<Settings> command = makeCommand();
    for (const char* line : {"--outptu --help", "--offset --help", "--output= -h", "x --he"})
    {
        EXPECT_EQ(command.parseLine(line).status(), kexa::Status::help) << line;
    }
    EXPECT_EQ(command.parseLine("-l -- --help").status(), kexa::Status::success);
}

TEST(UserMistakes, AreToldInWideTextToo)
{
    kexa::Command<Settings> command = makeCommand();
    const auto parsed = command.parseLine("-s --größe x");
    ASSERT_EQ(parsed.status(), kexa::Status::error);
    EXPECT_EQ(parsed.error().message, "Unknown option: --größe");
    EXPECT_EQ(parsed.error().wideMessage, L"Unknown option: --gr\u00f6\u00dfe");
}

} // namespace
