// Arguments that no declaration of the command takes are refused, whatever the parser beneath would
// make of them.
#include <gtest/gtest.h>

#include <string>

#include "Outcomes.h"

namespace
{

struct Settings
{
    bool verbose = false;
    int number = 0;
};

std::string show(const Settings&)
{
    return "accepted";
}

TEST(ArgumentsThatNobodyTakes, AreRefusedBehindTheMarkerToo)
{
    const struct
    {
        const char* line;
        const char* outcome;
    } rows[] = {
        {"--verbose --", "accepted"},
        {"-- x", "2 Unknown option: x | #2"},
        {"-- ''", "2 Unknown option:  | #2"},
        {"-- --verbose", "2 Unknown option: --verbose | did you mean '--verbose'? | #2"},
        {"-- --verbose=1", "2 Unknown option: --verbose=1 | did you mean '--verbose'? | #2"},
        {"-- --number=5", "2 Unknown option: --number=5 | did you mean '--number'? | #2"},
        {"-- --number", "2 Unknown option: --number | did you mean '--number'? | #2"},
        {"--number=1 -- --number=x",
         "2 Unknown option: --number=x | did you mean '--number'? | #3"},
        {"-- kexaoption=kexalogenable=1", "2 Unknown option: kexaoption=kexalogenable=1 | #2"},
    };
    for (const auto& row : rows)
    {
        kexa::Command<Settings> command("none");
        command.option(&Settings::verbose, "verbose", "");
        command.option(&Settings::number, "number", "");
        EXPECT_EQ(toolbox::outcomeOf(command, row.line, show), row.outcome) << row.line;
    }
}

TEST(ArgumentsThatNobodyTakes, AreRefusedBehindTheMarkerThoughTheParserBeneathTakesThem)
{
    for (const char* line : {"-- --raw=text", "--number=1 -- --raw=text"})
    {
        kexa::Command<Settings> command("mixed");
        command.option(&Settings::number, "number", "");
        command.parser().addOption(L"raw", L"", kexa_3_3::value_type_string, L"");
        const auto parsed = command.parseLine(line);
        ASSERT_EQ(parsed.status(), kexa::Status::error) << line;
        EXPECT_EQ(parsed.error().message.find("Unknown option: --raw"), 0U) << line;
    }
}

} // namespace
