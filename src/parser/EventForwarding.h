// The host's event handlers, and how they hear of events.
#pragma once

#include <cstddef>
#include <vector>

#include "kexa/event_handler.h"

namespace kexa_3_3
{

// Tells every registered handler, by ascending address, whatever it is told itself. Names and
// arguments are handed on as they are, so they have to live as long as handlers are promised.
//
// Handlers may be added and removed during an event: one that is removed before its turn is not
// called, one that is added is called where its address is higher than that of the handler at work.
class EventForwarding final : public EventHandler
{
public:
    // Answers false, changing nothing, for null and for a handler that is registered. Throws
    // std::bad_alloc, changing nothing.
    [[nodiscard]] bool add(EventHandler* handler);

    // Answers false for one that is not registered.
    [[nodiscard]] bool remove(EventHandler* handler);

    [[nodiscard]] bool empty() const noexcept { return m_handlers.empty(); }

    // Answers true, whatever the handlers do.
    bool onOptionParsed(const wchar_t* name) override;

    // Answers whether no handler refused the value; the first that does is the last one asked.
    bool onValueParsed(const wchar_t* name, const ValueRecord* value) override;

    // Answers whether no handler took the argument; all of them are asked.
    bool onUnknownArgument(const wchar_t* argument) override;

private:
    // Where to go on behind the handler that was called. It may have added and removed handlers,
    // and may be gone itself; where it stands as before, so do those behind it.
    [[nodiscard]] std::size_t placeBehind(std::size_t place, EventHandler* handler) const
    {
        const bool stands = place < m_handlers.size() && m_handlers[place] == handler;
        return stands ? place + 1 : placeAbove(handler);
    }
    [[nodiscard]] std::size_t placeAbove(EventHandler* handler) const;

    std::vector<EventHandler*> m_handlers; // by ascending address; not owned
};

} // namespace kexa_3_3
