#include "NaiveRun.h"

#include "NaiveConversion.h"

namespace naive
{

std::int32_t positionAfter(std::int32_t position)
{
    return position + 1 == no_position ? 0 : position + 1;
}

void notifyOptionParsed(Run& run, const std::wstring& name)
{
    for (std::size_t handler = 0; handler < run.handlers.size(); ++handler)
    {
        run.events.push_back({Event::Kind::optionParsed, handler, name, {}, 0});
    }
}

bool notifyValueParsed(Run& run, const std::wstring& name, const vexkit2::variant_t& value,
                       std::int32_t position)
{
    for (std::size_t handler = 0; handler < run.handlers.size(); ++handler)
    {
        run.events.push_back({Event::Kind::valueParsed, handler, name, value, position});
        if (run.handlers[handler].refusedValues.count(textOfValue(value)) != 0)
        {
            return false;
        }
    }
    return true;
}

bool notifyUnknownArgument(Run& run, const std::wstring& argument)
{
    bool unknown = true;
    for (std::size_t handler = 0; handler < run.handlers.size(); ++handler)
    {
        run.events.push_back({Event::Kind::unknownArgument, handler, argument, {}, 0});
        if (run.handlers[handler].takenArguments.count(argument) != 0)
        {
            unknown = false;
        }
    }
    return unknown;
}

} // namespace naive
