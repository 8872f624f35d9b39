// Checking and storing the values of an option.
#ifndef NAIVE_VALUES_H
#define NAIVE_VALUES_H

#include <cstdint>
#include <string>

#include "kexa/variant.h"
#include "NaiveRun.h"

namespace naive
{

// A value that passed the checks of its option, or the error.
struct CheckedValue
{
    bool accepted = false;
    vexkit2::variant_t value;
    std::wstring text;
    std::wstring error;
};

CheckedValue checkValue(const Option& option, const std::wstring& text);

// Splits the text into values, checks them, calls the handlers and stores one occurrence of the
// option. Returns the code.
//
// argument: the argument that messages quote.
std::int32_t storeValues(Run& run, const Option& option, const std::wstring& argument,
                         const std::wstring& valueText, std::wstring& error);

} // namespace naive

#endif
