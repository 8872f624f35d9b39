// The keyword that turns the library's trace on is obeyed only where the program allows it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ConsoleCapture.h"
#include "Outcomes.h"
#include "TemporaryFolder.h"

namespace
{

const std::string keyword = "kexaoption=kexalogenable=1";

struct Settings
{
    int number = 0;
    std::vector<std::string> words;
};

class TraceKeyword : public testing::TestWithParam<kexa::Conventions>
{
protected:
    TraceKeyword() : m_current(m_folder.path())
    {
        m_command.conventions(GetParam());
        m_command.option(&Settings::number, "number,n", "");
        m_command.positional(&Settings::words, "word", "");
        m_command.optionFiles();
    }

    // Returns what the parse writes to the standard output, then what it gives.
    std::string outcomeOf(const std::vector<std::string>& arguments)
    {
        std::string outcome;
        const std::string trace = toolbox::captureOutput(
            [&]
            {
                const kexa::Parsed<Settings> parsed = m_command.parse(arguments);
                outcome = parsed ? std::to_string(parsed->number) : toolbox::shown(parsed.error());
                for (const std::string& word : parsed ? parsed->words : std::vector<std::string>())
                {
                    outcome += "<" + word + ">";
                }
            });
        return (trace.empty() ? "silent " : "traced ") + outcome;
    }

    toolbox::TemporaryFolder m_folder;
    toolbox::CurrentFolder m_current;
    kexa::Command<Settings> m_command{"tool"};
};

TEST_P(TraceKeyword, IsAnArgumentLikeOthersAtFirst)
{
    EXPECT_EQ(outcomeOf({keyword}), "silent 0<" + keyword + ">");
    EXPECT_EQ(outcomeOf({keyword, "-n", "7", keyword}),
              "silent 7<" + keyword + "><" + keyword + ">");
    EXPECT_EQ(outcomeOf({"--", keyword}), "silent 0<" + keyword + ">");
    m_folder.write(L"a", keyword + "\n--number=7\n");
    EXPECT_EQ(outcomeOf({"--option-file=a"}), "silent 7<" + keyword + ">");
    EXPECT_EQ(outcomeOf({keyword, "--nubmer=1"}),
              "silent 2 Unknown option: --nubmer=1 | did you mean '--number'? | #2");
}

TEST_P(TraceKeyword, StartsTheTraceWhereItIsAllowed)
{
    m_command.trace(true);
    EXPECT_EQ(outcomeOf({keyword}), "silent 0"); // nothing is there to be traced
    EXPECT_EQ(outcomeOf({keyword, "-n", "7", "x"}), "traced 7<x>");
    // For one parse.
    EXPECT_EQ(outcomeOf({"-n", "7", "x"}), "silent 7<x>");
}

TEST_P(TraceKeyword, IsTheFirstArgumentOrNone)
{
    m_command.trace(true);
    EXPECT_EQ(outcomeOf({"x", keyword}), "silent 0<x><" + keyword + ">");
    EXPECT_EQ(outcomeOf({"--", keyword}), "silent 0<" + keyword + ">");
    EXPECT_EQ(outcomeOf({keyword + " "}), "silent 0<" + keyword + " >");
}

TEST_P(TraceKeyword, MayBeTheFirstLineOfAnOptionFile)
{
    m_command.trace(true);
    m_folder.write(L"a", "# comment\n" + keyword + "\n--number=7\n");
    m_folder.write(L"b", "--number=8\n" + keyword + "\n");
    EXPECT_EQ(outcomeOf({"--option-file=a"}), "traced 7");
    EXPECT_EQ(outcomeOf({"--option-file=b"}), "silent 8<" + keyword + ">");
}

TEST_P(TraceKeyword, IsForbiddenAgain)
{
    m_command.trace(true);
    m_command.trace(false);
    EXPECT_EQ(outcomeOf({keyword, "x"}), "silent 0<" + keyword + "><x>");
}

TEST_P(TraceKeyword, CountsForThePlacesOfMistakes)
{
    m_command.trace(true);
    EXPECT_EQ(outcomeOf({keyword, "x", "--nubmer=1"}),
              "traced 2 Unknown option: --nubmer=1 | did you mean '--number'? | #3");
}

INSTANTIATE_TEST_SUITE_P(Conventions, TraceKeyword,
                         testing::Values(kexa::Conventions::library, kexa::Conventions::posix));

TEST(TraceKeywordOfASubcommand, IsAnArgumentOfItUnlessItAllows)
{
    struct Outer
    {
        std::optional<Settings> inner;
    };
    for (const bool isAllowed : {false, true})
    {
        kexa::Command<Settings> inner("inner");
        inner.positional(&Settings::words, "word", "");
        kexa::Command<Outer> outer("outer");
        outer.subcommand(&Outer::inner, inner);
        outer.trace(isAllowed);
        std::vector<std::string> words;
        const std::string trace = toolbox::captureOutput(
            [&] {
                words = outer.parse({"inner", keyword})->inner->words;
            });
        EXPECT_EQ(trace, "");
        EXPECT_EQ(words, std::vector<std::string>{keyword});
    }
}

} // namespace
