// Values from the environment, and rules between options.
#include <gtest/gtest.h>

#include <string>

#include "../EnvironmentSetting.h"
#include "Outcomes.h"

namespace
{

struct Settings
{
    int number = 1;
    bool flag = false;
    std::vector<std::string> texts;
    std::string user;
    bool fast = false;
    bool safe = false;
};

std::string show(const Settings& settings)
{
    std::string text = std::to_string(settings.number) + (settings.flag ? " flag " : " ");
    for (const std::string& each : settings.texts)
    {
        text += "[" + each + "]";
    }
    return text + settings.user;
}

kexa::Command<Settings> makeCommand()
{
    kexa::Command<Settings> command("env");
    command.option(&Settings::number, "number", "").range(1, 9).environment("KEXA_TEST_NUMBER");
    command.option(&Settings::flag, "flag", "").environment("KEXA_TEST_FLAG");
    command.option(&Settings::texts, "text", "").separator(':').environment("KEXA_TEST_TEXT");
    const auto user =
        command.option(&Settings::user, "user", "").environment("KEXA_TEST_USER").required();
    const auto fast = command.option(&Settings::fast, "fast", "").environment("KEXA_TEST_FAST");
    const auto safe = command.option(&Settings::safe, "safe", "");
    command.excludes(safe, fast);
    command.needs(fast, user);
    return command;
}

TEST(EnvironmentOfOptions, LiesBelowTheCommandLine)
{
    kexa::Command<Settings> command = makeCommand();
    const EnvironmentSetting number("KEXA_TEST_NUMBER", "5");
    const EnvironmentSetting texts("KEXA_TEST_TEXT", "a:b");
    const EnvironmentSetting flag("KEXA_TEST_FLAG", "yes");
    EXPECT_EQ(toolbox::outcomeOf(command, "--user=u", show), "5 flag [a][b]u");
    EXPECT_EQ(toolbox::outcomeOf(command, "--user=u --number=6 --text=c --no-flag", show),
              "6 [c]u");
    const auto parsed = command.parseLine("--user=u --number=6");
    EXPECT_EQ(parsed.source(&Settings::number), kexa::Source::given);
    EXPECT_EQ(parsed.source(&Settings::texts), kexa::Source::environment);
    EXPECT_EQ(parsed.source(&Settings::safe), kexa::Source::defaulted);
}

TEST(EnvironmentOfOptions, IsCheckedAndNamed)
{
    kexa::Command<Settings> command = makeCommand();
    {
        const EnvironmentSetting number("KEXA_TEST_NUMBER", "x");
        EXPECT_EQ(toolbox::outcomeOf(command, "--user=u", show),
                  "2 Value validation problem in argument 'x': Option 'number' can not parse 'x' "
                  "value, requires a type 'integer' here. (environment variable "
                  "'KEXA_TEST_NUMBER') | number");
    }
    {
        const EnvironmentSetting number("KEXA_TEST_NUMBER", "10");
        EXPECT_EQ(toolbox::outcomeOf(command, "--user=u", show),
                  "1 Value '10' is not valid for option 'number' in argument '10': greater than 9 "
                  "(environment variable 'KEXA_TEST_NUMBER') | allowed are 1 to 9 | number");
    }
    const EnvironmentSetting flag("KEXA_TEST_FLAG", "maybe");
    EXPECT_EQ(toolbox::outcomeOf(command, "--user=u", show),
              "2 Option 'flag' is boolean and should be declared in form '--option' or "
              "'--no-option' in argument: 'maybe' (environment variable 'KEXA_TEST_FLAG') | flag");
}

TEST(EnvironmentOfOptions, SatisfiesRequiredAndIsUnsetWhereEmpty)
{
    kexa::Command<Settings> command = makeCommand();
    EXPECT_EQ(toolbox::outcomeOf(command, "", show), "2 missing option: --user | user");
    {
        const EnvironmentSetting user("KEXA_TEST_USER", "");
        EXPECT_EQ(toolbox::outcomeOf(command, "", show), "2 missing option: --user | user");
    }
    const EnvironmentSetting user("KEXA_TEST_USER", "größe");
    EXPECT_EQ(toolbox::outcomeOf(command, "", show), "1 größe");
    EXPECT_EQ(toolbox::outcomeOf(command, "--fast", show), "1 größe");
}

TEST(EnvironmentOfOptions, NeverTriggersExcludes)
{
    kexa::Command<Settings> command = makeCommand();
    const EnvironmentSetting fast("KEXA_TEST_FAST", "1");
    EXPECT_EQ(toolbox::outcomeOf(command, "--user=u --safe", show), "1 u");
    EXPECT_EQ(toolbox::outcomeOf(command, "--user=u --safe --fast", show),
              "2 '--safe' cannot be given together with '--fast' | safe #2");
}

TEST(Relations, OfNeedsAndOneOf)
{
    struct Three
    {
        int a = 0, b = 0, c = 0;
    };
    kexa::Command<Three> command("three");
    const auto a = command.option(&Three::a, "alpha,a", "");
    const auto b = command.option(&Three::b, "beta,b", "");
    const auto c = command.option(&Three::c, "c", "");
    command.needs(a, c);
    command.oneOf(a, b);
    const auto accepted = [](const Three&)
    {
        return std::string("accepted");
    };
    EXPECT_EQ(toolbox::outcomeOf(command, "-a 1 -c 1", accepted), "accepted");
    EXPECT_EQ(toolbox::outcomeOf(command, "-c 1 -a 1 -b 1", accepted),
              "2 only one of these is possible: '--alpha', '--beta'");
    EXPECT_EQ(toolbox::outcomeOf(command, "", accepted),
              "2 one of these is required: '--alpha', '--beta'");
    EXPECT_EQ(toolbox::outcomeOf(command, "-a 1", accepted), "2 '--alpha' needs '-c' | alpha #1");
}

TEST(Relations, OfTheWholeStructAreCheckedLast)
{
    struct Range
    {
        int low = 0, high = 10;
    };
    kexa::Command<Range> command("range");
    command.option(&Range::low, "low", "");
    command.option(&Range::high, "high", "");
    command.require([](const Range& range)
                    { return range.low > range.high ? "low is above high" : nullptr; });
    const auto accepted = [](const Range&)
    {
        return std::string("accepted");
    };
    EXPECT_EQ(toolbox::outcomeOf(command, "--low 11 --high 12", accepted), "accepted");
    EXPECT_EQ(toolbox::outcomeOf(command, "--low 11", accepted), "1 low is above high");
}

TEST(Relations, RequiredWithActionsHoldsForThoseAlone)
{
    struct Actions
    {
        bool list = false, sum = false;
        std::string output;
    };
    kexa::Command<Actions> command("actions");
    command.action(&Actions::list, "list", "");
    const auto sum = command.action(&Actions::sum, "sum", "");
    command.option(&Actions::output, "output", "").of(sum).required();
    const auto accepted = [](const Actions&)
    {
        return std::string("accepted");
    };
    EXPECT_EQ(toolbox::outcomeOf(command, "--list", accepted), "accepted");
    EXPECT_EQ(toolbox::outcomeOf(command, "--sum", accepted),
              "2 missing option: --output | output");
    EXPECT_EQ(toolbox::outcomeOf(command, "--sum --output=x", accepted), "accepted");
}

} // namespace
