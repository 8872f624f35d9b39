// Reference conversions between code points, UTF-8 and wide text, independent of the library.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace unit
{

// Returns whether a code point is a Unicode scalar value, which every code point but the surrogates
// is.
bool isScalarValue(std::uint32_t codePoint);

// Encodes a scalar value in UTF-8.
std::string encode(std::uint32_t codePoint);

// Returns the number that the payload bits of one sequence encode, well-formed or not. Returns
// 0xFFFFFFFF for bytes that do not have the pattern of a sequence of this length.
std::uint32_t decodeWhole(std::string_view bytes);

// Encodes scalar values as wide text.
std::wstring wideOf(const std::vector<std::uint32_t>& codePoints);

// Formats bytes for a failure message: "C3 A9 ".
std::string bytesOf(std::string_view bytes);

} // namespace unit
