// Random lines under POSIX conventions mean what getopt_long makes of them, where both speak of the
// same.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Choices.h"
#include "CommandComparison.h"
#include "GetoptLong_posix.h"
#include "Outcomes.h"
#include "PosixRows.h"

namespace
{

constexpr const char* names[] = {"create", "extract", "verbatim", "verbose", "file",
                                 "output", "request", "number",   "include", "zip"};
constexpr const char* words[] = {"x", "7", "word", "a=b", "a b", "=f", "c", "file", "12", "\u00F6"};
constexpr char letters[] = "cxvcxvfoXnIz";

struct Unset : PosixSettings
{
    Unset() { file = output = request = "unset"; }
};

kexa::Command<Unset> makeCommand()
{
    kexa::Command<Unset> command("tar");
    command.conventions(kexa::Conventions::posix).helpOption("");
    command.option(&Unset::create, "create,c", "");
    command.option(&Unset::extract, "extract,x", "");
    command.option(&Unset::verbatim, "verbatim", "");
    command.option(&Unset::verbose, "verbose,v", "").count();
    command.option(&Unset::file, "file,f", "");
    command.option(&Unset::output, "output,o", "");
    command.option(&Unset::request, "request,X", "");
    command.option(&Unset::number, "number,n", "");
    command.option(&Unset::include, "include,I", "");
    command.positional(&Unset::words, "word", "");
    return command;
}

std::string drawArgument(toolbox::Choices& choices)
{
    std::string argument;
    switch (choices.below(8))
    {
    case 0:
    case 1:
        return choices.oneOf(words);
    case 2:
    case 3:
    case 4:
        argument = "-";
        for (std::size_t count = 1 + choices.below(4); count > 0; --count)
        {
            argument += letters[choices.below(sizeof letters - 1)];
        }
        return choices.chance(3) ? argument + choices.oneOf(words) : argument;
    case 5:
        return choices.chance(2) ? "--" : "-";
    default:
        argument = choices.oneOf(names);
        argument.resize(2 + choices.below(argument.size() - 1));
        return "--" + argument + (choices.chance(2) ? "=" + choices.oneOf(words) : "");
    }
}

// Whether the layer has a rule of its own for an argument, or for its value:
// "-o=f" is the value f; "-create" and "-cre" are the option create, too.
bool isRuleOfTheLayer(const std::string& argument)
{
    if (argument.size() < 2 || argument[0] != '-' || argument[1] == '-')
    {
        return false;
    }
    const std::string behind = argument.substr(1);
    for (const std::string name : names)
    {
        if (behind.size() > 1 && name.compare(0, behind.size(), behind) == 0)
        {
            return true;
        }
    }
    return behind.find('=') != std::string::npos;
}

// getopt_long converts no numbers, and gives an option the next argument even if it begins with a
// hyphen.
bool isCheckOfTheLayer(const std::string& outcome)
{
    return outcome.find("can not parse") != std::string::npos ||
           outcome.find("seems to be an option") != std::string::npos;
}

TEST(RandomPosixLines, MeanWhatGetoptLongMakesOfThem)
{
    kexa::Command<Unset> command = makeCommand();
    toolbox::RandomChoices choices(1);
    int accepted = 0;
    int refused = 0;
    int notCompared = 0;
    for (int line = 0; line < 20000; ++line)
    {
        std::vector<std::string> arguments;
        bool isComparable = true;
        for (std::size_t count = choices.below(5); count > 0; --count)
        {
            arguments.push_back(drawArgument(choices));
            isComparable = isComparable && !isRuleOfTheLayer(arguments.back());
        }
        const kexa::Parsed<Unset> parsed = command.parse(arguments);
        const std::string outcome = parsed ? show(*parsed) : toolbox::shown(parsed.error());
        if (!isComparable || isCheckOfTheLayer(outcome))
        {
            ++notCompared;
            continue;
        }
        const std::string expected = runGetopt(arguments);
        ASSERT_EQ(parsed ? outcome : "error", expected) << toolbox::lineOf(arguments) << "\n"
                                                        << outcome;
        ++(parsed ? accepted : refused);
    }
    EXPECT_GT(accepted, 4000);
    EXPECT_GT(refused, 4000);
    EXPECT_LT(notCompared, 6000);
    RecordProperty("accepted", accepted);
    RecordProperty("refused", refused);
    RecordProperty("notCompared", notCompared);
}

} // namespace
