// Whether the options and actions that were given go together.
#ifndef NAIVE_ACTION_CHECK_H
#define NAIVE_ACTION_CHECK_H

#include <cstdint>
#include <string>

#include "NaiveRegistry.h"
#include "NaiveResult.h"

namespace naive
{

// Answers the code of the check, with its message where the code is not 0.
std::int32_t checkActions(const Registry& registry, const Result& result, std::wstring& message);

} // namespace naive

#endif
