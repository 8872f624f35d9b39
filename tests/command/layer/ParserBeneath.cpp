// Options that a program declares at the parser beneath, on lines that the layer parses.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Outcomes.h"

namespace
{

struct Settings
{
    bool verbose = false;
    int offset = 0;
    std::vector<std::string> paths;
};

std::string shownSettings(const Settings& settings)
{
    std::string text = settings.verbose ? "verbose" : "quiet";
    text += " " + std::to_string(settings.offset);
    for (const std::string& path : settings.paths)
    {
        text += " " + path;
    }
    return text;
}

class ParserBeneath : public testing::Test
{
protected:
    ParserBeneath()
    {
        command.option(&Settings::verbose, "verbose,v", "");
        command.option(&Settings::offset, "offset", "");
        command.positional(&Settings::paths, "path", "");
        command.parser().addOption(L"raw,r", L"", kexa_3_3::value_type_integer, L"");
        command.parser().addOption(L"wild", L"", kexa_3_3::value_type_boolean, L"");
        command.parser().addOption(L"6", L"", kexa_3_3::value_type_boolean, L"");
    }

    std::string outcome(const char* line)
    {
        return toolbox::outcomeOf(command, line, shownSettings);
    }

    kexa::Command<Settings> command{"tool"};
};

TEST_F(ParserBeneath, OptionsStandAmongThoseOfTheCommand)
{
    EXPECT_EQ(outcome("-v --raw=5 a -r=6 --no-wild --offset=3 b"), "verbose 3 a b");
    EXPECT_EQ(outcome("--wild x"), "quiet 0 x");
    EXPECT_EQ(outcome("--offset -6"), "2 Option 'offset' received value from the next argument: "
                                      "'-6', but it seems to be an option. Use '-option=value' "
                                      "declaration form or make sure that value is not missed | "
                                      "offset #1");
    EXPECT_EQ(outcome("--offset -7"), "quiet -7");
}

TEST_F(ParserBeneath, ValuesAreInTheResult)
{
    const auto parsed = command.parseLine("-v --raw=5 a --no-wild --raw=7");
    ASSERT_TRUE(parsed);
    ASSERT_NE(parsed.result(), nullptr);
    kexa_3_3::Value value;
    ASSERT_EQ(parsed.result()->getFirstValue(&value, L"raw", 0, kexa_3_3::no_position), 0);
    EXPECT_EQ(value.as<vexkit2::s32_t>(), 5);
    ASSERT_EQ(parsed.result()->getNextValue(&value, L"raw"), 0);
    EXPECT_EQ(value.as<vexkit2::s32_t>(), 7);
    ASSERT_EQ(parsed.result()->getFirstValue(&value, L"wild", 0, kexa_3_3::no_position), 0);
    EXPECT_FALSE(value.as<bool>());
    EXPECT_EQ(parsed.occurrences().size(), 2U);
}

TEST_F(ParserBeneath, MistakesAreToldInTheLibrarysWords)
{
    EXPECT_EQ(outcome("a --raw=x"),
              "2 Value validation problem in argument '--raw=x': Option 'raw' can not parse 'x' "
              "value, requires a type 'integer' here. | #2");
    EXPECT_EQ(outcome("a --raw"), "2 Option 'raw' requires a value in argument: '--raw' | #2");
    EXPECT_EQ(outcome("--raw a"), "2 Option 'raw' received value from the next argument: 'a', but "
                                  "it seems to be an option. Use '-option=value' declaration form "
                                  "or make sure that value is not missed | #1");
    EXPECT_EQ(outcome("--wild=maybe"),
              "2 Option 'wild' is boolean and should be declared in form '--option' or "
              "'--no-option' in argument: '--wild=maybe' | #1");
    EXPECT_EQ(outcome("--rax=1"), "2 Unknown option: --rax=1 | #1");
}

TEST(ParserThatIsNotShared, HasNoResult)
{
    kexa::Command<Settings> command("tool");
    command.option(&Settings::verbose, "verbose,v", "");
    EXPECT_EQ(command.parseLine("-v").result(), nullptr);
}

} // namespace
