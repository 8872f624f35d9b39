#include "options/ValueText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string_view>

#include "support/text/Utf8.h"

namespace kexa_3_3
{

namespace
{

// Room for the longest number: a sign, 17 digits, a point, leading zeros or an exponent.
using NumberBuffer = std::array<char, 48>;

[[nodiscard]] std::wstring widen(const char* begin, const char* end)
{
    return std::wstring(begin, end); // digits, signs, points and letters of the basic character set
}

template <class Integer>
[[nodiscard]] std::wstring integerText(Integer number)
{
    NumberBuffer buffer;
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return widen(buffer.data(), written.ptr);
}

[[nodiscard]] std::wstring doubleText(double number)
{
    const double magnitude = std::abs(number);
    const bool decimal = magnitude < 1e16 && (magnitude >= 1e-5 || !(magnitude > 0));
    NumberBuffer buffer;
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                      decimal ? std::chars_format::fixed : std::chars_format::scientific);
    return widen(buffer.data(), written.ptr);
}

} // namespace

std::wstring valueText(const vexkit2::variant_t& value)
{
    switch (value.kind())
    {
    case vexkit2::kind_boolean:
        return value.get<bool>() ? L"1" : L"0";
    case vexkit2::kind_s32:
    case vexkit2::kind_s64:
        return integerText(value.get<vexkit2::s64_t>());
    case vexkit2::kind_u32:
    case vexkit2::kind_u64:
        return integerText(value.get<vexkit2::u64_t>());
    case vexkit2::kind_float:
    case vexkit2::kind_double:
        return doubleText(value.get<double>());
    case vexkit2::kind_narrow_text:
    case vexkit2::kind_narrow_reference:
        return wideFromUtf8(value.narrow_text());
    case vexkit2::kind_wide_text:
    case vexkit2::kind_wide_reference:
        return value.get<const wchar_t*>();
    default:
        return {};
    }
}

} // namespace kexa_3_3
