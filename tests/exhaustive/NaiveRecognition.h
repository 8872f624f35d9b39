// Which option an argument means, and where its value comes from.
#ifndef NAIVE_RECOGNITION_H
#define NAIVE_RECOGNITION_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "NaiveRun.h"

namespace naive
{

// An argument such as "--name=value" without its hyphens.
struct SplitArgument
{
    std::wstring name;
    std::wstring value;
};

SplitArgument splitArgument(const std::wstring& argument);

// What the front argument means as an option or an abbreviation of one.
struct Recognised
{
    bool claimed = false;
    const Option* option = nullptr; // null where the abbreviation is ambiguous
    std::wstring bestName;
    std::wstring candidateList; // empty unless the abbreviation is ambiguous
};

Recognised recogniseOption(const Registry& registry, const std::wstring& argument);

// Parses the front argument as the option that it was recognised as. Answers the code; on 0 the
// consumed arguments are gone from the front.
std::int32_t parseOption(Run& run, const Recognised& recognised, Arguments& arguments,
                         std::wstring& error);

// The same for arguments that are values of the first positional option.
bool recognisePositional(const Registry& registry, std::int32_t flags,
                         const std::wstring& argument);
std::int32_t parsePositional(Run& run, Arguments& arguments, std::wstring& error);

} // namespace naive

#endif
