#include "Outcome.h"

#include <sstream>

#include "NaiveConversion.h"

namespace naive
{

namespace
{

bool sameValue(const vexkit2::variant_t& left, const vexkit2::variant_t& right)
{
    return left.kind() == right.kind() && left == right;
}

std::wstring describeValue(const vexkit2::variant_t& value)
{
    return L"kind " + std::to_wstring(value.kind()) + L" '" + textOfValue(value) + L"'";
}

std::wstring describePosition(std::int32_t position)
{
    return position == no_position ? L"none" : std::to_wstring(position);
}

std::wstring describeQueriedValue(const QueriedValue& queried)
{
    if (queried.code != 0)
    {
        return L"(" + std::to_wstring(queried.code) + L")";
    }
    return L"(" + (queried.hasText ? L"'" + queried.text + L"'" : L"no text") + L", " +
           describeValue(queried.value) + L", position " + describePosition(queried.position) +
           L")";
}

std::wstring describeEvent(const Event& event)
{
    const std::wstring handler = L" [handler " + std::to_wstring(event.handler) + L"]";
    switch (event.kind)
    {
    case Event::Kind::optionParsed:
        return L"option parsed '" + event.text + L"'" + handler;
    case Event::Kind::valueParsed:
        return L"value parsed '" + event.text + L"', " + describeValue(event.value) +
               L", position " + std::to_wstring(event.position) + handler;
    case Event::Kind::unknownArgument:
        break;
    }
    return L"unknown argument '" + event.text + L"'" + handler;
}

} // namespace

bool operator==(const Event& left, const Event& right)
{
    return left.kind == right.kind && left.handler == right.handler && left.text == right.text &&
           left.position == right.position && sameValue(left.value, right.value);
}

bool operator==(const QueriedValue& left, const QueriedValue& right)
{
    return left.code == right.code && left.hasText == right.hasText && left.text == right.text &&
           left.position == right.position && sameValue(left.value, right.value);
}

bool operator==(const QueriedName& left, const QueriedName& right)
{
    return left.name == right.name && left.present == right.present &&
           left.afterPresent == right.afterPresent && left.values == right.values &&
           left.positions == right.positions && left.last == right.last;
}

bool operator==(const Outcome& left, const Outcome& right)
{
    return left.code == right.code && left.message == right.message &&
           left.events == right.events && left.unparsed == right.unparsed &&
           left.names == right.names && left.nextPosition == right.nextPosition;
}

std::wstring describe(const Outcome& outcome)
{
    std::wostringstream text;
    text << L"  code " << outcome.code << L", message '" << outcome.message << L"', next position "
         << outcome.nextPosition << L'\n';
    for (const Event& event : outcome.events)
    {
        text << L"  event: " << describeEvent(event) << L'\n';
    }
    for (const std::wstring& argument : outcome.unparsed)
    {
        text << L"  left over: '" << argument << L"'\n";
    }
    for (const QueriedName& queried : outcome.names)
    {
        text << L"  '" << queried.name << L"' in " << describePosition(queried.from) << L".."
             << describePosition(queried.to) << (queried.present ? L": present" : L": absent")
             << L"; then";
        for (const QueriedValue& value : queried.afterPresent)
        {
            text << L' ' << describeQueriedValue(value);
        }
        text << L"; values";
        for (const QueriedValue& value : queried.values)
        {
            text << L' ' << describeQueriedValue(value);
        }
        text << L"; positions";
        for (const std::int32_t position : queried.positions)
        {
            text << L' ' << describePosition(position);
        }
        text << L"; last " << describeQueriedValue(queried.last) << L'\n';
    }
    return text.str();
}

std::vector<std::wstring> namesOf(const Registry& registry)
{
    std::vector<std::wstring> names;
    for (const Option& option : registry.options())
    {
        names.insert(names.end(), option.names.begin(), option.names.end());
    }
    return names;
}

} // namespace naive
