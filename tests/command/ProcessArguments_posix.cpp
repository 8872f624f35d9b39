// The arguments of main, where they are bytes.
#include <gtest/gtest.h>

#include "platform/ProcessArguments.h"

TEST(ProcessArguments, AreTakenAsTheyAre)
{
    const char* const arguments[] = {"program", "gr\xC3\xB6\xC3\x9F\x65", "\xFF", nullptr};
    EXPECT_FALSE(kexa::detail::rereadArguments(3, arguments).has_value());
}
