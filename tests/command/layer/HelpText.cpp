// Help is compared whole.
#include <gtest/gtest.h>

#include <string>

#include "Outcomes.h"

namespace
{

enum class Mode
{
    fast,
    careful
};

struct Settings
{
    bool list = false;
    bool sum = false;
    bool secret = false;
    bool verbose = false;
    bool color = true;
    Mode mode = Mode::careful;
    std::uint32_t buffer = 1 << 18;
    std::vector<std::string> include;
    std::optional<std::filesystem::path> output;
    std::string when = "never";
    int level = 0;
    std::string user;
    std::string source;
    std::vector<std::filesystem::path> paths;
};

kexa::Command<Settings> makeCommand()
{
    kexa::Command<Settings> command("filesum", "Lists and sums up files.");
    const auto list = command.action(&Settings::list, "list,l", "Print sizes");
    const auto sum = command.action(&Settings::sum, "sum,s", "Print checksums");
    command.together(list, sum);
    command.option(&Settings::secret, "secret", "Not shown").hidden();
    command.option(&Settings::verbose, "verbose,v", "Say what happens").alias("loud");
    command.option(&Settings::color, "color,colour", "Use colours");
    command.option(&Settings::mode, "mode,m", "How to read")
        .values({{"fast", Mode::fast}, {"careful", Mode::careful}});
    command.option(&Settings::buffer, "buffer-size", "Bytes to read at a time")
        .range(1, 1 << 26)
        .group("Tuning");
    command.option(&Settings::include, "include,i", "Take only these").of(list, sum);
    command.option(&Settings::output, "output,o", "Write here").of(sum).valueName("FILE");
    command.option(&Settings::when, "when", "When to ask").implicit("always");
    command.option(&Settings::level, "z", "How much to compress").deprecated("use --mode");
    command.option(&Settings::user, "user", "Größe 日本語").environment("FILESUM_USER").required();
    command.positional(&Settings::source, "source", "Where from").required();
    command.positional(&Settings::paths, "path", "Files and folders");
    command.version("filesum 1.0");
    command.example("filesum --list .", "Lists what is here.");
    command.epilog("Written for those who count bytes.");
    return command;
}

TEST(HelpText, ShowsSectionsOfAlignedEntries)
{
    kexa::Command<Settings> command = makeCommand();
    EXPECT_EQ(command.help({}, 80),
              R"(Usage: filesum [options] --action source [path...]

Lists and sums up files.

Actions:
  -l, --list                Print sizes
  -s, --sum                 Print checksums

Arguments:
  source                    Where from [required]
  path                      Files and folders

Options:
  -v, --verbose             Say what happens
      --[no-]color, --[no-]colour
                            Use colours
  -m, --mode=VALUE          How to read [one of: fast, careful; default:
                            careful]
  -i, --include=TEXT        Take only these [with --list, --sum]
  -o, --output=FILE         Write here [with --sum]
      --when[=TEXT]         When to ask [default: never; without a value:
                            always]
  -z NUMBER                 How much to compress [default: 0; deprecated: use
                            --mode]
      --user=TEXT           Größe 日本語 [required; environment: FILESUM_USER]
  -h, --help                Show this help
      --version             Show the version

Tuning:
      --buffer-size=NUMBER  Bytes to read at a time [from 1 to 67108864;
                            default: 262144]

Examples:
  filesum --list .
      Lists what is here.

Written for those who count bytes.
)");
}

TEST(HelpText, FitsTheWidth)
{
    kexa::Command<Settings> command = makeCommand();
    EXPECT_EQ(command.help("mode", 60), "  -m, --mode=VALUE          How to read [one of: fast,\n"
                                        "                            careful; default: careful]\n");
    EXPECT_EQ(command.help("mode", 120), "  -m, --mode=VALUE          How to read [one of: fast, "
                                         "careful; default: careful]\n");
}

TEST(HelpText, OfAnActionShowsWhatGoesWithIt)
{
    kexa::Command<Settings> command = makeCommand();
    EXPECT_EQ(command.parseLine("--help=su").text(),
              "  -s, --sum                 Print checksums\n"
              "\n"
              "Options:\n"
              "  -i, --include=TEXT        Take only these [with --list, --sum]\n"
              "  -o, --output=FILE         Write here [with --sum]\n");
}

TEST(HelpText, OfAnUnknownTopicNamesWhatIsNear)
{
    kexa::Command<Settings> command = makeCommand();
    EXPECT_EQ(command.help("bufer-size"),
              "There is no help for 'bufer-size'.\n  did you mean '--buffer-size'?\n");
}

TEST(HelpText, AndVersionTakeOnlyNamesThatAreFree)
{
    struct Two
    {
        bool h = false;
        bool version = false;
    };
    kexa::Command<Two> command("two");
    command.option(&Two::h, "h", "Its own");
    command.option(&Two::version, "version", "Its own too");
    command.version("two 2.0");
    EXPECT_EQ(command.help({}, 80), "Usage: two [options]\n"
                                    "\n"
                                    "Options:\n"
                                    "  -h             Its own\n"
                                    "      --version  Its own too\n"
                                    "      --help     Show this help\n");
    EXPECT_TRUE(command.parseLine("-h --version"));
}

TEST(HelpText, IsLeftOutOrRenamed)
{
    struct None
    {
    };
    kexa::Command<None> without("none");
    without.helpOption("");
    EXPECT_EQ(without.parseLine("--help").error().message, "Unknown option: --help");
    kexa::Command<None> renamed("renamed", "S.");
    renamed.helpOption("hilfe").versionOption("V").version("9");
    EXPECT_EQ(renamed.parseLine("--hil").status(), kexa::Status::help);
    EXPECT_EQ(renamed.parseLine("-V").text(), "9\n");
}

} // namespace
