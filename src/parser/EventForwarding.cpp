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
    ++m_changes;
    return true;
}

bool EventForwarding::remove(EventHandler* handler)
{
    const bool removed = std::erase(m_handlers, handler) != 0;
    m_changes += removed ? 1 : 0;
    return removed;
}

bool EventForwarding::onOptionParsed(const wchar_t* name)
{
    return tellInTurn(
        [name](EventHandler& handler)
        {
            static_cast<void>(handler.onOptionParsed(name));
            return true;
        });
}

bool EventForwarding::onValueParsed(const wchar_t* name, const ValueRecord* value)
{
    return tellInTurn([=](EventHandler& handler) { return handler.onValueParsed(name, value); });
}

bool EventForwarding::onUnknownArgument(const wchar_t* argument)
{
    bool unknown = true;
    static_cast<void>(tellInTurn(
        [&](EventHandler& handler)
        {
            unknown = handler.onUnknownArgument(argument) && unknown;
            return true;
        }));
    return unknown;
}

template <class Tell>
bool EventForwarding::tellInTurn(Tell tell) const
{
    EventHandler* const* next = m_handlers.data();
    EventHandler* const* end = next + m_handlers.size();
    std::uint64_t changes = m_changes;
    while (next != end)
    {
        EventHandler* const handler = *next++;
        if (!tell(*handler))
        {
            return false;
        }
        if (changes != m_changes) [[unlikely]]
        {
            // Some were added or removed meanwhile, this one perhaps, which then may be gone.
            changes = m_changes;
            next = firstAbove(handler);
            end = m_handlers.data() + m_handlers.size();
        }
    }
    return true;
}

// The first handler with a higher address.
EventHandler* const* EventForwarding::firstAbove(EventHandler* handler) const
{
    const auto next =
        std::upper_bound(m_handlers.begin(), m_handlers.end(), handler, std::less<>());
    return m_handlers.data() + (next - m_handlers.begin());
}

} // namespace kexa_3_3
