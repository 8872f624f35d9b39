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

std::wstring describeAnswer(const ValueAnswer& answer)
{
    if (answer.code != 0)
    {
        return L"(" + std::to_wstring(answer.code) + L")";
    }
    return L"(" + (answer.hasText ? L"'" + answer.text + L"'" : L"no text") + L", " +
           describeValue(answer.value) + L", position " + describePosition(answer.position) + L")";
}

std::wstring describeEvent(const Event& event)
{
    const std::wstring handler = L" [handler " + std::to_wstring(event.handler) + L"]";
    switch (event.kind)
    {
    case Event::Kind::optionParsed:
        return L"option parsed '" + event.text + L"'" + handler;
    case Event::Kind::valueParsed:
        return L"value parsed '" + event.text + L"', " + describeValue(event.value) + L", number " +
               std::to_wstring(event.number) + handler;
    case Event::Kind::unknownArgument:
        break;
    }
    return L"unknown argument '" + event.text + L"'" + handler;
}

} // namespace

bool operator==(const Event& left, const Event& right)
{
    return left.kind == right.kind && left.handler == right.handler && left.text == right.text &&
           left.number == right.number && sameValue(left.value, right.value);
}

bool operator==(const ValueAnswer& left, const ValueAnswer& right)
{
    return left.code == right.code && left.hasText == right.hasText && left.text == right.text &&
           left.position == right.position && sameValue(left.value, right.value);
}

bool operator==(const NameAnswers& left, const NameAnswers& right)
{
    return left.name == right.name && left.present == right.present &&
           left.afterPresent == right.afterPresent && left.values == right.values &&
           left.positions == right.positions && left.last == right.last;
}

bool operator==(const Outcome& left, const Outcome& right)
{
    return left.code == right.code && left.message == right.message &&
           left.events == right.events && left.unparsed == right.unparsed &&
           left.names == right.names && left.nextNumber == right.nextNumber;
}

std::wstring describe(const Outcome& outcome)
{
    std::wostringstream text;
    text << L"  code " << outcome.code << L", message '" << outcome.message << L"', next number "
         << outcome.nextNumber << L'\n';
    for (const Event& event : outcome.events)
    {
        text << L"  event: " << describeEvent(event) << L'\n';
    }
    for (const std::wstring& argument : outcome.unparsed)
    {
        text << L"  left over: '" << argument << L"'\n";
    }
    for (const NameAnswers& answers : outcome.names)
    {
        text << L"  '" << answers.name << L"' in " << describePosition(answers.from) << L".."
             << describePosition(answers.to) << (answers.present ? L": present" : L": absent")
             << L"; then";
        for (const ValueAnswer& answer : answers.afterPresent)
        {
            text << L' ' << describeAnswer(answer);
        }
        text << L"; values";
        for (const ValueAnswer& answer : answers.values)
        {
            text << L' ' << describeAnswer(answer);
        }
        text << L"; positions";
        for (const std::int32_t position : answers.positions)
        {
            text << L' ' << describePosition(position);
        }
        text << L"; last " << describeAnswer(answers.last) << L'\n';
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
