// Positional arguments spread over several members.
#include <gtest/gtest.h>

#include <string>

#include "Outcomes.h"

namespace
{

struct Settings
{
    bool verbose = false;
    int count = 0;
    std::string target;
    std::vector<std::string> sources;
    std::vector<std::string> rest;
};

std::string show(const Settings& settings)
{
    std::string text = std::to_string(settings.count) + " " + settings.target + " ";
    for (const std::string& source : settings.sources)
    {
        text += "[" + source + "]";
    }
    for (const std::string& word : settings.rest)
    {
        text += "<" + word + ">";
    }
    return settings.verbose ? text + " verbose" : text;
}

struct Row
{
    const char* line;
    const char* outcome;
};

void PrintTo(const Row& row, std::ostream* stream)
{
    *stream << row.line;
}

class SourcesAndTarget : public testing::TestWithParam<Row>
{
};
class CountThenRest : public testing::TestWithParam<Row>
{
};

TEST_P(SourcesAndTarget, GetWhatTheyNeed)
{
    kexa::Command<Settings> command("copy");
    command.option(&Settings::verbose, "verbose,v", "");
    command.positional(&Settings::sources, "source", "").times(1, 3);
    command.positional(&Settings::target, "target", "").required();
    EXPECT_EQ(toolbox::outcomeOf(command, GetParam().line, show), GetParam().outcome);
}

INSTANTIATE_TEST_SUITE_P(
    Table, SourcesAndTarget,
    testing::Values(Row{"", "2 missing argument: source | source"},
                    Row{"a", "2 missing argument: target | target"}, Row{"a b", "0 b [a]"},
                    Row{"a b c d", "0 d [a][b][c]"},
                    Row{"a b c d e", "2 too many arguments: 'e' | #5"},
                    Row{"a -v b", "0 b [a] verbose"}, Row{"a -- -v", "0 -v [a]"},
                    Row{"-- a --", "0 -- [a]"}, Row{"- ''", "0  [-]"},
                    Row{"a b c d e --help=verbose", "  -v, --verbose\n"},
                    Row{"a b c d e --verbos=f", "2 too many arguments: 'e' | #5"}));

TEST_P(CountThenRest, TakesEverythingBehind)
{
    kexa::Command<Settings> command("run");
    command.option(&Settings::verbose, "verbose,v", "");
    command.positional(&Settings::count, "count", "").required();
    command.rest(&Settings::rest, "word", "");
    EXPECT_EQ(toolbox::outcomeOf(command, GetParam().line, show), GetParam().outcome);
}

INSTANTIATE_TEST_SUITE_P(
    Table, CountThenRest,
    testing::Values(
        Row{"3", "3  "}, Row{"-v 3 a -v --help -- x", "3  <a><-v><--help><--><x> verbose"},
        Row{"3 -v a", "3  <a> verbose"}, Row{"3 -- -v", "3  <-v>"},
        Row{"x a", "2 Value validation problem in argument 'x': Option 'count' can not parse 'x' "
                   "value, requires a type 'integer' here. | count #1"},
        Row{"''", "2 Value validation problem in argument '': Option 'count' can not parse '' "
                  "value, requires a type 'integer' here. | count #1"}));

TEST(Positionals, AreNotNamedOnTheLine)
{
    kexa::Command<Settings> command("copy");
    command.positional(&Settings::target, "target", "");
    EXPECT_EQ(toolbox::outcomeOf(command, "--target=x", show), "2 Unknown option: --target=x | #1");
}

TEST(Positionals, ThatNobodyDeclaredAreUnknown)
{
    kexa::Command<Settings> command("none");
    command.option(&Settings::verbose, "verbose", "");
    EXPECT_EQ(toolbox::outcomeOf(command, "verbos", show),
              "2 Unknown option: verbos | did you mean '--verbose'? | #1");
}

TEST(Positionals, OfAnActionTakePartWithItAlone)
{
    struct Actions
    {
        bool copy = false;
        bool list = false;
        std::string source;
        std::string pattern;
    };
    kexa::Command<Actions> command("both");
    command.verbs();
    const auto copy = command.action(&Actions::copy, "copy", "");
    const auto list = command.action(&Actions::list, "list", "");
    command.positional(&Actions::source, "source", "").of(copy).required();
    command.positional(&Actions::pattern, "pattern", "").of(list);
    const auto read = [](const Actions& actions)
    {
        return actions.source + "|" + actions.pattern;
    };
    EXPECT_EQ(toolbox::outcomeOf(command, "copy a", read), "a|");
    EXPECT_EQ(toolbox::outcomeOf(command, "list a", read), "|a");
    EXPECT_EQ(toolbox::outcomeOf(command, "list", read), "|");
    EXPECT_EQ(toolbox::outcomeOf(command, "copy", read), "2 missing argument: source | source");
}

} // namespace
