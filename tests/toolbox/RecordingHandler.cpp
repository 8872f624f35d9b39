#include "RecordingHandler.h"

#include <utility>

namespace toolbox
{

std::wstring describe(const vexkit2::variant_t& value)
{
    if (value.can_get<bool>())
    {
        return value.get<bool>() ? L"true" : L"false";
    }
    if (value.can_get<vexkit2::s64_t>())
    {
        return std::to_wstring(value.get<vexkit2::s64_t>());
    }
    if (value.can_get<const wchar_t*>())
    {
        return std::wstring(L"'") + value.get<const wchar_t*>() + L"'";
    }
    return L"kind " + std::to_wstring(value.kind());
}

RecordingHandler::RecordingHandler(Events& events, std::wstring label)
    : m_events(&events), m_label(std::move(label))
{
}

bool RecordingHandler::onOptionParsed(const wchar_t* name)
{
    m_events->push_back(m_label + L"option " + name);
    return answerOption ? answerOption(name) : true;
}

bool RecordingHandler::onValueParsed(const wchar_t* name, const kexa_3_3::ValueRecord* value)
{
    m_events->push_back(m_label + L"value " + name + L" " + describe(value->value));
    return answerValue ? answerValue(name, *value) : true;
}

bool RecordingHandler::onUnknownArgument(const wchar_t* argument)
{
    m_events->push_back(m_label + L"unknown " + argument);
    return answerUnknown ? answerUnknown(argument) : true;
}

} // namespace toolbox
