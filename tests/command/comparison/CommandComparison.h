// Parses lines by a command and by a parser that is declared alike, and finds differences.
#ifndef KEXA_TESTS_COMMAND_COMPARISON_COMMAND_COMPARISON_H
#define KEXA_TESTS_COMMAND_COMPARISON_COMMAND_COMPARISON_H

#include <string>
#include <vector>

#include "DrawnCommand.h"

namespace toolbox
{

// Why a line is not compared: the layer means more by it than the parser.
enum class Rule : unsigned char
{
    none,
    ambiguousName,  // it may be short for names of one option
    negativeNumber, // "--offset -30"
    valueOfBoolean, // "--flag=false"
    nothingAsValue, // "--name=" is refused, and does not take the next argument
    singleHyphen,   // "-" is a value and a positional argument
    repeatedLetter, // "-vvv"
    emptyArgument,  // a positional argument that is an empty text
    traceKeyword,   // an argument like others
    bytesOfFile,    // the layer keeps bytes that are no UTF-8
    severalActions, // an option may belong to any of the actions given
    takenByNobody   // an argument behind "--" where there is no positional argument
};

struct Verdict
{
    Rule rule = Rule::none;
    bool isAccepted = false;
    std::string difference; // empty where there is none
};

class CommandComparison
{
public:
    // Throws std::logic_error where a command refuses the declarations.
    explicit CommandComparison(const DrawnDeclarations& declarations);

    // optionFileLines: what the option files of the line hold, so that its rule is found.
    Verdict compare(const std::vector<std::string>& arguments,
                    const std::vector<std::string>& optionFileLines = {});

    kexa::Command<DrawnSettings>& command() { return m_command; }

private:
    std::string valuesOfRaw() const;
    bool hasSeveralActions() const;
    std::string valuesOf(const DrawnSettings& settings) const;
    std::string findContradiction(const kexa::Parsed<DrawnSettings>& parsed) const;

    DrawnDeclarations m_declarations;
    kexa::Command<DrawnSettings> m_command{"drawn"};
    RawParser m_raw;
};

// Returns what an error lacks or contradicts, for a line of so many arguments; empty where it is
// whole.
std::string findContradiction(const kexa::Error& error, std::size_t argumentCount);

// Returns the arguments in quotes, for messages.
std::string lineOf(const std::vector<std::string>& arguments);

} // namespace toolbox

#endif
