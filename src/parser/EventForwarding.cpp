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
    for (std::size_t place = 0; place < m_handlers.size();)
    {
        EventHandler* const handler = m_handlers[place];
        static_cast<void>(handler->onOptionParsed(name));
        place = placeBehind(place, handler);
    }
    return true;
}

bool EventForwarding::onValueParsed(const wchar_t* name, const ValueRecord* value)
{
    for (std::size_t place = 0; place < m_handlers.size();)
    {
        EventHandler* const handler = m_handlers[place];
        if (!handler->onValueParsed(name, value))
        {
            return false;
        }
        place = placeBehind(place, handler);
    }
    return true;
}

bool EventForwarding::onUnknownArgument(const wchar_t* argument)
{
    bool unknown = true;
    for (std::size_t place = 0; place < m_handlers.size();)
    {
        EventHandler* const handler = m_handlers[place];
        unknown = handler->onUnknownArgument(argument) && unknown;
        place = placeBehind(place, handler);
    }
    return unknown;
}

// The place of the first handler with a higher address.
std::size_t EventForwarding::placeAbove(EventHandler* handler) const
{
    const auto next =
        std::upper_bound(m_handlers.begin(), m_handlers.end(), handler, std::less<>());
    return static_cast<std::size_t>(next - m_handlers.begin());
}

} // namespace kexa_3_3
