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
    // record: used up, its values being moved away. Its texts are copied.
    //
    // Returns 0. Throws std::out_of_range where the option has no name, and std::bad_alloc; nothing
    // is stored then.
    virtual result_t storeOption(const OptionDescription& option, OptionResult& record) = 0;

    // As storeOption, of an occurrence with one value.
    virtual result_t storeValue(const OptionDescription& option, ValueEntry& value) = 0;

    // Makes string values, which then share the memory of the result.
    [[nodiscard]] virtual SharedTexts& texts() noexcept = 0;

protected:
    ~IResultCollector() = default;
};

} // namespace kexa_3_3
