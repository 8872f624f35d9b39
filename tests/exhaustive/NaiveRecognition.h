// Recognition of the option that an argument names, and of its value.
#ifndef NAIVE_RECOGNITION_H
#define NAIVE_RECOGNITION_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "NaiveRun.h"

namespace naive
{

// The parts of an argument such as "--name=value", without the hyphens.
struct SplitArgument
{
    std::wstring name;
    std::wstring value;
};

SplitArgument splitArgument(const std::wstring& argument);

// The option that an argument names, in full or abbreviated.
struct Recognised
{
    bool claimed = false;
    const Option* option = nullptr; // null if the abbreviation is ambiguous
    std::wstring bestName;
    std::wstring candidateList; // empty unless the abbreviation is ambiguous
};

Recognised recogniseOption(const Registry& registry, const std::wstring& argument);

// Parses the front argument as the recognised option. Returns the code; if it is 0, the consumed
// arguments have been removed from the front.
std::int32_t parseOption(Run& run, const Recognised& recognised, Arguments& arguments,
                         std::wstring& error);

// Returns whether the argument is a value of the first positional option.
bool recognisePositional(const Registry& registry, std::int32_t flags,
                         const std::wstring& argument);

// Parses the front argument as a value of the first positional option. Otherwise as parseOption().
std::int32_t parsePositional(Run& run, Arguments& arguments, std::wstring& error);

} // namespace naive

#endif
