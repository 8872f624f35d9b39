// The table of the exhaustive run: what is declared, and the arguments that vectors are made of.
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

    // The flag bits that decide something here. Vectors of full length run under every combination
    // of these; shorter ones under every combination of all bits.
    std::int32_t decisiveFlags = 0;
};

std::vector<OptionSet> optionSets();

// The table in pieces, by theme.
void appendNameSets(std::vector<OptionSet>& sets);
void appendValueSets(std::vector<OptionSet>& sets);
void appendPositionalSets(std::vector<OptionSet>& sets);
void appendActionSets(std::vector<OptionSet>& sets);

} // namespace naive

#endif
