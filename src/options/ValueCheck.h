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
    unreadable, // the text is not a value of the option's type
    ambiguous,  // several candidates begin with the text
    refused     // no candidate equals the value or begins with the text
};

[[nodiscard]] constexpr bool isRejected(ValueVerdict verdict) noexcept
{
    return verdict >= ValueVerdict::unreadable;
}

// As checkValue(), for an option that has allowed values.
//
// Preconditions: the option has allowed values, and the value is not null.
[[nodiscard]] ValueVerdict checkAllowedValue(const OptionDescription& option,
                                             std::wstring_view text, vexkit2::variant_t& value,
                                             SharedTexts* texts);

// Checks a value that was given for an option. An abbreviation of a string is completed, a
// deprecated value is replaced, with a warning on standard error.
//
// text:  the value as it was written.
// value: the text after conversion, null when it did not convert. Receives the final value; when
//        the text is rejected it is unspecified.
// texts: makes string values; if null, each gets a block of its own.
[[nodiscard]] inline ValueVerdict checkValue(const OptionDescription& option,
                                             std::wstring_view text, vexkit2::variant_t& value,
                                             SharedTexts* texts)
{
    if (value.kind() == vexkit2::kind_null)
    {
        return ValueVerdict::unreadable;
    }
    return option.allowedValues().empty() ? ValueVerdict::accepted
                                          : checkAllowedValue(option, text, value, texts);
}

// Returns the message for a rejected text.
//
// Precondition: isRejected(verdict).
[[nodiscard]] std::wstring rejectionMessage(ValueVerdict verdict, const OptionDescription& option,
                                            std::wstring_view text);

} // namespace kexa_3_3
