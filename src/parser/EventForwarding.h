// The host's event handlers.
#pragma once

#include <vector>

#include "kexa/event_handler.h"

namespace kexa_3_3
{

// Forwards each event to all registered handlers, by ascending address. Names and arguments are
// forwarded as they are, so they must live as long as is promised to handlers.
//
// Handlers may be added and removed during an event: one that is removed before its turn is not
// called; one that is added is called if its address is higher than that of the running handler.
class EventForwarding final : public EventHandler
{
public:
    // Returns false, changing nothing, for null and for a handler that is registered. Throws
    // std::bad_alloc, changing nothing.
    [[nodiscard]] bool add(EventHandler* handler);

    // Returns false for a handler that is not registered.
    [[nodiscard]] bool remove(EventHandler* handler);

    [[nodiscard]] bool empty() const noexcept { return m_handlers.empty(); }

    // Returns true, whatever the handlers return.
    bool onOptionParsed(const wchar_t* name) override;

    // Returns whether every handler accepted the value. No handler is called after one that
    // refused.
    bool onValueParsed(const wchar_t* name, const ValueRecord* value) override;

    // Returns whether no handler took the argument. All of them are called.
    bool onUnknownArgument(const wchar_t* argument) override;

private:
    template <class Call>
    [[nodiscard]] bool callEach(Call call) const;
    [[nodiscard]] EventHandler* nextAbove(EventHandler* handler) const;

    std::vector<EventHandler*> m_handlers; // by ascending address; not owned
};

} // namespace kexa_3_3
