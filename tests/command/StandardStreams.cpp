// Writing to standard output and standard error.
#include "platform/StandardStreams.h"

#include <cstdio>
#include <iostream>
#include <string>

#include <gtest/gtest.h>

#include "ConsoleCapture.h"

using namespace kexa::detail;
using namespace toolbox;

TEST(StandardStreams, BytesArriveAsTheyAre)
{
    const std::string texts[] = {
        "",
        "usage: filesum [options]\n",
        "gr\xC3\xB6\xC3\x9F\x65 \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x98\x80\n",
        "\xFF\xE4\n",
        "a\r\nb\n",
        std::string("a\0b", 3),
        std::string(3000000, 'x') + "\n",
    };
    for (const std::string& text : texts)
    {
        bool written = false;
        EXPECT_EQ(captureOutput([&] { written = writeText(StandardStream::output, text); }), text);
        EXPECT_TRUE(written);
        written = false;
        EXPECT_EQ(captureError([&] { written = writeText(StandardStream::error, text); }), text);
        EXPECT_TRUE(written);
    }
}

TEST(StandardStreams, TextStandsBehindWhatTheHostWroteBefore)
{
    bool written = false;
    const auto output = captureOutput(
        [&]
        {
            std::fputs("1 ", stdout);
            std::cout << "2 ";
            written = writeText(StandardStream::output, "3 ");
            std::fputs("4", stdout);
            std::fflush(stdout);
        });
    EXPECT_TRUE(written);
    EXPECT_EQ(output, "1 2 3 4");
}
