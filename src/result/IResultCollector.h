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
    // Stores one occurrence of an option, or its default, under all names of the option. What is
    // stored before stays; a default is kept as first stored.
    //
    // record: its values are moved away, unless this throws; the vectors keep their room. Texts
    // need
    //         to live only during the call: behind it they may be others of the same content.
    //
    // Answers 0. Throws std::out_of_range where the option has no name, and std::bad_alloc; nothing
    // is stored then.
    virtual result_t storeOption(const OptionDescription& option, OptionResult& record) = 0;

    // The same for an occurrence with one value, which is moved away unless this throws.
    virtual result_t storeValue(const OptionDescription& option, ValueEntry& value) = 0;

    // Where string values are best made: those are stored without a copy.
    [[nodiscard]] virtual SharedTexts& texts() noexcept = 0;

protected:
    ~IResultCollector() = default;
};

} // namespace kexa_3_3
