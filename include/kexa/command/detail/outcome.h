// What a parse gives besides the struct.
#ifndef KEXA_COMMAND_DETAIL_OUTCOME_H
#define KEXA_COMMAND_DETAIL_OUTCOME_H

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "kexa/command/error.h"
#include "kexa/parse_result.h"

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

    std::vector<Occurrence> occurrences;

    // Of the parser beneath, where the program shares it.
    std::shared_ptr<kexa_3_3::IParseResult> result;

    // Which members, by their offset in the struct, have their value from where.
    struct MemberSource
    {
        std::size_t offset;
        Source source;
    };
    std::vector<MemberSource> sources;

    Source sourceOf(std::size_t offset) const;
};

// Prints a help or version text to standard output, an error to standard error. Returns 0 or 2.
int report(const Outcome& outcome);

// Returns the message and hint of an error as report prints them.
std::string describe(const Outcome& outcome);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
