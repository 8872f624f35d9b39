#include "options/ValueConversion.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <system_error>
#include <type_traits>

#include "kexa/option.h"

#include "support/memory/SharedTexts.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

using vexkit2::u64_t;
using vexkit2::variant_t;

[[nodiscard]] std::wstring_view trim(std::wstring_view text) noexcept
{
    while (!text.empty() && isClassicSpace(text.front()))
    {
        text.remove_prefix(1);
    }
    while (!text.empty() && isClassicSpace(text.back()))
    {
        text.remove_suffix(1);
    }
    return text;
}

// Removes a sign from the front of the text. Returns whether it was a minus.
[[nodiscard]] bool takeSign(std::wstring_view& text) noexcept
{
    const bool negative = !text.empty() && text.front() == L'-';
    if (negative || (!text.empty() && text.front() == L'+'))
    {
        text.remove_prefix(1);
    }
    return negative;
}

constexpr unsigned no_digit = 16; // not below any base

[[nodiscard]] constexpr unsigned digitValue(wchar_t character) noexcept
{
    if (character >= L'0' && character <= L'9')
    {
        return static_cast<unsigned>(character - L'0');
    }
    if (character >= L'a' && character <= L'f')
    {
        return static_cast<unsigned>(character - L'a') + 10;
    }
    if (character >= L'A' && character <= L'F')
    {
        return static_cast<unsigned>(character - L'A') + 10;
    }
    return no_digit;
}

// Returns the number that one or more digits give, or nothing for any other text and for a number
// above `highest`.
//
// base: 10 or 16; a template argument, since dividing by a constant is cheaper.
template <unsigned base>
[[nodiscard]] std::optional<u64_t> readDigits(std::wstring_view digits, u64_t highest) noexcept
{
    static_assert(base == 10 || base == 16);
    assert(highest >= base);
    if (digits.empty())
    {
        return std::nullopt;
    }
    u64_t number = 0;
    for (const wchar_t character : digits)
    {
        const unsigned digit = digitValue(character);
        if (digit >= base || number > (highest - digit) / base)
        {
            return std::nullopt;
        }
        number = number * base + digit;
    }
    return number;
}

template <class Integer>
[[nodiscard]] variant_t convertDecimal(std::wstring_view text)
{
    constexpr auto highest = static_cast<u64_t>(std::numeric_limits<Integer>::max());
    text = trim(text);
    const bool negative = takeSign(text);
    if (negative && std::is_unsigned_v<Integer>)
    {
        return variant_t();
    }
    const std::optional<u64_t> number = readDigits<10>(text, negative ? highest + 1 : highest);
    if (!number.has_value())
    {
        return variant_t();
    }
    return variant_t(static_cast<Integer>(negative ? u64_t{0} - *number : *number));
}

[[nodiscard]] bool isHexadecimal(std::wstring_view digits) noexcept
{
    return std::all_of(digits.begin(), digits.end(),
                       [](wchar_t character) { return digitValue(character) != no_digit; });
}

// Returns the digits of a text that is marked as hexadecimal, by "0x" in front or "h" behind them,
// or nothing.
[[nodiscard]] std::optional<std::wstring_view> hexadecimalDigits(std::wstring_view text) noexcept
{
    if (text.size() >= 2 && text[0] == L'0' && (text[1] == L'x' || text[1] == L'X') &&
        isHexadecimal(text.substr(2)))
    {
        return text.substr(2);
    }
    if (!text.empty() && (text.back() == L'h' || text.back() == L'H') &&
        isHexadecimal(text.substr(0, text.size() - 1)))
    {
        return text.substr(0, text.size() - 1);
    }
    return std::nullopt;
}

[[nodiscard]] variant_t convertUnsigned64(std::wstring_view text)
{
    const std::optional<std::wstring_view> digits = hexadecimalDigits(text);
    if (!digits.has_value())
    {
        return convertDecimal<u64_t>(text);
    }
    const auto number = readDigits<16>(*digits, std::numeric_limits<u64_t>::max());
    return number.has_value() ? variant_t(*number) : variant_t();
}

// Returns whether a well-formed decimal number that is out of the range of double is too small, not
// too large: std::from_chars reports both alike.
[[nodiscard]] bool isTiny(std::string_view number) noexcept
{
    // The power of ten of the first digit that is not 0 decides, since the number is far away from
    // 1. Digits are counted and not collected, so that no length overflows.
    const std::size_t exponentMark = number.find_first_of("eE");
    const std::string_view mantissa = number.substr(0, exponentMark);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = mantissa.find_first_of("123456789");
    if (first == std::string_view::npos)
    {
        return true; // GCOVR_EXCL_LINE: a zero, out of range for some libraries by its exponent
    }
    long long magnitude = first < point ? static_cast<long long>(point - first)
                                        : -static_cast<long long>(first - point);
    if (exponentMark == std::string_view::npos)
    {
        return magnitude < 0;
    }
    std::string_view digits = number.substr(exponentMark + 1);
    assert(!digits.empty());
    const bool negative = digits.front() == '-';
    if (negative || digits.front() == '+')
    {
        digits.remove_prefix(1);
    }
    constexpr long long huge = 1LL << 40; // more than the digits of any text could make up for
    long long exponent = 0;
    for (const char digit : digits)
    {
        exponent = std::min(huge, exponent * 10 + (digit - '0'));
    }
    magnitude += negative ? -exponent : exponent;
    return magnitude < 0;
}

[[nodiscard]] variant_t convertDouble(std::wstring_view text)
{
    text = trim(text);
    const bool negative = takeSign(text);
    std::string narrow;
    narrow.reserve(text.size());
    for (const wchar_t character : text)
    {
        const bool belongs = (character >= L'0' && character <= L'9') || character == L'.' ||
                             character == L'e' || character == L'E' || character == L'+' ||
                             character == L'-';
        if (!belongs || (narrow.empty() && (character == L'+' || character == L'-')))
        {
            return variant_t(); // excludes a second sign, hexadecimal numbers, "inf" and "nan"
        }
        narrow.push_back(static_cast<char>(character));
    }
    double number = 0;
    const char* const end = narrow.data() + narrow.size();
    const std::from_chars_result read = std::from_chars(narrow.data(), end, number);
    if (read.ptr != end || (read.ec != std::errc() && read.ec != std::errc::result_out_of_range))
    {
        return variant_t();
    }
    if (read.ec == std::errc::result_out_of_range)
    {
        if (!isTiny(narrow))
        {
            return variant_t();
        }
        number = 0;
    }
    else if (number > std::numeric_limits<double>::max())
    {
        return variant_t(); // GCOVR_EXCL_LINE: some libraries return infinity without an error
    }
    return variant_t(negative ? -number : number);
}

[[nodiscard]] variant_t convertBoolean(std::wstring_view text)
{
    const bool isTrue = text == L"1" || text == L"true";
    return isTrue || text == L"0" || text == L"false" ? variant_t(isTrue) : variant_t();
}

} // namespace

variant_t makeText(std::wstring_view text, SharedTexts* texts)
{
    return texts == nullptr ? variant_t(text.data(), text.size()) : texts->add(text);
}

variant_t convertValue(std::int32_t valueType, std::wstring_view text, SharedTexts* texts)
{
    switch (valueType)
    {
    case value_type_boolean:
        return convertBoolean(text);
    case value_type_integer:
        return convertDecimal<vexkit2::s32_t>(text);
    case value_type_unsigned:
        return convertDecimal<vexkit2::u32_t>(text);
    case value_type_integer64:
        return convertDecimal<vexkit2::s64_t>(text);
    case value_type_unsigned64:
        return convertUnsigned64(text);
    case value_type_double:
        return convertDouble(text);
    case value_type_string:
        return makeText(text, texts);
    default:
        return variant_t(); // no value has another type
    }
}

} // namespace kexa_3_3
