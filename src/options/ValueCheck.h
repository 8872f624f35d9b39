// Converts the text of a value and checks it against the option's allowed and deprecated values.
#pragma once

#include <string>
#include <string_view>

#include "kexa/variant.h"

namespace kexa_3_3
{

class OptionDescription;
class SharedTexts;

enum class ValueVerdict
{
    rejected,
    accepted,
    changed // accepted, and the final value is not the one written: completed or replaced
};

// text:  what was given for the option.
// value: receives the final value, unless rejected.
// error: receives the message where rejected.
// texts: where a string value is made; null for a block of its own.
// The replacement of a deprecated value is announced on standard error.
[[nodiscard]] ValueVerdict checkValue(const OptionDescription& option, std::wstring_view text,
                                      vexkit2::variant_t& value, std::wstring& error,
                                      SharedTexts* texts = nullptr);

} // namespace kexa_3_3
