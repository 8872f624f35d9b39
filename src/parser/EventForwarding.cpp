#include "parser/EventForwarding.h"

#include <algorithm>
#include <functional>

namespace kexa_3_3
{

bool EventForwarding::add(EventHandler* handler)
{
    const auto place =
        std::lower_bound(m_handlers.begin(), m_handlers.end(), handler, std::less<>());
    if (handler == nullptr || (place != m_handlers.end() && *place == handler))
    {
        return false;
    }
    m_handlers.insert(place, handler);
    return true;
}

bool EventForwarding::remove(EventHandler* handler)
{
    return std::erase(m_handlers, handler) != 0;
}

bool EventForwarding::onOptionParsed(const wchar_t* name)
{
    return callEach(
        [name](EventHandler& handler)
        {
            static_cast<void>(handler.onOptionParsed(name));
            return true;
        });
}

bool EventForwarding::onValueParsed(const wchar_t* name, const ValueRecord* value)
{
    return callEach([=](EventHandler& handler) { return handler.onValueParsed(name, value); });
}

bool EventForwarding::onUnknownArgument(const wchar_t* argument)
{
    bool isUnknown = true;
    static_cast<void>(callEach(
        [&](EventHandler& handler)
        {
            isUnknown = handler.onUnknownArgument(argument) && isUnknown;
            return true;
        }));
    return isUnknown;
}

// Calls `call` with each handler as long as it returns true. Returns whether it always did.
template <class Call>
bool EventForwarding::callEach(Call call) const
{
    EventHandler* handler = m_handlers.empty() ? nullptr : m_handlers.front();
    while (handler != nullptr)
    {
        if (!call(*handler))
        {
            return false;
        }
        // Searched for again, as the vector may have changed. The handler itself may have been
        // destroyed: only its address is used.
        handler = nextAbove(handler);
    }
    return true;
}

// Returns the first handler with a higher address, or null.
EventHandler* EventForwarding::nextAbove(EventHandler* handler) const
{
    const auto next =
        std::upper_bound(m_handlers.begin(), m_handlers.end(), handler, std::less<>());
    return next == m_handlers.end() ? nullptr : *next;
}

} // namespace kexa_3_3
