// An event handler that records the events of the library.
#ifndef NAIVE_RULE_HANDLER_H
#define NAIVE_RULE_HANDLER_H

#include <cstddef>
#include <string>
#include <vector>

#include "kexa/event_handler.h"
#include "NaiveConversion.h"
#include "NaiveDeclarations.h"
#include "NaiveRun.h"

namespace naive
{

// Records every event and returns what its rule defines.
class RuleHandler final : public kexa_3_3::EventHandler
{
public:
    RuleHandler(std::size_t index, const HandlerRule& rule, std::vector<Event>& events)
        : m_index(index), m_rule(&rule), m_events(&events)
    {
    }

    bool onOptionParsed(const wchar_t* name) override
    {
        m_events->push_back({Event::Kind::optionParsed, m_index, name, {}, 0});
        return true;
    }

    bool onValueParsed(const wchar_t* name, const kexa_3_3::ValueRecord* value) override
    {
        std::wstring text = name;
        if (text != value->optionName)
        {
            text += L" (in the record: '" + std::wstring(value->optionName) + L"')";
        }
        m_events->push_back(
            {Event::Kind::valueParsed, m_index, text, value->value, value->sequenceNumber});
        return m_rule->refusedValues.count(textOfValue(value->value)) == 0;
    }

    bool onUnknownArgument(const wchar_t* argument) override
    {
        m_events->push_back({Event::Kind::unknownArgument, m_index, argument, {}, 0});
        return m_rule->takenArguments.count(argument) == 0;
    }

private:
    std::size_t m_index;
    const HandlerRule* m_rule;
    std::vector<Event>* m_events;
};

} // namespace naive

#endif
