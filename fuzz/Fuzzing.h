// Shared by the fuzz targets: reading inputs and reporting failures.
#ifndef KEXA_FUZZ_FUZZING_H
#define KEXA_FUZZ_FUZZING_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// Defined by every target; called by libFuzzer or by Replay.cpp.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzzing
{

// Aborts with a message that contains the rule unless the condition is true.
void require(bool condition, const char* rule);

// Aborts with a message that contains both texts and the rule unless the texts are equal.
void requireEqual(const std::wstring& actual, const std::wstring& expected, const char* rule);

// Splits an input at its line feeds and decodes it to wide text. Zero bytes become '?'.
std::vector<std::wstring> linesOf(const std::uint8_t* data, std::size_t size);

// Returns the part of a text before the separator, and removes both from the text. Takes the whole
// text if it has no separator.
std::wstring takeUpTo(std::wstring& text, wchar_t separator);

} // namespace fuzzing

#endif
