#include "options/ValueConversion.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>
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

// Removes a sign from the front of the text. Answers whether it was a minus.
[[nodiscard]] bool takeSign(std::wstring_view& text) noexcept
{
    const bool negative = !text.empty() && text.front() == L'-';
    if (negative || (!text.empty() && text.front() == L'+'))
    {
        text.remove_prefix(1);
    }
    return negative;
}

// The value of a digit in the base, 10 or 16. For any other character a number that is not below
// the base.
template <unsigned base>
[[nodiscard]] constexpr unsigned digitValue(wchar_t character) noexcept
{
    const auto decimal = static_cast<unsigned>(character) - static_cast<unsigned>(L'0');
    if constexpr (base == 10)
    {
        return decimal;
    }
    else
    {
        const unsigned lowerCase = static_cast<unsigned>(character) | 0x20U;
        const unsigned letter = lowerCase - static_cast<unsigned>(L'a');
        const unsigned high = letter < 6 ? letter + 10 : base;
        return decimal < 10 ? decimal : high;
    }
}

// What digits say. Not a std::optional: GCC puts its two words together in memory, byte by word,
// and reads them back in words, for which the processor waits.
struct Number
{
    u64_t value;
    bool isValid;
};

// One or more digits and nothing else, up to and including `highest`.
template <unsigned base>
[[nodiscard]] Number readDigits(std::wstring_view digits, u64_t highest) noexcept
{
    // So many digits fit whatever they are; only behind them it takes a division to see.
    using Limits = std::numeric_limits<u64_t>;
    constexpr std::size_t always_fit = base == 10 ? Limits::digits10 : Limits::digits / 4;
    static_assert(base == 10 || base == 16);

    constexpr Number none = {0, false};
    u64_t number = 0;
    for (const wchar_t character : digits.substr(0, always_fit))
    {
        const unsigned digit = digitValue<base>(character);
        if (digit >= base)
        {
            return none;
        }
        number = number * base + digit;
    }
    for (std::size_t index = always_fit; index < digits.size(); ++index)
    {
        const unsigned digit = digitValue<base>(digits[index]);
        if (digit >= base || number > (Limits::max() - digit) / base)
        {
            return none;
        }
        number = number * base + digit;
    }
    return digits.empty() || number > highest ? none : Number{number, true};
}

template <class Integer>
[[nodiscard]] variant_t convertDecimal(std::wstring_view text, SharedTexts* /*texts*/)
{
    constexpr auto highest = static_cast<u64_t>(std::numeric_limits<Integer>::max());
    text = trim(text);
    const bool negative = takeSign(text);
    if (negative && std::is_unsigned_v<Integer>)
    {
        return variant_t();
    }
    const Number number = readDigits<10>(text, negative ? highest + 1 : highest);
    if (!number.isValid)
    {
        return variant_t();
    }
    return variant_t(static_cast<Integer>(negative ? u64_t{0} - number.value : number.value));
}

[[nodiscard]] variant_t convertUnsigned64(std::wstring_view text, SharedTexts* texts)
{
    constexpr u64_t highest = std::numeric_limits<u64_t>::max();
    const auto isHexadecimal = [](std::wstring_view digits)
    {
        return digits.find_first_not_of(L"1234567890ABCDEFabcdef") == std::wstring_view::npos;
    };
    std::wstring_view digits;
    if (text.size() >= 2 && text[0] == L'0' && (text[1] == L'x' || text[1] == L'X') &&
        isHexadecimal(text.substr(2)))
    {
        digits = text.substr(2);
    }
    else if (!text.empty() && (text.back() == L'h' || text.back() == L'H') &&
             isHexadecimal(text.substr(0, text.size() - 1)))
    {
        digits = text.substr(0, text.size() - 1);
    }
    else
    {
        return convertDecimal<u64_t>(text, texts);
    }
    const Number number = readDigits<16>(digits, highest);
    return number.isValid ? variant_t(number.value) : variant_t();
}

// Whether a well-formed decimal number, of which `std::from_chars` said that a double cannot hold
// it, is too small rather than too large.
[[nodiscard]] bool isTiny(std::string_view number) noexcept
{
    // The exponent counts from the first digit that is not 0; it decides, since the number is far
    // away from 1. Digits are counted and not collected, so that no length overflows.
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
    const bool negative = digits.front() == '-';
    if (negative || digits.front() == '+')
    {
        digits.remove_prefix(1);
    }
    constexpr long long far = 1LL << 40; // beyond what the length of any text makes up for
    long long exponent = 0;
    for (const char digit : digits)
    {
        exponent = std::min(far, exponent * 10 + (digit - '0'));
    }
    magnitude += negative ? -exponent : exponent;
    return magnitude < 0;
}

[[nodiscard]] variant_t convertDouble(std::wstring_view text, SharedTexts* /*texts*/)
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
            return variant_t(); // shuts out a second sign, hexadecimal numbers, "inf" and "nan"
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
        return variant_t(); // GCOVR_EXCL_LINE: some libraries answer infinity without an error
    }
    return variant_t(negative ? -number : number);
}

[[nodiscard]] variant_t convertBoolean(std::wstring_view text, SharedTexts* /*texts*/)
{
    using namespace std::string_view_literals;
    if (text.size() == 1 && (text.front() == L'1' || text.front() == L'0'))
    {
        return variant_t(text.front() == L'1');
    }
    const bool isTrue = text == L"true"sv;
    return isTrue || text == L"false"sv ? variant_t(isTrue) : variant_t();
}

[[nodiscard]] variant_t convertNothing(std::wstring_view /*text*/, SharedTexts* /*texts*/)
{
    return variant_t();
}

// By value type. A table instead of a switch, in which the compiler would let the shortest of them
// prepare and clear away what the longest needs.
using Conversion = variant_t (*)(std::wstring_view text, SharedTexts* texts);
constexpr std::size_t value_type_count = value_type_string + 1;
constexpr auto conversions = []
{
    std::array<Conversion, value_type_count> table = {};
    table.fill(convertNothing);
    table[value_type_boolean] = convertBoolean;
    table[value_type_integer] = convertDecimal<vexkit2::s32_t>;
    table[value_type_unsigned] = convertDecimal<vexkit2::u32_t>;
    table[value_type_integer64] = convertDecimal<vexkit2::s64_t>;
    table[value_type_unsigned64] = convertUnsigned64;
    table[value_type_double] = convertDouble;
    table[value_type_string] = makeText;
    return table;
}();

} // namespace

variant_t makeText(std::wstring_view text, SharedTexts* texts)
{
    return texts == nullptr ? variant_t(text.data(), text.size()) : texts->add(text);
}

variant_t convertValue(std::int32_t valueType, std::wstring_view text, SharedTexts* texts)
{
    const auto type = static_cast<std::uint32_t>(valueType); // a negative one is beyond all
    return type < conversions.size() ? conversions[type](text, texts) : variant_t();
}

} // namespace kexa_3_3
