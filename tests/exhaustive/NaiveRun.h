// The state that the steps of one parse share.
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
    std::int32_t position = 0;
};

struct Run
{
    const Registry& registry;
    const std::vector<HandlerRule>& handlers;
    std::int32_t flags;
    Result* result; // null: nothing is stored
    std::int32_t nextPosition;
    std::vector<Event> events;
};

// Returns the next position. It skips 2147483647, which means "no position".
std::int32_t positionAfter(std::int32_t position);

// Call the handlers in their order.
void notifyOptionParsed(Run& run, const std::wstring& name);

// Returns whether all handlers accept the value. Handlers after the first one that refuses it are
// not called.
bool notifyValueParsed(Run& run, const std::wstring& name, const vexkit2::variant_t& value,
                       std::int32_t position);

// Returns whether the argument stays unknown, because no handler takes it. Calls all handlers.
bool notifyUnknownArgument(Run& run, const std::wstring& argument);

} // namespace naive

#endif
