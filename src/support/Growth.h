// Making room in vectors ahead of changes that must not fail.
#pragma once

#include <algorithm>
#include <cstddef>

namespace kexa_3_3
{

// Room for `count` elements more. It at least doubles, so that appending stays cheap however often
// it is asked for. Throws std::bad_alloc, changing nothing.
template <class Vector>
void reserveMore(Vector& elements, std::size_t count, std::size_t smallest = 1)
{
    const std::size_t needed = elements.size() + count;
    if (needed > elements.capacity())
    {
        elements.reserve(std::max({needed, 2 * elements.size(), smallest}));
    }
}

} // namespace kexa_3_3
