// What the fuzz targets share: reading their inputs, and saying what is wrong.
#ifndef KEXA_FUZZ_FUZZING_H
#define KEXA_FUZZ_FUZZING_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// Every target defines this one function; libFuzzer or the replaying main calls it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzzing
{

// Ends the program unless the condition holds, telling what should have been.
void require(bool condition, const char* rule);

// As require, of two texts, which are shown where they differ.
void requireEqual(const std::wstring& actual, const std::wstring& expected, const char* rule);

// The lines of an input as wide texts; a line ends at each line feed and holds no zero character.
std::vector<std::wstring> linesOf(const std::uint8_t* data, std::size_t size);

// The part of a text up to a separator, which is removed from the text together with it.
std::wstring takeUpTo(std::wstring& text, wchar_t separator);

} // namespace fuzzing

#endif
