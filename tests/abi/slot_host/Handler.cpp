#include "Handler.h"

namespace
{

bool onOptionParsed(Handler* handler, const wchar_t* name)
{
    handler->events.push_back(std::wstring(L"option ") + name);
    return true;
}

bool onValueParsed(Handler* handler, const wchar_t* name, const RawValueRecord* record)
{
    const auto number = static_cast<std::int32_t>(record->value.data);
    handler->events.push_back(std::wstring(L"value of ") + name + L" " + record->optionName +
                              L", kind " + std::to_wstring(record->value.kind) + L": " +
                              std::to_wstring(number));
    return number != 13;
}

bool onUnknownArgument(Handler* handler, const wchar_t* argument)
{
    handler->events.push_back(std::wstring(L"unknown ") + argument);
    return false; // taken
}

const void* const operations[] = {reinterpret_cast<const void*>(&onOptionParsed),
                                  reinterpret_cast<const void*>(&onValueParsed),
                                  reinterpret_cast<const void*>(&onUnknownArgument)};

} // namespace

Handler::Handler() : table(operations) {}
