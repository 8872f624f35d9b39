// Conversion of a text to a typed value.
#pragma once

#include <cstdint>
#include <string_view>

#include "kexa/variant.h"

namespace kexa_3_3
{

class SharedTexts;

// Returns a string value with a copy of the text. Throws std::bad_alloc.
//
// texts: makes the value; if null, the value gets a block of its own.
[[nodiscard]] vexkit2::variant_t makeText(std::wstring_view text, SharedTexts* texts);

// Returns the text as a value of the given type, or the null variant when it does not convert. No
// locale matters. Throws std::bad_alloc.
//
// Numbers are decimal, may have white space before and behind them, and a sign (for unsigned types
// only "+"). An unsigned 64-bit number may also be written 0x1F or 1Fh, without white space and
// sign. A double may have a fraction and an exponent; one too small becomes the nearest double. A
// number that its type cannot hold does not convert. A boolean is exactly "1", "true", "0" or
// "false".
//
// texts: as for makeText.
[[nodiscard]] vexkit2::variant_t convertValue(std::int32_t valueType, std::wstring_view text,
                                              SharedTexts* texts = nullptr);

} // namespace kexa_3_3
