// The width of help.
#include "platform/TerminalWidth.h"

#include <gtest/gtest.h>

#include "ConsoleCapture.h"

using namespace kexa::detail;

TEST(TerminalWidth, OfHelpIsThatOfTheTerminalWithinLimits)
{
    const struct
    {
        std::size_t columns;
        std::size_t width;
    } rows[] = {{0, 80},  {1, 60},    {59, 60},   {60, 60},   {61, 61},
                {80, 80}, {119, 119}, {120, 120}, {121, 120}, {65535, 120}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(clampHelpWidth(row.columns), row.width) << row.columns;
    }
}

TEST(TerminalWidth, IsUnknownOfAFile)
{
    std::size_t columns = 1;
    toolbox::captureOutput([&columns] { columns = terminalColumns(); });
    EXPECT_EQ(columns, 0U);
}
