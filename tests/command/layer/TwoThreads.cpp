// Two commands are used by two threads at once: with all that a parse reads or prints.
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>

#include "Outcomes.h"
#include "TemporaryFolder.h"

namespace
{

struct Push
{
    bool force = false;
};

struct Settings
{
    int number = 0;
    std::string mode = "fast";
    std::vector<std::string> words;
    std::optional<Push> push;
};

kexa::Command<Settings> makeCommand()
{
    kexa::Command<Push> push("push", "Sends");
    push.option(&Push::force, "force", "Do it");
    kexa::Command<Settings> command("tool");
    command.option(&Settings::number, "number,n", "How many").range(0, 100).environment("KEXA_N");
    command.option(&Settings::mode, "mode", "How").values({"fast", "slow"});
    command.positional(&Settings::words, "word", "Words");
    command.subcommand(&Settings::push, push);
    command.optionFiles();
    command.version("1.0");
    return command;
}

std::string show(const Settings& settings)
{
    std::string text = std::to_string(settings.number) + settings.mode;
    for (const std::string& word : settings.words)
    {
        text += "<" + word + ">";
    }
    return text + (settings.push && settings.push->force ? "!" : "");
}

TEST(TwoThreads, MayUseACommandEach)
{
    const toolbox::TemporaryFolder folder;
    const toolbox::CurrentFolder current(folder.path());
    folder.write(L"a", "--number=7\nword\n");
    std::atomic<int> ready = 0;
    const auto parseMany = [&](int number)
    {
        const std::string text = std::to_string(number);
        ++ready;
        while (ready < 2)
        {
            std::this_thread::yield();
        }
        kexa::Command<Settings> command = makeCommand();
        for (int round = 0; round < 60; ++round)
        {
            const struct
            {
                std::string line;
                std::string outcome;
            } rows[] = {
                {"-n " + text + " gr\u00F6\u00DFe", text + "fast<gr\u00F6\u00DFe>"},
                {"--option-file=a --mode=s", "7slow<word>"},
                {"push --force", "0fast!"},
                {"--nubmer=1", "2 Unknown option: --nubmer=1 | did you mean '--number'? | #1"},
                {"--number=x",
                 "2 Value validation problem in argument '--number=x': Option 'number' can not "
                 "parse 'x' value, requires a type 'integer' here. | number #1"},
                {"--version", "1.0\n"},
            };
            for (const auto& row : rows)
            {
                EXPECT_EQ(toolbox::outcomeOf(command, row.line, show), row.outcome);
            }
            EXPECT_EQ(command.parseLine("--help").status(), kexa::Status::help);
        }
    };
    std::thread first(parseMany, 1);
    std::thread second(parseMany, 2);
    first.join();
    second.join();
}

} // namespace
