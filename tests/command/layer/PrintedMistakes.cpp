// Each mistake that users make, with all that is printed for it.
#include <gtest/gtest.h>

#include <string>

#include "Outcomes.h"
#include "TemporaryFolder.h"

namespace
{

enum class Mode
{
    fast,
    careful
};

struct Settings
{
    bool create = false;
    bool list = false;
    bool extract = false;
    Mode mode = Mode::careful;
    int level = 3;
    std::string archive;
    std::string prefix;
    std::vector<std::string> paths;
};

kexa::Command<Settings> makeCommand()
{
    kexa::Command<Settings> command("pack", "Packs and unpacks files.");
    const auto create = command.action(&Settings::create, "create", "Make an archive");
    command.action(&Settings::list, "list", "Show what an archive holds");
    command.action(&Settings::extract, "extract", "Unpack");
    command.option(&Settings::mode, "mode", "How to read")
        .values({{"fast", Mode::fast}, {"careful", Mode::careful}})
        .of(create);
    command.option(&Settings::level, "level", "How small").range(1, 9).of(create);
    command.option(&Settings::archive, "archive,a", "The archive").required();
    command.option(&Settings::prefix, "prefix", "What to put before names");
    command.positional(&Settings::paths, "path", "Files and folders").times(0, 2);
    command.actionRequired();
    command.optionFiles();
    return command;
}

struct Row
{
    const char* mistake;
    const char* line;
    const char* printed; // without what is the same for all
};

void PrintTo(const Row& row, std::ostream* stream)
{
    *stream << row.line;
}

const Row rows[] = {
    {"Typo", "--create --achrive=x", "Unknown option: --achrive=x\n  did you mean '--archive'?"},
    {"TypoOfAnAction", "--extarct -a x", "Unknown option: --extarct\n  did you mean '--extract'?"},
    {"NothingNear", "--create --zzz", "Unknown option: --zzz"},
    {"AmbiguousAbbreviation", "--l=5 -a x",
     "Ambiguous option 'l' in argument: '--l=5', could be: 'list', 'level'"},
    {"MissingValue", "--create --archive",
     "Option 'archive' requires a value in argument: '--archive'"},
    {"ForgottenValue", "--create --archive --level=3",
     "Option 'archive' received value from the next argument: '--level=3', but it seems to be an "
     "option. Use '-option=value' declaration form or make sure that value is not missed"},
    {"EmptyValue", "--create --archive= x",
     "Option 'archive' requires a value in argument: '--archive='"},
    {"EmptyNextValue", "--create --archive ''",
     "Option 'archive' requires a value in argument: '--archive'"},
    {"BadNumber", "--create -a x --level=high",
     "Value validation problem in argument '--level=high': Option 'level' can not parse 'high' "
     "value, requires a type 'integer' here."},
    {"NumberTooLarge", "--create -a x --level=99999999999",
     "Value validation problem in argument '--level=99999999999': Option 'level' can not parse "
     "'99999999999' value, requires a type 'integer' here.\n  allowed are 1 to 9"},
    {"OutOfRange", "--create -a x --level 12",
     "Value '12' is not valid for option 'level' in argument '--level': greater than 9\n  allowed "
     "are 1 to 9"},
    {"ValueNotAllowed", "--create -a x --mode=fsat",
     "Value validation problem in argument '--mode=fsat': Option 'mode' does not allow value "
     "'fsat'. Possible values follows: 'fast', 'careful'\n  did you mean 'fast'?"},
    {"TwoActions", "--create --list -a x",
     "Action '-list' and action '-create' were defined, but only one action possible."},
    {"OptionOfAnotherAction", "--list -a x --level=3",
     "Action '-list' doesn't accept option '-level'"},
    {"NoAction", "-a x", "No action defined.\n  give one of '--create', '--list', '--extract'"},
    {"NothingAtAll", "", "No action defined.\n  give one of '--create', '--list', '--extract'"},
    {"MissingRequired", "--create x", "missing option: --archive"},
    {"UnknownFile", "--create --option-file=none.txt",
     "Error reading option file 'none.txt': no such file"},
    {"MistakeInAFile", "--create --option-file=file.txt",
     "file.txt:3: Value validation problem in argument '--level=high': Option 'level' can not "
     "parse 'high' value, requires a type 'integer' here."},
    {"TooManyArguments", "--list -a x 1 2 3", "too many arguments: '3'"},
    {"ValueOfAnAction", "--create=x",
     "Option 'create'does not requires a value in argument: '--create=x'"},
    {"UnterminatedQuote", "--create 'x", "unterminated quote: 'x"},
};

class PrintedMistake : public testing::TestWithParam<Row>
{
};

TEST_P(PrintedMistake, IsPrintedWhole)
{
    const toolbox::TemporaryFolder folder;
    const toolbox::CurrentFolder current(folder.path());
    folder.write(L"file.txt", "# level\n--archive=x\n--level=high\n");
    kexa::Command<Settings> command = makeCommand();
    const kexa::Parsed<Settings> parsed = command.parseLine(GetParam().line);
    ASSERT_EQ(parsed.status(), kexa::Status::error);
    EXPECT_EQ(kexa::detail::describe(parsed.outcome()),
              "pack: " + std::string(GetParam().printed) + "\nTry 'pack --help'.\n");
}

INSTANTIATE_TEST_SUITE_P(Table, PrintedMistake, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.mistake); });

} // namespace
