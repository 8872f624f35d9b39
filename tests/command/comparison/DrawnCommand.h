// Declarations that are drawn, made for a command and for a parser of the binary interface alike.
#ifndef KEXA_TESTS_COMMAND_COMPARISON_DRAWN_COMMAND_H
#define KEXA_TESTS_COMMAND_COMPARISON_DRAWN_COMMAND_H

#include <cstddef>
#include <string>
#include <vector>

#include "Choices.h"
#include "DrawnSettings.h"
#include "RawParser.h"

namespace toolbox
{

struct DrawnOption
{
    Member member;
    std::string names; // as they are declared, split at ','
    bool isSeparated = false;
    std::vector<std::size_t> actions; // those that accept the option; empty for all

    std::string primaryName() const { return names.substr(0, names.find(',')); }
};

enum class Words : unsigned char
{
    none,
    list,
    firstAndList
};

struct DrawnDeclarations
{
    std::vector<std::string> actions; // names, at most three
    std::vector<std::size_t> together;
    std::vector<DrawnOption> options;
    Words words = Words::none;
    bool hasOptionFiles = false;
};

// makeName: true where names are drawn letter by letter; a command may refuse them then.
DrawnDeclarations drawDeclarations(Choices& choices, bool makesNames);

// Declares everything, help left out. Throws std::logic_error for names that are no names.
void declare(kexa::Command<DrawnSettings>& command, const DrawnDeclarations& declarations);
// Precondition: declare() has accepted the declarations.
void declare(RawParser& parser, const DrawnDeclarations& declarations);

} // namespace toolbox

#endif
