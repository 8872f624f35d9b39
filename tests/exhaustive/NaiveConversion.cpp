#include "NaiveConversion.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <locale>
#include <sstream>

#include "kexa/option.h"
#include "NaiveUtf8.h"

namespace naive
{

namespace
{

// Only white space may follow the number. The classic locale excludes the decimal comma and the
// digit grouping of the host's locale.
template <class Number>
vexkit2::variant_t extract(const std::wstring& text, bool hexadecimal)
{
    std::wistringstream stream(text);
    stream.imbue(std::locale::classic());
    if (hexadecimal)
    {
        stream >> std::hex;
    }
    Number number{};
    stream >> number;
    if (stream.fail())
    {
        return vexkit2::variant_t();
    }
    if (!stream.eof() && !(stream >> std::ws).eof())
    {
        return vexkit2::variant_t();
    }
    return vexkit2::variant_t(number);
}

// Streams read "-1" into an unsigned number as its two's complement, so a minus sign is rejected
// first.
template <class Number>
vexkit2::variant_t extractUnsigned(const std::wstring& text, bool hexadecimal)
{
    std::wistringstream stream(text);
    stream.imbue(std::locale::classic());
    wchar_t first = 0;
    if (stream >> first && first == L'-')
    {
        return vexkit2::variant_t();
    }
    return extract<Number>(text, hexadecimal);
}

bool isHexadecimal(const std::wstring& digits)
{
    return digits.find_first_not_of(L"1234567890ABCDEFabcdef") == std::wstring::npos;
}

vexkit2::variant_t convertUnsigned64(const std::wstring& text)
{
    const std::wstring lead = text.substr(0, 2);
    if ((lead == L"0x" || lead == L"0X") && isHexadecimal(text.substr(2)))
    {
        return extractUnsigned<vexkit2::u64_t>(text, true);
    }
    if (!text.empty() && (text.back() == L'h' || text.back() == L'H'))
    {
        const std::wstring digits = text.substr(0, text.size() - 1);
        if (isHexadecimal(digits))
        {
            return extractUnsigned<vexkit2::u64_t>(digits, true);
        }
    }
    return extractUnsigned<vexkit2::u64_t>(text, false);
}

vexkit2::variant_t convertBoolean(const std::wstring& text)
{
    if (text == L"1" || text == L"true")
    {
        return vexkit2::variant_t(true);
    }
    if (text == L"0" || text == L"false")
    {
        return vexkit2::variant_t(false);
    }
    return vexkit2::variant_t();
}

std::string trimmedDigits(std::string digits)
{
    while (digits.size() > 1 && digits.back() == '0')
    {
        digits.pop_back();
    }
    return digits;
}

// Returns the number d.ddd times ten to the exponent in decimal notation. digits: without the
// point.
std::string withoutExponent(const std::string& digits, int exponent)
{
    if (exponent < 0)
    {
        std::string text = "0.";
        text.append(static_cast<std::size_t>(-exponent - 1), '0');
        return text.append(digits);
    }
    const std::size_t whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() <= whole)
    {
        return digits + std::string(whole - digits.size(), '0');
    }
    std::string text = digits.substr(0, whole);
    text += '.';
    return text.append(digits.substr(whole));
}

std::string withExponent(const std::string& digits, int exponent)
{
    std::string text = digits.substr(0, 1);
    if (digits.size() > 1)
    {
        text += '.';
        text += digits.substr(1);
    }
    text += exponent < 0 ? "e-" : "e+";
    if (std::abs(exponent) < 10)
    {
        text += '0';
    }
    text += std::to_string(std::abs(exponent));
    return text;
}

// Increases the precision until the text reads back as the number.
std::string textOfDouble(double number)
{
    if (number == 0)
    {
        return std::signbit(number) ? "-0" : "0";
    }
    if (!std::isfinite(number)) // only from a declared value
    {
        return std::isnan(number) ? "nan" : number < 0 ? "-inf" : "inf";
    }
    for (int precision = 0; precision <= 16; ++precision)
    {
        char written[64];
        std::snprintf(written, sizeof(written), "%.*e", precision, std::fabs(number));
        if (precision < 16 && std::strtod(written, nullptr) != std::fabs(number))
        {
            continue;
        }
        const std::string scientific = written;
        const std::size_t mark = scientific.find('e');
        const int exponent = std::atoi(scientific.c_str() + mark + 1);
        std::string digits = scientific.substr(0, 1);
        if (mark > 2)
        {
            digits += scientific.substr(2, mark - 2);
        }
        digits = trimmedDigits(digits);
        const bool decimal = exponent >= -5 && exponent < 16;
        const std::string text =
            decimal ? withoutExponent(digits, exponent) : withExponent(digits, exponent);
        return (number < 0 ? std::string("-") : std::string()).append(text);
    }
    return "";
}

std::wstring widened(const std::string& ascii)
{
    return std::wstring(ascii.begin(), ascii.end());
}

} // namespace

vexkit2::variant_t convertText(std::int32_t valueType, const std::wstring& text)
{
    switch (valueType)
    {
    case kexa_3_3::value_type_boolean:
        return convertBoolean(text);
    case kexa_3_3::value_type_integer:
        return extract<vexkit2::s32_t>(text, false);
    case kexa_3_3::value_type_unsigned:
        return extractUnsigned<vexkit2::u32_t>(text, false);
    case kexa_3_3::value_type_integer64:
        return extract<vexkit2::s64_t>(text, false);
    case kexa_3_3::value_type_unsigned64:
        return convertUnsigned64(text);
    case kexa_3_3::value_type_double:
        return extract<double>(text, false);
    case kexa_3_3::value_type_string:
        return vexkit2::variant_t(text);
    default:
        return vexkit2::variant_t();
    }
}

std::wstring textOfValue(const vexkit2::variant_t& value)
{
    if (value.can_get<const wchar_t*>())
    {
        return value.get<const wchar_t*>();
    }
    if (value.kind() == vexkit2::kind_narrow_text || value.kind() == vexkit2::kind_narrow_reference)
    {
        return decodeUtf8(value.narrow_text());
    }
    if (value.can_get<bool>())
    {
        return value.get<bool>() ? L"1" : L"0";
    }
    if (value.can_get<vexkit2::s64_t>())
    {
        return std::to_wstring(value.get<vexkit2::s64_t>());
    }
    if (value.can_get<vexkit2::u64_t>())
    {
        return std::to_wstring(value.get<vexkit2::u64_t>());
    }
    if (value.can_get<double>())
    {
        return widened(textOfDouble(value.get<double>()));
    }
    return L"";
}

std::wstring nameOfValueType(std::int32_t valueType)
{
    switch (valueType)
    {
    case kexa_3_3::value_type_boolean:
        return L"undefined";
    case kexa_3_3::value_type_integer:
        return L"integer";
    case kexa_3_3::value_type_unsigned:
        return L"unsigned integer";
    case kexa_3_3::value_type_integer64:
        return L"64 bit integer";
    case kexa_3_3::value_type_unsigned64:
        return L"unsigned 64 bit or hex";
    case kexa_3_3::value_type_double:
        return L"double";
    case kexa_3_3::value_type_string:
        return L"string";
    default:
        return L"";
    }
}

} // namespace naive
