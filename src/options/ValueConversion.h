// Conversion of a text to a typed value.
#pragma once

#include <cstdint>
#include <string_view>

#include "kexa/variant.h"

namespace kexa_3_3
{

class SharedTexts;

// A string value.
//
// texts: where the text is copied to; null for a block of its own. Throws std::bad_alloc.
[[nodiscard]] vexkit2::variant_t makeText(std::wstring_view text, SharedTexts* texts);

// The value of the given type that the text stands for, or the null variant where it stands for
// none. It does not depend on any locale.
//
// Numbers may have white space before and after them, a sign (unsigned types: only "+"), and are
// decimal. An unsigned 64-bit value may also be written 0x1F or 1Fh, without white space and sign.
// A double may have a fraction and an exponent; one too small becomes the nearest double. A number
// that its type cannot hold does not convert. A boolean is exactly "1", "true", "0" or "false".
//
// texts: as for makeText.
[[nodiscard]] vexkit2::variant_t convertValue(std::int32_t valueType, std::wstring_view text,
                                              SharedTexts* texts = nullptr);

} // namespace kexa_3_3
