// An event handler made without a class of the library: a pointer to a table of three functions.
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

    const void* const* const table; // first, as in every object with virtual operations
    std::vector<std::wstring> events;
};

#endif
