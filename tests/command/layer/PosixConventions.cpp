// Lines as users of other programs write them.
#include <gtest/gtest.h>

#include "Outcomes.h"
#include "PosixRows.h"

namespace
{

struct Unset : PosixSettings
{
    Unset() { file = output = request = "unset"; }
};

TEST(PosixConventions, AreAsTheTableSays)
{
    EXPECT_GE(posixRows().size(), 80U);
    kexa::Command<Unset> command("tar");
    command.conventions(kexa::Conventions::posix);
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
    for (const PosixRow& row : posixRows())
    {
        EXPECT_EQ(toolbox::outcomeOf(command, row.line,
                                     [](const Unset& settings) { return show(settings); }),
                  row.outcome)
            << "line: " << row.line;
    }
}

TEST(PosixConventions, TakeANumberForAnOptionWhereThereIsOne)
{
    struct Level
    {
        bool five = false;
        std::vector<int> numbers;
    };
    kexa::Command<Level> command("gzip");
    command.conventions(kexa::Conventions::posix);
    command.option(&Level::five, "5", "");
    command.positional(&Level::numbers, "number", "");
    const auto parsed = command.parseLine("-5 -6");
    ASSERT_TRUE(parsed);
    EXPECT_TRUE(parsed->five);
    EXPECT_EQ(parsed->numbers, std::vector<int>{-6});
}

TEST(PosixConventions, AreAskedFor)
{
    struct Flags
    {
        bool a = false, b = false;
        std::string text;
    };
    kexa::Command<Flags> command("plain");
    command.option(&Flags::a, "a", "");
    command.option(&Flags::b, "b", "");
    command.option(&Flags::text, "t", "");
    const auto accepted = [](const Flags&)
    {
        return std::string("accepted");
    };
    EXPECT_EQ(toolbox::outcomeOf(command, "-ab", accepted), "2 Unknown option: -ab | #1");
    EXPECT_EQ(toolbox::outcomeOf(command, "-tvalue", accepted), "2 Unknown option: -tvalue | #1");
    EXPECT_EQ(toolbox::outcomeOf(command, "-5", accepted), "2 Unknown option: -5 | #1");
}

TEST(Abbreviations, CanBeTurnedOff)
{
    struct Flags
    {
        bool verbose = false;
        bool color = false;
    };
    kexa::Command<Flags> command("exact");
    command.abbreviations(false);
    command.option(&Flags::verbose, "verbose,v", "");
    command.option(&Flags::color, "color", "");
    const auto accepted = [](const Flags&)
    {
        return std::string("accepted");
    };
    EXPECT_EQ(toolbox::outcomeOf(command, "-v --no-color", accepted), "accepted");
    EXPECT_EQ(toolbox::outcomeOf(command, "--verb", accepted),
              "2 Unknown option: --verb | did you mean '--verbose'? | #1");
    EXPECT_EQ(toolbox::outcomeOf(command, "--no", accepted),
              "2 Unknown option: --no | did you mean '--no-color', '--no-v' or '--no-verbose'? | "
              "#1");
}

TEST(Abbreviations, OfNamesOfOneOptionMeanIt)
{
    struct Flags
    {
        bool notify = false;
        bool color = false;
        std::string compress;
    };
    kexa::Command<Flags> command("near");
    command.option(&Flags::notify, "notify", "");
    command.option(&Flags::color, "color,colour", "");
    command.option(&Flags::compress, "compression,compress", "");
    const auto show = [](const Flags& flags)
    {
        return std::string(flags.notify ? "notify " : "") + (flags.color ? "color " : "") +
               flags.compress;
    };
    EXPECT_EQ(toolbox::outcomeOf(command, "--not --col", show), "notify color ");
    EXPECT_EQ(toolbox::outcomeOf(command, "--col --no-col", show), "");
    EXPECT_EQ(toolbox::outcomeOf(command, "--no", show), "notify ");
    EXPECT_EQ(toolbox::outcomeOf(command, "--com=x", show), "x");
    EXPECT_EQ(toolbox::outcomeOf(command, "--co", show),
              "2 Ambiguous option 'co' in argument: '--co', could be: 'color', 'colour', "
              "'compression', 'compress' | #1");
}

} // namespace
