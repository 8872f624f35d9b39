// An option that no registry declared, entered into an index.
#pragma once

#include <cstddef>

#include "options/OptionDescription.h"
#include "options/OptionIndex.h"

namespace unit
{

// Makes the option known to the index as a registry does. From then on the index learns of further
// names, of values and of the option becoming positional.
//
// tableIndex: what the index tells the option by, which no other has.
inline void enterOption(kexa_3_3::OptionDescription& option, kexa_3_3::OptionIndex& index,
                        std::size_t tableIndex)
{
    index.reserve(option.names.size());
    option.setPlace(index, tableIndex);
    for (const kexa_3_3::HashedText& name : option.names)
    {
        index.add(name, tableIndex, option.valueType == kexa_3_3::value_type_boolean);
    }
    if (option.isPositional())
    {
        index.notePositional(tableIndex);
    }
    if (option.holdsValues())
    {
        index.noteValues();
    }
}

} // namespace unit
