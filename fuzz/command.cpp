// Fuzzes the declarations of a command and its arguments: what the command binds is what the parser
// beneath gives, save where the layer means more by a line, and errors are whole.
//
// The bytes of an input make choices, one each; those behind a line feed are arguments, one in each
// line.
#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "CommandComparison.h"
#include "DrawnArguments.h"
#include "Fuzzing.h"

using toolbox::DrawnSettings;

namespace
{

std::vector<std::string> textLinesOf(const std::uint8_t* begin, const std::uint8_t* end)
{
    std::vector<std::string> lines;
    while (begin != end)
    {
        const std::uint8_t* const next = std::find(begin, end, std::uint8_t{'\n'});
        std::string line(begin, next);
        // No argument of a process holds a zero.
        std::replace(line.begin(), line.end(), '\0', '?');
        lines.push_back(std::move(line));
        begin = next == end ? end : next + 1;
    }
    return lines;
}

void requireNoDifference(const toolbox::Verdict& verdict, const std::vector<std::string>& arguments)
{
    fuzzing::require(verdict.difference.empty(),
                     (toolbox::lineOf(arguments) + ":\n" + verdict.difference).c_str());
}

// Parses with what only the layer has, so that there is nothing to compare with.
void checkExtended(toolbox::Choices& choices, const toolbox::DrawnDeclarations& declarations,
                   const std::vector<std::string>& arguments)
{
    kexa::Command<DrawnSettings> command("extended");
    declare(command, declarations);
    if (choices.chance(2))
    {
        command.conventions(kexa::Conventions::posix);
    }
    command.abbreviations(!choices.chance(3));
    command.trace(false);
    try
    {
        if (choices.chance(2))
        {
            command.verbs();
        }
        command.helpOption("help,h").version("1.0");
        const kexa::Parsed<DrawnSettings> first = command.parse(arguments);
        const kexa::Parsed<DrawnSettings> second = command.parse(arguments);
        fuzzing::require(first.status() == second.status(), "a line means the same each time");
        fuzzing::require(first.outcome().error.message == second.outcome().error.message,
                         "a line has the same message each time");
        if (first.status() == kexa::Status::error)
        {
            const std::string wrong = toolbox::findContradiction(first.error(), arguments.size());
            fuzzing::require(wrong.empty(), (toolbox::lineOf(arguments) + ": " + wrong).c_str());
        }
        else
        {
            const bool isText = first.status() != kexa::Status::success;
            fuzzing::require(isText != first.text().empty(), "help and version have a text");
        }
    }
    catch (const std::logic_error& misuse)
    {
        fuzzing::require(*misuse.what() != '\0', "a wrong declaration is reported with a text");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::uint8_t* const end = data + size;
    const std::uint8_t* const choicesEnd = std::find(data, end, std::uint8_t{'\n'});
    toolbox::ChoicesOfBytes choices(data, static_cast<std::size_t>(choicesEnd - data));
    const toolbox::DrawnDeclarations declarations = toolbox::drawDeclarations(choices, true);
    try
    {
        toolbox::CommandComparison comparison(declarations);
        const std::vector<std::string> written =
            choicesEnd == end ? std::vector<std::string>() : textLinesOf(choicesEnd + 1, end);
        requireNoDifference(comparison.compare(written), written);
        for (int line = 0; line < 3 && !choices.areUsedUp(); ++line)
        {
            std::vector<std::string> arguments = toolbox::drawArguments(choices, declarations);
            requireNoDifference(comparison.compare(arguments), arguments);
            arguments.insert(arguments.end(), written.begin(), written.end());
            checkExtended(choices, declarations, arguments);
        }
        checkExtended(choices, declarations, written);
    }
    catch (const std::logic_error& misuse)
    {
        fuzzing::require(*misuse.what() != '\0', "a wrong declaration is reported with a text");
    }
    return 0;
}
