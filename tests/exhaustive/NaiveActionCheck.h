// Checks that the given options and actions may be combined.
#ifndef NAIVE_ACTION_CHECK_H
#define NAIVE_ACTION_CHECK_H

#include <cstdint>
#include <string>

#include "NaiveRegistry.h"
#include "NaiveResult.h"

namespace naive
{

// Returns the code of the check: 0, 1 for a name that no option has, or 2 with a message.
std::int32_t checkActions(const Registry& registry, const Result& result, std::wstring& message);

} // namespace naive

#endif
