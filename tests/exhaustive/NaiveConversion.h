// Texts to typed values and back, by way of the standard streams.
#ifndef NAIVE_CONVERSION_H
#define NAIVE_CONVERSION_H

#include <cstdint>
#include <string>

#include "kexa/variant.h"

namespace naive
{

// The value that the text gives in a value type; a null variant when it gives none.
vexkit2::variant_t convertText(std::int32_t valueType, const std::wstring& text);

// A value as messages and results write it.
std::wstring textOfValue(const vexkit2::variant_t& value);

// What messages call a value type; empty for a type without a name.
std::wstring nameOfValueType(std::int32_t valueType);

} // namespace naive

#endif
