// Commands are moved, used many times, and by several threads at once.
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <thread>

#include "Outcomes.h"

namespace
{

struct Settings
{
    int number = 0;
    std::vector<std::string> words;
};

kexa::Command<Settings> makeCommand()
{
    kexa::Command<Settings> command("tool");
    command.option(&Settings::number, "number", "").range(0, 100);
    command.positional(&Settings::words, "word", "");
    return command;
}

TEST(LifetimeOfACommand, IsNotBoundToItsPlace)
{
    kexa::Command<Settings> first = makeCommand();
    ASSERT_EQ(first.parseLine("--number=1")->number, 1);
    kexa::Command<Settings> second = std::move(first);
    second.option(&Settings::words, "w", "");
    EXPECT_EQ(second.parseLine("--number=2 -w x")->number, 2);
    kexa::Command<Settings> third("other");
    third = std::move(second);
    EXPECT_EQ(third.parseLine("--number=3")->number, 3);
}

TEST(LifetimeOfACommand, OptionsOfTheParserBeneathStay)
{
    kexa::Command<Settings> command = makeCommand();
    command.parser().addOption(L"raw", L"", kexa_3_3::value_type_none, L"");
    command.option(&Settings::words, "later", "");
    EXPECT_TRUE(command.parser().hasOption(L"raw", false, nullptr));
    EXPECT_TRUE(command.parser().hasOption(L"later", false, nullptr));
    for (int i = 0; i < 600; ++i)
    {
        ASSERT_FALSE(command.parseLine("--nubmer=1"));
    }
    EXPECT_TRUE(command.parser().hasOption(L"raw", false, nullptr));
}

TEST(LifetimeOfACommand, ARuleMayThrow)
{
    kexa::Command<Settings> command("tool");
    command.option(&Settings::number, "number", "")
        .check(
            [](int number) -> std::string
            {
                if (number == 7)
                {
                    throw std::runtime_error("seven");
                }
                return std::string();
            });
    EXPECT_THROW(command.parseLine("--number=7"), std::runtime_error);
    EXPECT_EQ(command.parseLine("--number=8")->number, 8);
}

TEST(LifetimeOfACommand, TwoThreadsUseTwo)
{
    const auto parseMany = [](int number)
    {
        kexa::Command<Settings> command = makeCommand();
        for (int i = 0; i < 500; ++i)
        {
            EXPECT_EQ(command.parseLine("--number=" + std::to_string(number))->number, number);
            EXPECT_FALSE(command.parseLine("--number=x"));
        }
    };
    std::thread first(parseMany, 1);
    std::thread second(parseMany, 2);
    first.join();
    second.join();
}

#if defined(__linux__)
// The resident memory in pages.
long residentPages()
{
    std::ifstream file("/proc/self/statm");
    long size = 0;
    long resident = 0;
    file >> size >> resident;
    return resident;
}

// The address sanitizer keeps freed memory for a while.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KEXA_KEEPS_FREED_MEMORY
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define KEXA_KEEPS_FREED_MEMORY
#endif

TEST(LifetimeOfACommand, DoesNotGrowWithBadLines)
{
#ifdef KEXA_KEEPS_FREED_MEMORY
    GTEST_SKIP() << "resident memory says nothing under the address sanitizer";
#endif
    kexa::Command<Settings> command = makeCommand();
    const auto parseBadLines = [&command](int from, int to)
    {
        for (int i = from; i < to; ++i)
        {
            const std::string number = std::to_string(i);
            EXPECT_FALSE(command.parse({"--unknown-option-" + number}));
            EXPECT_FALSE(command.parse({"--number=" + number + "x"}));
        }
    };
    parseBadLines(0, 2000);
    const long before = residentPages();
    parseBadLines(2000, 20000);
    EXPECT_LT(residentPages() - before, 250) << "pages of 4 KiB after 36,000 more bad lines";
}
#endif

} // namespace
