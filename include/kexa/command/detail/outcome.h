// What a parse gives besides the struct.
#ifndef KEXA_COMMAND_DETAIL_OUTCOME_H
#define KEXA_COMMAND_DETAIL_OUTCOME_H

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "kexa/command/error.h"
#include "kexa/parse_result.h"
#include "kexa/variant.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

struct Outcome
{
    Status status = Status::success;
    Error error;
    std::string text;     // of the help or the version
    std::string program;  // the names that lead to the command: "git remote add"
    std::string helpName; // of the option for help as it is typed; empty where there is none

    // One value that was given; occurrences() writes it out.
    struct GivenValue
    {
        const std::string* option; // in `names`
        vexkit2::variant_t value;  // null for an option without one
        int index;
        std::size_t file; // in `files`, from 1; 0 for none
        int line;
    };
    std::vector<GivenValue> values;
    std::vector<std::string> files;
    std::vector<std::shared_ptr<const std::vector<std::string>>> names;
    std::vector<Occurrence> occurrences() const;

    // Of the parser beneath, where the program shares it.
    std::shared_ptr<kexa_3_3::IParseResult> result;

    // Which members, by their offset in the struct, have their value from where.
    struct MemberSource
    {
        std::size_t offset;
        Source source;
    };
    std::vector<MemberSource> sources;

    std::vector<std::string> warnings; // what is deprecated and was given

    std::shared_ptr<const Outcome> inner; // of the subcommand that was given

    Source sourceOf(std::size_t offset) const;
};

// Prints a help or version text to standard output, an error to standard error. Returns 0 or 2.
int report(const Outcome& outcome);

// Prints the warnings to standard error.
void warn(const Outcome& outcome);

// Returns the message and hint of an error as report prints them.
std::string describe(const Outcome& outcome);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
