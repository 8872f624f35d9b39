// Code points as texts of both kinds, written for tests without a look at the library.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace unit
{

// A Unicode scalar value: any code point but a surrogate.
bool isScalarValue(std::uint32_t codePoint);

// A scalar value in UTF-8.
std::string encode(std::uint32_t codePoint);

// The number that the payload bits of the bytes make, taken for one sequence of that length. It
// says nothing about whether the sequence is well-formed.
std::uint32_t decodeWhole(std::string_view bytes);

// Scalar values in wide text.
std::wstring wideOf(const std::vector<std::uint32_t>& codePoints);

// Bytes for a failure message: "C3 A9".
std::string bytesOf(std::string_view bytes);

} // namespace unit
