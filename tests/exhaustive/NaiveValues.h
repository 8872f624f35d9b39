// From the text of an option's value to typed values in the result.
#ifndef NAIVE_VALUES_H
#define NAIVE_VALUES_H

#include <cstdint>
#include <string>

#include "kexa/variant.h"
#include "NaiveRun.h"

namespace naive
{

// A value that passed the checks of its option, or why it did not.
struct CheckedValue
{
    bool accepted = false;
    vexkit2::variant_t value;
    std::wstring text;
    std::wstring error;
};

CheckedValue checkValue(const Option& option, const std::wstring& text);

// Cuts, checks, tells the handlers and stores one occurrence of an option. Answers the code;
// `argument` is the one that messages quote.
std::int32_t storeValues(Run& run, const Option& option, const std::wstring& argument,
                         const std::wstring& valueText, std::wstring& error);

} // namespace naive

#endif
