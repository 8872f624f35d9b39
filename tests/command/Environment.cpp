// Variables of the environment.
#include "platform/Environment.h"

#include <string>

#include <gtest/gtest.h>

#include "EnvironmentSetting.h"

using namespace kexa::detail;

TEST(Environment, AVariableHasItsValue)
{
    const std::string values[] = {
        "fast",
        "",
        " a=b ",
        "gr\xC3\xB6\xC3\x9F\x65 \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x98\x80",
        std::string(254, 'x'),
        std::string(255, 'x'),
        std::string(256, 'x'),
        std::string(20000, 'x'),
    };
    for (const std::string& value : values)
    {
        const EnvironmentSetting setting("KEXA_TEST_VARIABLE", value);
        EXPECT_EQ(environmentVariable("KEXA_TEST_VARIABLE"), value);
    }
}

TEST(Environment, ANameMayBeAnyText)
{
    const EnvironmentSetting setting("KEXA_TEST_\xC3\x96", "value");
    EXPECT_EQ(environmentVariable("KEXA_TEST_\xC3\x96"), "value");
}

TEST(Environment, AVariableThatIsNotSetHasNone)
{
    EXPECT_EQ(environmentVariable("KEXA_TEST_VARIABLE"), std::nullopt);
    const EnvironmentSetting setting("KEXA_TEST_VARIABLE", "value=1");
    EXPECT_EQ(environmentVariable("KEXA_TEST_VARIABL"), std::nullopt);
    EXPECT_EQ(environmentVariable("KEXA_TEST_VARIABLE="), std::nullopt);
    EXPECT_EQ(environmentVariable("KEXA_TEST_VARIABLE=value"), std::nullopt);
    EXPECT_EQ(environmentVariable(std::string("KEXA_TEST_VARIABLE\0", 19)), std::nullopt);
    EXPECT_EQ(environmentVariable(""), std::nullopt);
}
