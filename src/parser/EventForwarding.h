// The host's event handlers, and how they hear of events.
#pragma once

#include <cstddef>
#include <cstdint>
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
    // Hands the handlers to `tell`, one after the other, as long as that answers to go on. Answers
    // whether it always did.
    template <class Tell>
    [[nodiscard]] bool tellInTurn(Tell tell) const;
    [[nodiscard]] EventHandler* const* firstAbove(EventHandler* handler) const;

    std::vector<EventHandler*> m_handlers; // by ascending address; not owned
    std::uint64_t m_changes = 0;           // how often they were changed
};

} // namespace kexa_3_3
