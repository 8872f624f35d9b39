// Conversion of texts to typed values and back with the standard streams.
#ifndef NAIVE_CONVERSION_H
#define NAIVE_CONVERSION_H

#include <cstdint>
#include <string>

#include "kexa/variant.h"

namespace naive
{

// Converts a text to a value type. Returns a null variant if the text is not valid.
vexkit2::variant_t convertText(std::int32_t valueType, const std::wstring& text);

// Returns the text of a value in messages and results.
std::wstring textOfValue(const vexkit2::variant_t& value);

// Returns the name of a value type in messages; empty for a type without a name.
std::wstring nameOfValueType(std::int32_t valueType);

} // namespace naive

#endif
