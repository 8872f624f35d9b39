// Mistakes of a program are told where they are made.
#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

#include "Outcomes.h"

namespace
{

enum class Mode
{
    fast,
    careful
};

struct Inner
{
};

struct Settings
{
    bool flag = false;
    bool action = false;
    int number = 5;
    std::string text = "none";
    std::string empty;
    std::vector<int> list;
    std::vector<int> more;
    std::optional<Inner> inner;
    Mode mode = Mode::fast;
};

using Declare = std::function<void(kexa::Command<Settings>&)>;

struct Row
{
    Declare declare;
    const char* text;
};

void PrintTo(const Row& row, std::ostream* stream)
{
    *stream << row.text;
}

class Misuse : public testing::TestWithParam<Row>
{
};

TEST_P(Misuse, IsToldAtTheDeclaration)
{
    kexa::Command<Settings> command("tool");
    command.option(&Settings::flag, "flag,f", "");
    try
    {
        GetParam().declare(command);
        FAIL() << "nothing was thrown";
    }
    catch (const std::logic_error& error)
    {
        EXPECT_STREQ(error.what(), GetParam().text);
    }
}

Declare option(const char* names)
{
    return [names](kexa::Command<Settings>& c)
    {
        c.option(&Settings::number, names, "");
    };
}

INSTANTIATE_TEST_SUITE_P(
    Names, Misuse,
    testing::Values(
        Row{option("flag"),
            "kexa: command 'tool', declaration 'flag': the name 'flag' is taken already"},
        Row{option("x,f"),
            "kexa: command 'tool', declaration 'x,f': the name 'f' is taken already"},
        Row{option("x,x"), "kexa: command 'tool', declaration 'x,x': the name 'x' is given twice"},
        Row{option(""), "kexa: command 'tool', declaration '': the name '' is empty"},
        Row{option("x,"), "kexa: command 'tool', declaration 'x,': the name '' is empty"},
        Row{option("--x"), "kexa: command 'tool', declaration '--x': the name '--x' begins with a "
                           "hyphen; names are declared without"},
        Row{option("\u2014x"), "kexa: command 'tool', declaration '\u2014x': the name '\u2014x' "
                               "begins with a hyphen; names are declared without"},
        Row{option("x=y"), "kexa: command 'tool', declaration 'x=y': the name 'x=y' holds '='"},
        Row{option("x y"),
            "kexa: command 'tool', declaration 'x y': the name 'x y' holds white space"},
        Row{option("no-flag"), "kexa: command 'tool', declaration 'no-flag': the name 'no-flag' is "
                               "the 'no-' form of 'flag'"},
        Row{[](auto& c)
            {
                c.option(&Settings::number, "no-x", "");
                c.option(&Settings::action, "x", "");
            },
            "kexa: command 'tool', declaration 'x': the name 'x' has a 'no-' form that is taken "
            "already"},
        Row{[](auto& c) { c.option(&Settings::number, "x", "").alias("f"); },
            "kexa: command 'tool', declaration 'f': the name 'f' is taken already"},
        Row{[](auto& c) { c.positional(&Settings::text, "a,b", ""); },
            "kexa: command 'tool', 'a': a positional argument has one name"},
        Row{[](auto& c)
            {
                c.rest(&Settings::list, "a", "");
                c.positional(&Settings::text, "b", "");
            },
            "kexa: command 'tool', 'b': never gets an argument: 'a' takes all"}));

INSTANTIATE_TEST_SUITE_P(
    Values, Misuse,
    testing::Values(
        Row{[](auto& c) { c.option(&Settings::number, "x", "").range(6, 9); },
            "kexa: command 'tool', '-x': its default is not allowed: less than 6"},
        Row{[](auto& c) {
                c.option(&Settings::text, "x", "").values({"a", "b"});
            },
            "kexa: command 'tool', '-x': its default 'none' is not among its values"},
        Row{[](auto& c) {
                c.option(&Settings::number, "x", "").values({1, 2});
            },
            "kexa: command 'tool', '-x': its default '5' is not among its values"},
        Row{[](auto& c) {
                c.option(&Settings::mode, "x", "").values({{"careful", Mode::careful}});
            },
            "kexa: command 'tool', '-x': its default '' is not among its values"},
        Row{[](auto& c) { c.option(&Settings::empty, "x", "").values({"a"}).deprecated("b", "c"); },
            "kexa: command 'tool', '-x': the replacement 'c' of a deprecated value is not among "
            "its values"},
        Row{[](auto& c) {
                c.option(&Settings::mode, "x", "")
                    .values({{"a", Mode::fast}, {"a", Mode::careful}});
            },
            "kexa: command 'tool', '-x': the name 'a' of a value is empty or given twice"},
        Row{[](auto& c) { c.option(&Settings::text, "x", "").separator(','); },
            "kexa: command 'tool', '-x': only a list has a separator"},
        Row{[](auto& c) { c.option(&Settings::action, "x", "").implicit("a"); },
            "kexa: command 'tool', '-x': an implicit value is a text that is not empty, of an "
            "option that takes a value"},
        Row{[](auto& c) { c.option(&Settings::text, "x", "").times(2); },
            "kexa: command 'tool', '-x': only a positional list takes from so many to so many "
            "arguments"},
        Row{[](auto& c) { c.option(&Settings::text, "x", "").environment("A=B"); },
            "kexa: command 'tool', '-x': 'A=B' names no environment variable"},
        Row{[](auto& c) { c.positional(&Settings::number, "x", "").count(); },
            "kexa: command 'tool', 'x': only an option with an integer can count"},
        Row{[](auto& c) { c.option(&Settings::number, "x", "").environment("X").count(); },
            "kexa: command 'tool', '-x': counts, and so has no values, rules, implicit value or "
            "environment variable"},
        Row{[](auto& c) { c.option(&Settings::number, "x", "").implicit("3").count(); },
            "kexa: command 'tool', '-x': counts, and so has no values, rules, implicit value or "
            "environment variable"},
        Row{[](auto& c) { c.option(&Settings::number, "x", "").range(1, 9).count(); },
            "kexa: command 'tool', '-x': counts, and so has no values, rules, implicit value or "
            "environment variable"},
        Row{[](auto& c) { c.option(&Settings::number, "x", "").count().range(1, 9); },
            "kexa: command 'tool', '-x': counts, and so has no values to check"},
        Row{[](auto& c) { c.option(&Settings::number, "x", "").count().values({5}); },
            "kexa: command 'tool', '-x': counts, and so has no values to check"},
        Row{[](auto& c) { c.option(&Settings::number, "x", "").count().environment("X"); },
            "kexa: command 'tool', '-x': takes no value from the environment"},
        Row{[](auto& c)
            {
                c.positional(&Settings::list, "a", "");
                c.positional(&Settings::more, "b", "").required();
                c.parseLine("");
            },
            "kexa: command 'tool', 'b': never gets what 'a' can take: limit one of them with "
            "times()"},
        Row{[](auto& c)
            {
                c.option(&Settings::mode, "x", "");
                c.parseLine("");
            },
            "kexa: command 'tool', '-x': an option of an enumeration needs values()"}));

INSTANTIATE_TEST_SUITE_P(
    Commands, Misuse,
    testing::Values(
        Row{[](auto& c)
            {
                const auto action = c.action(&Settings::action, "act", "");
                c.option(&Settings::text, "x", "").of(action, action);
            },
            "kexa: command 'tool', '-x': the action '--act' is named twice"},
        Row{[](auto& c)
            {
                c.verbs();
                c.action(&Settings::action, "act", "");
                c.subcommand(&Settings::inner, kexa::Command<Inner>("act"));
            },
            "kexa: command 'tool', '--act': cannot be a verb: a subcommand has the name 'act'"},
        Row{[](auto& c)
            {
                c.subcommand(&Settings::inner, kexa::Command<Inner>("act"));
                c.verbs();
                c.action(&Settings::action, "act", "");
            },
            "kexa: command 'tool', '--act': cannot be a verb: a subcommand has the name 'act'"},
        Row{[](auto& c)
            {
                c.subcommand(&Settings::inner, kexa::Command<Inner>("act"));
                c.action(&Settings::action, "act", "");
                c.verbs();
            },
            "kexa: command 'tool', '--act': cannot be a verb: a subcommand has the name 'act'"},
        Row{[](auto& c)
            {
                kexa::Command<Settings> other("other");
                const auto action = other.action(&Settings::action, "act", "");
                c.option(&Settings::text, "x", "").of(action);
            },
            "kexa: command 'tool', '-x': the action '--act' belongs to another command"},
        Row{[](auto& c)
            {
                kexa::Command<Settings> other("other");
                const auto action = other.action(&Settings::action, "act", "");
                c.together(action);
            },
            "kexa: command 'tool', '--act': belongs to another command"}));

TEST(MisuseOfNothing, AnEmptyTextIsNoValueAndSoAllowedAsDefault)
{
    kexa::Command<Settings> command("tool");
    command.option(&Settings::empty, "x", "").values({"a", "b"});
    EXPECT_TRUE(command.parseLine(""));
    EXPECT_EQ(command.parseLine("-x b")->empty, "b");
}

TEST(MisuseOfNothing, TheCommandWorksBehindIt)
{
    kexa::Command<Settings> command("tool");
    command.option(&Settings::flag, "flag", "");
    EXPECT_THROW(command.option(&Settings::number, "flag", ""), std::logic_error);
    command.option(&Settings::number, "number", "");
    EXPECT_EQ(command.parseLine("--number=3 --flag")->number, 3);
}

} // namespace
