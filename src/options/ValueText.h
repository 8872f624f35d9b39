// Texts of typed values, as messages and help show them.
#pragma once

#include <string>

#include "kexa/variant.h"

namespace kexa_3_3
{

// Returns integers in decimal; doubles in the fewest digits that read back to the same value,
// scientific below 1e-5 and from 1e16 on; booleans "1" or "0"; wide text as it is; narrow text read
// as UTF-8; an empty text for null, blobs and objects. No locale matters.
[[nodiscard]] std::wstring valueText(const vexkit2::variant_t& value);

} // namespace kexa_3_3
