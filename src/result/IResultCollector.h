// The writer's view of a parse result.
#pragma once

#include "kexa/result.h"

#include "result/OptionResult.h"

namespace kexa_3_3
{

class OptionDescription;
class SharedTexts;

class IResultCollector
{
public:
    // Stores one occurrence of an option, or its default, under all names of the option. What was
    // stored before stays; of several defaults the first is kept.
    //
    // record: its values are moved from, its texts are copied.
    //
    // Returns 0. Throws std::out_of_range if the option has no name, and std::bad_alloc; nothing is
    // stored then.
    virtual result_t storeOption(const OptionDescription& option, OptionResult& record) = 0;

    // As storeOption, for an occurrence with one value.
    virtual result_t storeValue(const OptionDescription& option, ValueEntry& value) = 0;

    // Returns the maker of string values whose texts share the memory of the result.
    [[nodiscard]] virtual SharedTexts& texts() noexcept = 0;

protected:
    ~IResultCollector() = default;
};

} // namespace kexa_3_3
