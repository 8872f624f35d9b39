// Actions without hyphens, and subcommands.
#include <gtest/gtest.h>

#include <string>

#include "Outcomes.h"

namespace
{

struct Row
{
    const char* line;
    const char* outcome;
};

void PrintTo(const Row& row, std::ostream* stream)
{
    *stream << row.line;
}

struct Sums
{
    bool sum = false;
    bool submit = false;
    bool list = false;
    std::vector<std::string> paths;
};

class Verb : public testing::TestWithParam<Row>
{
};

TEST_P(Verb, NamesAnAction)
{
    kexa::Command<Sums> command("filesum");
    command.verbs();
    command.action(&Sums::sum, "sum", "");
    command.action(&Sums::submit, "submit", "");
    command.action(&Sums::list, "list", "");
    command.positional(&Sums::paths, "path", "");
    const auto show = [](const Sums& sums)
    {
        std::string text = sums.sum ? "sum" : sums.submit ? "submit" : sums.list ? "list" : "none";
        for (const std::string& path : sums.paths)
        {
            text += " " + path;
        }
        return text;
    };
    EXPECT_EQ(toolbox::outcomeOf(command, GetParam().line, show), GetParam().outcome);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Verb,
    testing::Values(Row{"sum a", "sum a"}, Row{"l a sum", "list a sum"},
                    Row{"--list sum", "list sum"}, Row{"list ./sum", "list ./sum"},
                    Row{"sub", "submit"},
                    Row{"su a", "2 Ambiguous command 'su', could be: 'submit', 'sum' | #1"},
                    Row{"smu a", "2 No action defined. | give one of 'sum', 'submit', 'list'"},
                    Row{"-- sum", "2 No action defined. | give one of 'sum', 'submit', 'list'"},
                    Row{"sum --list",
                        "2 Action '-sum' and action '-list' were defined, but only one action "
                        "possible."},
                    Row{"", "none"}));

struct Add
{
    bool force = false;
    std::string name;
};
struct Remote
{
    std::optional<Add> add;
};
struct Push
{
    bool force = false;
    std::vector<std::string> refs;
};
struct Git
{
    bool verbose = false;
    std::optional<Push> push;
    std::optional<Remote> remote;
};

kexa::Command<Git> makeGit()
{
    kexa::Command<Add> add("add", "Adds a remote.");
    add.option(&Add::force, "force,f", "Even if it is there");
    add.positional(&Add::name, "name", "Its name").required();
    kexa::Command<Remote> remote("remote", "Manages remotes.");
    remote.subcommand(&Remote::add, add);
    remote.actionRequired();
    kexa::Command<Push> push("push", "Sends commits.");
    push.option(&Push::force, "force,f", "Overwrite");
    push.positional(&Push::refs, "ref", "What to send");
    kexa::Command<Git> git("git", "Keeps versions.");
    git.option(&Git::verbose, "verbose,v", "Say more");
    git.subcommand(&Git::push, push);
    git.subcommand(&Git::remote, remote);
    return git;
}

std::string show(const Git& git)
{
    std::string text = git.verbose ? "verbose" : "quiet";
    if (git.push)
    {
        text += git.push->force ? " push!" : " push";
        for (const std::string& ref : git.push->refs)
        {
            text += " " + ref;
        }
    }
    if (git.remote && git.remote->add)
    {
        text += " add " + git.remote->add->name;
    }
    return text;
}

class Subcommand : public testing::TestWithParam<Row>
{
};

TEST_P(Subcommand, HasTheWordsBehindIt)
{
    kexa::Command<Git> git = makeGit();
    EXPECT_EQ(toolbox::outcomeOf(git, GetParam().line, show), GetParam().outcome);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Subcommand,
    testing::Values(Row{"", "quiet"}, Row{"-v push -f a b", "verbose push! a b"},
                    Row{"pu", "quiet push"}, Row{"rem a origin", "quiet add origin"},
                    Row{"psuh", "2 Unknown command: psuh | did you mean 'push'? | #1"},
                    Row{"push -v", "2 Unknown option: -v | #2"},
                    Row{"-x push", "2 Unknown option: -x | #1"},
                    Row{"remote add", "2 missing argument: name | name"},
                    Row{"remote", "2 No command given. | give one of 'add'"},
                    Row{"remote add --help", "Usage: git remote add [options] name\n"
                                             "\n"
                                             "Adds a remote.\n"
                                             "\n"
                                             "Arguments:\n"
                                             "  name         Its name [required]\n"
                                             "\n"
                                             "Options:\n"
                                             "  -f, --force  Even if it is there\n"
                                             "  -h, --help   Show this help\n"},
                    Row{"--help", "Usage: git [options] command ...\n"
                                  "\n"
                                  "Keeps versions.\n"
                                  "\n"
                                  "Commands:\n"
                                  "  push           Sends commits.\n"
                                  "  remote         Manages remotes.\n"
                                  "\n"
                                  "Options:\n"
                                  "  -v, --verbose  Say more\n"
                                  "  -h, --help     Show this help\n"}));

TEST(Subcommands, TellWhereTheirValuesComeFrom)
{
    kexa::Command<Git> git = makeGit();
    using kexa::Source;
    const auto pushed = git.parseLine("push -f");
    EXPECT_EQ(pushed.source(&Git::push), Source::given);
    EXPECT_EQ(pushed.source(&Git::push, &Push::force), Source::given);
    EXPECT_EQ(pushed.source(&Git::push, &Push::refs), Source::defaulted);
    EXPECT_EQ(pushed.source(&Git::remote, &Remote::add, &Add::force), Source::defaulted);
    const auto added = git.parseLine("remote add origin");
    EXPECT_EQ(added.source(&Git::remote, &Remote::add, &Add::name), Source::given);
    EXPECT_EQ(added.source(&Git::remote, &Remote::add, &Add::force), Source::defaulted);
    EXPECT_EQ(added.source(&Git::push, &Push::force), Source::defaulted);
}

TEST(Subcommands, AreTopicsOfTheHelp)
{
    kexa::Command<Git> git = makeGit();
    const std::string push = git.help("push");
    EXPECT_EQ(push.substr(0, 15), "Usage: git push");
    EXPECT_EQ(git.parseLine("--help push").text(), push);
    EXPECT_EQ(git.parseLine("-h pu -x").text(), push);
    EXPECT_EQ(git.parseLine("--help=push").text(), push);
    EXPECT_EQ(git.parseLine("--help verbose").text(), "  -v, --verbose  Say more\n");
    EXPECT_EQ(git.parseLine("--help there-is-none").text(), git.help());
    EXPECT_EQ(git.parseLine("push --help force").text(), "  -f, --force  Overwrite\n");
}

TEST(Subcommands, WarnOfWhatIsDeprecated)
{
    kexa::Command<Push> push("push", "Sends commits.");
    push.option(&Push::force, "force", "Overwrite").deprecated("use --lease");
    kexa::Command<Git> git("git", "Keeps versions.");
    git.option(&Git::verbose, "verbose,v", "Say more").deprecated("use --log");
    git.subcommand(&Git::push, push);
    using Texts = std::vector<std::string>;
    EXPECT_EQ(
        git.parseLine("-v -v push --force").warnings(),
        (Texts{"'--verbose' is deprecated: use --log", "'--force' is deprecated: use --lease"}));
    EXPECT_EQ(git.parseLine("push").warnings(), Texts());
}

TEST(Subcommands, AreNamedWithTheirPathInReports)
{
    kexa::Command<Git> git = makeGit();
    const auto parsed = git.parseLine("remote add");
    EXPECT_EQ(kexa::detail::describe(parsed.outcome()),
              "git remote add: missing argument: name\nTry 'git remote add --help'.\n");
}

} // namespace
