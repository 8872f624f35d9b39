// Numbers and texts as the members of a struct take them. Compiled once; element.h has the types.
#ifndef KEXA_COMMAND_DETAIL_NUMBERS_H
#define KEXA_COMMAND_DETAIL_NUMBERS_H

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

#include "kexa/command/configuration.h"
#include "kexa/variant.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

struct Input;

// Return the text of a number as the help shows it.
std::string textOf(std::int64_t value);
std::string textOf(std::uint64_t value);
std::string textOf(double value);

// Returns the text of a value as it is given on the command line.
std::string textOfValue(const vexkit2::variant_t& value);

// Fill `value` with the number in `input` where it lies within the limits, both inclusive. Else
// they set the reason and return false.
bool readInteger(Input& input, std::int64_t lowest, std::int64_t highest, std::int64_t& value);
bool readUnsigned(Input& input, std::uint64_t highest, std::uint64_t& value);
bool readFloat(Input& input, float& value);
bool readDouble(Input& input, double& value);
bool readBoolean(Input& input, bool& value);

// Return the text in `input`, in UTF-8 and wide. The wide one lives as long as the input's variant.
std::string readText(const Input& input);
std::wstring_view readWideText(const Input& input);

// Return a text in the other encoding; see the layer's rules for bytes that are no UTF-8.
std::wstring wideText(std::string_view text);
std::string narrowText(std::wstring_view text);

// Return a number as the library takes allowed values.
template <class Number>
vexkit2::variant_t variantOf(Number value)
{
    if constexpr (std::is_floating_point_v<Number>)
    {
        return vexkit2::variant_t(static_cast<double>(value));
    }
    else if constexpr (std::is_signed_v<Number>)
    {
        return vexkit2::variant_t(static_cast<std::int64_t>(value));
    }
    else
    {
        return vexkit2::variant_t(static_cast<std::uint64_t>(value));
    }
}

// Adds one to an integer of this type that is not at its highest value.
template <class Integer>
void increment(void* member)
{
    Integer& counter = *static_cast<Integer*>(member);
    if (counter != std::numeric_limits<Integer>::max())
    {
        ++counter;
    }
}

// Reads the value of an option with a table of named values.
void readNamed(const Input& input, void* element);

// Converts a text as the parser does for a value of the type (a value_type_t). Returns null (kind
// 17) where it does not convert, and sets the reason.
vexkit2::variant_t convertText(std::int32_t rawType, std::wstring_view text, std::string& reason);

// Whether every rule of the option accepts the element; else the reason is set.
bool passesRules(Input& input, const void* element);

// Finds the "=" of a pair. Returns false, and sets the reason, where there is none.
bool splitPair(Input& input, std::wstring_view& key, std::wstring_view& value);

// Whether an input is for an option with a table of named values.
bool isNamed(const Input& input) noexcept;

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
