// Variables that are no UTF-8.
#include <gtest/gtest.h>

#include "EnvironmentSetting.h"
#include "platform/Environment.h"

TEST(EnvironmentBytes, AreKept)
{
    const EnvironmentSetting setting("KEXA_TEST_\xFF", "\xE9t\xE9");
    EXPECT_EQ(kexa::detail::environmentVariable("KEXA_TEST_\xFF"), "\xE9t\xE9");
}
