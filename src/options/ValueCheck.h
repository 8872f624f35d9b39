// Converts the text of a value and checks it against the option's allowed and deprecated values.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "kexa/variant.h"

namespace kexa_3_3
{

class OptionDescription;
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

// text:  what was given for the option.
// value: receives the final value; where the text is rejected it may hold anything.
// texts: where a string value is made; null for a block of its own.
// The replacement of a deprecated value is announced on standard error.
[[nodiscard]] ValueVerdict checkValue(const OptionDescription& option, std::wstring_view text,
                                      vexkit2::variant_t& value, SharedTexts* texts = nullptr);

// The message that says why a text was rejected.
[[nodiscard]] std::wstring rejectionMessage(ValueVerdict verdict, const OptionDescription& option,
                                            std::wstring_view text);

} // namespace kexa_3_3
