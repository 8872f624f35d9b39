// Checks a value against the option's allowed and deprecated values.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "kexa/variant.h"

#include "options/OptionDescription.h"

namespace kexa_3_3
{

class SharedTexts;

enum class ValueVerdict : std::uint8_t
{
    accepted,
    changed, // accepted, and the final value is not the one written: completed or replaced
    // Rejected:
    unreadable, // not a value of the option's type
    ambiguous,  // begins several allowed values
    refused     // not among the allowed values
};

[[nodiscard]] constexpr bool isRejected(ValueVerdict verdict) noexcept
{
    return verdict >= ValueVerdict::unreadable;
}

// What checkValue does for an option with allowed values, where the text is readable.
[[nodiscard]] ValueVerdict checkAllowedValue(const OptionDescription& option,
                                             std::wstring_view text, vexkit2::variant_t& value,
                                             SharedTexts* texts);

// text:  what was given for the option.
// value: what the text was converted to, null where it is unreadable. Receives the final value;
//        where the text is rejected it may hold anything.
// texts: where string values are made; null for blocks of their own.
// The replacement of a deprecated value is announced on standard error.
[[nodiscard]] inline ValueVerdict checkValue(const OptionDescription& option,
                                             std::wstring_view text, vexkit2::variant_t& value,
                                             SharedTexts* texts)
{
    if (value.kind() == vexkit2::kind_null)
    {
        return ValueVerdict::unreadable;
    }
    return option.allowedValues.empty() ? ValueVerdict::accepted
                                          : checkAllowedValue(option, text, value, texts);
}

// The message that says why a text was rejected.
[[nodiscard]] std::wstring rejectionMessage(ValueVerdict verdict, const OptionDescription& option,
                                            std::wstring_view text);

} // namespace kexa_3_3
