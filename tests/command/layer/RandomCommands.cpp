// Commands of random declarations give what the parser beneath gives for random lines, save where
// the layer means more by a line than the parser.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "CommandComparison.h"
#include "DrawnArguments.h"
#include "TemporaryFolder.h"

namespace
{

using toolbox::Rule;

class RandomCommands : public testing::Test
{
protected:
    RandomCommands() : m_current(m_folder.path()) {}

    // Compares lines of random commands; each third has an option file.
    void compareMany(std::uint32_t seeds, int lines)
    {
        for (std::uint32_t seed = 0; seed < seeds; ++seed)
        {
            toolbox::RandomChoices choices(seed);
            toolbox::DrawnDeclarations declarations = toolbox::drawDeclarations(choices, false);
            declarations.hasOptionFiles = choices.chance(3);
            toolbox::CommandComparison comparison(declarations);
            for (int line = 0; line < lines; ++line)
            {
                std::vector<std::string> arguments = toolbox::drawArguments(choices, declarations);
                std::vector<std::string> ofFile;
                if (declarations.hasOptionFiles && choices.chance(2))
                {
                    ofFile = toolbox::drawArguments(choices, declarations);
                    writeFile(ofFile);
                    const std::size_t place = choices.below(arguments.size() + 1);
                    arguments.insert(arguments.begin() + static_cast<std::ptrdiff_t>(place),
                                     "--option-file=file");
                }
                const toolbox::Verdict verdict = comparison.compare(arguments, ofFile);
                ASSERT_EQ(verdict.difference, "")
                    << "seed " << seed << ", line " << line << ": " << toolbox::lineOf(arguments)
                    << " file: " << toolbox::lineOf(ofFile);
                ++m_counts[verdict.rule];
                m_accepted += verdict.rule == Rule::none && verdict.isAccepted ? 1 : 0;
                m_withFile += verdict.rule == Rule::none && !ofFile.empty() ? 1 : 0;
                ++m_lines;
            }
        }
    }

    void writeFile(const std::vector<std::string>& lines) const
    {
        std::string content = "# arguments\r\n\n";
        for (const std::string& line : lines)
        {
            content += line + "\n";
        }
        m_folder.write(L"file", content);
    }

    toolbox::TemporaryFolder m_folder;
    toolbox::CurrentFolder m_current;
    std::map<Rule, int> m_counts;
    int m_accepted = 0;
    int m_withFile = 0;
    int m_lines = 0;
};

TEST_F(RandomCommands, GiveWhatTheParserGives)
{
    ASSERT_NO_FATAL_FAILURE(compareMany(800, 15));
    // Most lines are compared, and all kinds of outcome are among them.
    EXPECT_GT(m_counts[Rule::none], m_lines * 3 / 4);
    EXPECT_GT(m_accepted, m_lines / 8);
    EXPECT_GT(m_counts[Rule::none] - m_accepted, m_lines / 4);
    EXPECT_GT(m_withFile, m_lines / 20);
    // Each rule of the layer is met.
    for (const Rule rule :
         {Rule::ambiguousName, Rule::negativeNumber, Rule::valueOfBoolean, Rule::singleHyphen})
    {
        EXPECT_GT(m_counts[rule], 0) << static_cast<int>(rule);
    }
    for (const auto& [rule, count] : m_counts)
    {
        RecordProperty("rule " + std::to_string(static_cast<int>(rule)), count);
    }
}

} // namespace
