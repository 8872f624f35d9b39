// An option that no registry declared, entered into an index.
#pragma once

#include <cstddef>

#include "options/OptionDescription.h"
#include "options/OptionIndex.h"

namespace unit
{

// Adds the option to the index as a registry does. Names that it gets later are added as well, and
// the index notes when the option becomes positional.
//
// number: the option's place in table order, which no other option of the index has.
inline void enterOption(kexa_3_3::OptionDescription& option, kexa_3_3::OptionIndex& index,
                        std::size_t number)
{
    const bool boolean = option.valueType == kexa_3_3::value_type_boolean;
    index.reserveMore(option.names.size());
    for (kexa_3_3::HashedText& name : option.names)
    {
        name = index.keep(name, boolean);
        index.add(name, number, boolean);
    }
    option.enterInto(index, number);
}

} // namespace unit
