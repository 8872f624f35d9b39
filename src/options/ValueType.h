// The types that option values can have.
#pragma once

#include <cstdint>
#include <string_view>

namespace kexa_3_3
{

class OptionDescription;

// Returns the name by which messages and help call the type of the option's values; empty for a
// type that no value converts to.
[[nodiscard]] std::wstring_view typeName(const OptionDescription& option) noexcept;
[[nodiscard]] std::wstring_view typeName(std::int32_t valueType) noexcept;

} // namespace kexa_3_3
