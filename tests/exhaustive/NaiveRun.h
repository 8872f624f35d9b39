// What the steps of one parse share: what was declared, and what they have found so far.
#ifndef NAIVE_RUN_H
#define NAIVE_RUN_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "kexa/variant.h"
#include "NaiveRegistry.h"
#include "NaiveResult.h"

namespace naive
{

using Arguments = std::vector<std::wstring>;

// One call of an event handler.
struct Event
{
    enum class Kind
    {
        optionParsed,
        valueParsed,
        unknownArgument
    };

    Kind kind = Kind::optionParsed;
    std::size_t handler = 0;
    std::wstring text; // the option's name, or the argument
    vexkit2::variant_t value;
    std::int32_t number = 0;
};

struct Run
{
    const Registry& registry;
    const std::vector<HandlerRule>& handlers;
    std::int32_t flags;
    Result* result; // null: parse without storing
    std::int32_t nextNumber;
    std::vector<Event> events;
};

// The number after the given one. 2147483647 means "no position" and is left out.
std::int32_t numberAfter(std::int32_t number);

// Tell the handlers, in their order; answer as the parser answers its own steps.
void tellOptionParsed(Run& run, const std::wstring& name);
bool tellValueParsed(Run& run, const std::wstring& name, const vexkit2::variant_t& value,
                     std::int32_t number);
bool tellUnknownArgument(Run& run, const std::wstring& argument);

} // namespace naive

#endif
