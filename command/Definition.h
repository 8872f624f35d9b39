// Everything that a program has declared about one command.
#ifndef KEXA_COMMAND_PRIVATE_DEFINITION_H
#define KEXA_COMMAND_PRIVATE_DEFINITION_H

#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "kexa/command/detail/core.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

struct RelationOfOptions
{
    Core::Relation relation;
    std::vector<const Declaration*> members;
};

struct Definition
{
    std::string name;
    std::string summary;
    std::string epilog;
    std::string version;
    std::vector<std::pair<std::string, std::string>> examples;
    std::string path; // the names that lead to the command, its own last: "git remote add"

    StructOperations operations{};
    void* prototype = nullptr;
    void (*misuse)(const std::string&) = nullptr;

    std::vector<std::unique_ptr<Declaration>> declarations;
    std::unordered_map<std::string, const Declaration*> options; // by each of their names
    std::unordered_map<std::string, const Declaration*> positionals;
    std::vector<std::string> subcommands; // their names
    std::vector<RelationOfOptions> relations;
    std::vector<std::unique_ptr<Rule>> rules; // over the whole struct

    Conventions conventions = Conventions::library;
    bool abbreviations = true;
    bool trace = false;
    bool verbs = false;
    bool actionRequired = false;
    std::string helpNames = "help,h";
    std::string versionNames = "version";
    bool attached = false; // as a subcommand of another

    bool isPosix() const { return conventions == Conventions::posix; }
};

// Returns the pieces between the commas.
std::vector<std::string> splitNames(std::string_view names);

// Tells a name that the declaration cannot have, of those that the program gave as `names`.
void checkName(const Core& core, const Definition& definition, const Declaration& declaration,
               const std::string& name, std::string_view names);

// Returns the option as messages name it: "--list", "-l", or the bare name of a positional
// argument.
std::string spelled(const Declaration& declaration);
std::string spelledName(std::string_view name);

// Return the values that are allowed, and those of the default, as they are given on the command
// line.
std::vector<std::string> allowedTexts(const Declaration& declaration);
std::vector<std::string> defaultTexts(const Definition& definition, const Declaration& declaration);

// Whether the option is boolean and so has a form that begins with "no-".
inline bool hasNegation(const Declaration& declaration)
{
    return declaration.isFlag();
}

inline bool isPositional(const Declaration& declaration)
{
    return declaration.kind == Kind::positional || declaration.kind == Kind::rest;
}

// Whether a positional list takes any number of arguments.
inline bool isUnlimited(const Declaration& declaration)
{
    return declaration.maximum == static_cast<std::size_t>(-1);
}

// Whether the option is written with hyphens.
inline bool isNamedOption(const Declaration& declaration)
{
    return !isPositional(declaration) && declaration.kind != Kind::subcommand;
}

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
