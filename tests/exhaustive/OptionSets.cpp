#include "OptionSets.h"

namespace naive
{

std::vector<OptionSet> optionSets()
{
    std::vector<OptionSet> sets;
    appendNameSets(sets);
    appendValueSets(sets);
    appendPositionalSets(sets);
    appendActionSets(sets);
    for (OptionSet& set : sets)
    {
        if (set.handlers.empty())
        {
            set.handlers.emplace_back(); // accepts everything; records the events
        }
    }
    return sets;
}

} // namespace naive
