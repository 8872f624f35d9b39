// The table of the exhaustive run. Each row has declarations and the arguments for its vectors.
#ifndef NAIVE_OPTION_SETS_H
#define NAIVE_OPTION_SETS_H

#include <cstdint>
#include <string>
#include <vector>

#include "NaiveDeclarations.h"

namespace naive
{

struct OptionSet
{
    std::string title;
    Declarations declarations;
    std::vector<HandlerRule> handlers;
    std::vector<std::wstring> alphabet;

    // The flags that affect these declarations. Vectors of full length are parsed with every
    // combination of these flags, shorter ones with every combination of all flags.
    std::int32_t decisiveFlags = 0;
};

std::vector<OptionSet> optionSets();

// Each appends the rows of one topic.
void appendNameSets(std::vector<OptionSet>& sets);
void appendValueSets(std::vector<OptionSet>& sets);
void appendPositionalSets(std::vector<OptionSet>& sets);
void appendActionSets(std::vector<OptionSet>& sets);

} // namespace naive

#endif
