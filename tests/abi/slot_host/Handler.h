// An event handler that the host builds by hand: a pointer to a table of three operations.
#ifndef KEXA_TESTS_ABI_HANDLER_H
#define KEXA_TESTS_ABI_HANDLER_H

#include <string>
#include <vector>

#include "Slots.h"

struct Handler
{
    Handler();
    Handler(const Handler&) = delete;
    Handler& operator=(const Handler&) = delete;

    const void* const* const table; // first: this is where the library looks
    std::vector<std::wstring> events;
};

#endif
