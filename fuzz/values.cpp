// Fuzzes the conversion of texts to values and back: compares it with std::from_chars, std::strtod
// and the streams of the naive implementation.
//
// The first character of an input is the value type, as in DeclaredLines; the rest is the text.
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

#include "DeclaredLines.h"
#include "Fuzzing.h"
#include "kexa/option.h"
#include "NaiveConversion.h"
#include "NaiveUtf8.h"
#include "options/ValueConversion.h"
#include "options/ValueText.h"

using vexkit2::variant_t;

namespace
{

constexpr const wchar_t* white_space = L" \t\n\v\f\r";

// Returns the text without the white space around it. Characters outside ASCII become '?'.
std::string trimmed(const std::wstring& text)
{
    const std::size_t first = text.find_first_not_of(white_space);
    if (first == std::wstring::npos)
    {
        return {};
    }
    std::string bytes;
    for (const wchar_t character :
         text.substr(first, text.find_last_not_of(white_space) - first + 1))
    {
        bytes.push_back(character > 0 && character < 0x80 ? static_cast<char>(character) : '?');
    }
    return bytes;
}

template <class Integer>
variant_t byFromChars(std::string text, int base = 10)
{
    if (!text.empty() && text.front() == '+')
    {
        text.erase(0, 1);
        if (!text.empty() && text.front() == '-')
        {
            return variant_t();
        }
    }
    Integer number = 0;
    const std::from_chars_result read =
        std::from_chars(text.data(), text.data() + text.size(), number, base);
    return read.ec == std::errc() && read.ptr == text.data() + text.size() ? variant_t(number)
                                                                           : variant_t();
}

bool areHexadecimal(const std::wstring& digits)
{
    return !digits.empty() &&
           digits.find_first_not_of(L"0123456789ABCDEFabcdef") == std::wstring::npos;
}

// Reads digits after "0x" or before "h" as hexadecimal, all others as decimal.
variant_t unsigned64ByFromChars(const std::wstring& text)
{
    const bool lead = text.size() > 1 && text[0] == L'0' && (text[1] == L'x' || text[1] == L'X');
    if (lead && areHexadecimal(text.substr(2)))
    {
        return byFromChars<std::uint64_t>(trimmed(text.substr(2)), 16);
    }
    const bool tail = !text.empty() && (text.back() == L'h' || text.back() == L'H');
    if (tail && areHexadecimal(text.substr(0, text.size() - 1)))
    {
        return byFromChars<std::uint64_t>(trimmed(text.substr(0, text.size() - 1)), 16);
    }
    return byFromChars<std::uint64_t>(trimmed(text));
}

variant_t booleanByTable(const std::wstring& text)
{
    const bool yes = text == L"1" || text == L"true";
    const bool no = text == L"0" || text == L"false";
    return yes || no ? variant_t(yes) : variant_t();
}

// Returns whether the text is a decimal number with optional sign, fraction and exponent.
bool isDecimal(const std::string& text)
{
    std::size_t position = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    const auto digits = [&]
    {
        const std::size_t begin = position;
        while (position < text.size() && text[position] >= '0' && text[position] <= '9')
        {
            ++position;
        }
        return position - begin;
    };
    std::size_t count = digits();
    if (position < text.size() && text[position] == '.')
    {
        ++position;
        count += digits();
    }
    if (count == 0)
    {
        return false;
    }
    if (position < text.size() && (text[position] == 'e' || text[position] == 'E'))
    {
        ++position;
        position += position < text.size() && (text[position] == '+' || text[position] == '-');
        if (digits() == 0)
        {
            return false;
        }
    }
    return position == text.size();
}

variant_t byStrtod(const std::string& text)
{
    if (!isDecimal(text))
    {
        return variant_t();
    }
    const double number = std::strtod(text.c_str(), nullptr);
    return std::isinf(number) ? variant_t() : variant_t(number);
}

void checkReference(std::int32_t type, const std::wstring& text, const variant_t& value)
{
    variant_t expected;
    switch (type)
    {
    case kexa_3_3::value_type_integer:
        expected = byFromChars<std::int32_t>(trimmed(text));
        break;
    case kexa_3_3::value_type_unsigned:
        expected = byFromChars<std::uint32_t>(trimmed(text));
        break;
    case kexa_3_3::value_type_integer64:
        expected = byFromChars<std::int64_t>(trimmed(text));
        break;
    case kexa_3_3::value_type_unsigned64:
        expected = unsigned64ByFromChars(text);
        break;
    case kexa_3_3::value_type_boolean:
        expected = booleanByTable(text);
        break;
    case kexa_3_3::value_type_string:
        expected = variant_t(text);
        break;
    case kexa_3_3::value_type_double:
        expected = byStrtod(trimmed(text));
        break;
    default:
        return;
    }
    fuzzing::require(value.kind() == expected.kind() && value == expected,
                     "the value is equal to that of the reference");
    if (type == kexa_3_3::value_type_double && value.can_get<double>())
    {
        fuzzing::require(std::signbit(value.get<double>()) == std::signbit(expected.get<double>()),
                         "a zero keeps its sign");
    }
}

// Requires that the text of a value is converted back to an equal value.
void checkText(std::int32_t type, const variant_t& value)
{
    const std::wstring text = kexa_3_3::valueText(value);
    const variant_t again = kexa_3_3::convertValue(type, text);
    fuzzing::require(again.kind() == value.kind() && again == value,
                     "the text of a value is converted back to that value");
    fuzzing::requireEqual(kexa_3_3::valueText(again), text,
                          "a converted text is converted back to that text");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    const std::int32_t type = fuzzing::valueTypeOf(static_cast<wchar_t>(data[0]));
    const std::wstring text =
        naive::decodeUtf8({reinterpret_cast<const char*>(data) + 1, size - 1});
    const variant_t value = kexa_3_3::convertValue(type, text);
    fuzzing::require(value.kind() == type || value.kind() == vexkit2::kind_null,
                     "the value has the requested type or is null");
    checkReference(type, text, value);
    const variant_t naive = naive::convertText(type, text);
    fuzzing::require(naive.kind() == value.kind() && naive == value, "streams read an equal value");
    if (value.kind() != vexkit2::kind_null)
    {
        checkText(type, value);
    }
    return 0;
}
