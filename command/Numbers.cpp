#include "kexa/command/detail/numbers.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "Inline.h"
#include "kexa/command/detail/declaration.h"
#include "kexa/option.h"
#include "text/Encoding.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE std::string textOf(std::int64_t value)
{
    return std::to_string(value);
}

KEXA_COMMAND_INLINE std::string textOf(std::uint64_t value)
{
    return std::to_string(value);
}

// The fewest digits that read back to the same value, as the library shows numbers: with an
// exponent only where the magnitude is very small or large.
KEXA_COMMAND_INLINE std::string textOf(double value)
{
    char text[64];
    const double magnitude = std::fabs(value);
    const bool isPlain = value == 0 || (magnitude >= 1e-5 && magnitude < 1e16);
    for (int digits = 0; digits <= 24; ++digits)
    {
        std::snprintf(text, sizeof text, isPlain ? "%.*f" : "%.*e", digits, value);
        if (std::strtod(text, nullptr) == value)
        {
            break;
        }
    }
    for (char& character : text)
    {
        character = character == ',' ? '.' : character; // the point of some locales
    }
    return text;
}

KEXA_COMMAND_INLINE std::string textOfValue(const vexkit2::variant_t& value)
{
    if (value.can_get<const wchar_t*>())
    {
        return narrow(value.get<const wchar_t*>());
    }
    if (value.can_get<bool>())
    {
        return value.get<bool>() ? "true" : "false";
    }
    if (value.can_get<std::int64_t>())
    {
        return textOf(value.get<std::int64_t>());
    }
    if (value.can_get<std::uint64_t>())
    {
        return textOf(value.get<std::uint64_t>());
    }
    return value.can_get<double>() ? textOf(value.get<double>()) : std::string();
}

KEXA_COMMAND_INLINE bool readInteger(Input& input, std::int64_t lowest, std::int64_t highest,
                                     std::int64_t& value)
{
    if (!input.value->can_get<std::int64_t>())
    {
        input.reason = "not a number";
        return false;
    }
    value = input.value->get<std::int64_t>();
    if (value < lowest)
    {
        input.reason = "less than " + textOf(lowest);
    }
    else if (value > highest)
    {
        input.reason = "greater than " + textOf(highest);
    }
    return input.reason.empty();
}

KEXA_COMMAND_INLINE bool readUnsigned(Input& input, std::uint64_t highest, std::uint64_t& value)
{
    if (!input.value->can_get<std::uint64_t>())
    {
        input.reason = "not a number";
        return false;
    }
    value = input.value->get<std::uint64_t>();
    if (value > highest)
    {
        input.reason = "greater than " + textOf(highest);
    }
    return input.reason.empty();
}

KEXA_COMMAND_INLINE bool readDouble(Input& input, double& value)
{
    if (!input.value->can_get<double>())
    {
        input.reason = "not a number";
        return false;
    }
    value = input.value->get<double>();
    return true;
}

KEXA_COMMAND_INLINE bool readFloat(Input& input, float& value)
{
    double wide = 0;
    if (!readDouble(input, wide))
    {
        return false;
    }
    constexpr double highest = static_cast<double>(std::numeric_limits<float>::max());
    if (wide > highest || wide < -highest)
    {
        input.reason =
            wide < 0 ? "less than " + textOf(-highest) : "greater than " + textOf(highest);
        return false;
    }
    value = static_cast<float>(wide);
    return true;
}

KEXA_COMMAND_INLINE bool readBoolean(Input& input, bool& value)
{
    if (!input.value->can_get<bool>())
    {
        input.reason = "neither true nor false";
        return false;
    }
    value = input.value->get<bool>();
    return true;
}

KEXA_COMMAND_INLINE std::wstring_view readWideText(const Input& input)
{
    const wchar_t* text =
        input.value->can_get<const wchar_t*>() ? input.value->get<const wchar_t*>() : nullptr;
    return text == nullptr ? std::wstring_view() : std::wstring_view(text);
}

KEXA_COMMAND_INLINE std::string readText(const Input& input)
{
    return narrow(readWideText(input));
}

KEXA_COMMAND_INLINE std::string narrowText(std::wstring_view text)
{
    return narrow(text);
}

KEXA_COMMAND_INLINE std::wstring wideText(std::string_view text)
{
    return widen(text);
}

KEXA_COMMAND_INLINE bool splitPair(Input& input, std::wstring_view& key, std::wstring_view& value)
{
    const std::wstring_view text = readWideText(input);
    const std::size_t position = text.find(L'=');
    if (position == std::wstring_view::npos)
    {
        input.reason = "no '=' between key and value";
        return false;
    }
    key = text.substr(0, position);
    value = text.substr(position + 1);
    return true;
}

KEXA_COMMAND_LOCAL bool isOneOf(std::string_view text, const char* const (&words)[4])
{
    for (const char* word : words)
    {
        if (text == word)
        {
            return true;
        }
    }
    return false;
}

KEXA_COMMAND_LOCAL vexkit2::variant_t convertBoolean(std::string_view text)
{
    if (isOneOf(text, {"true", "1", "yes", "on"}))
    {
        return vexkit2::variant_t(true);
    }
    return isOneOf(text, {"false", "0", "no", "off"}) ? vexkit2::variant_t(false)
                                                      : vexkit2::variant_t();
}

KEXA_COMMAND_LOCAL vexkit2::variant_t convertInteger(const std::string& text, bool isSigned)
{
    char* end = nullptr;
    errno = 0;
    if (isSigned)
    {
        const long long value = std::strtoll(text.c_str(), &end, 10);
        return *end != 0 || errno != 0 ? vexkit2::variant_t()
                                       : vexkit2::variant_t(static_cast<std::int64_t>(value));
    }
    const bool isHexadecimal =
        text.size() > 2 && (text.compare(0, 2, "0x") == 0 || text.compare(0, 2, "0X") == 0);
    const unsigned long long value = std::strtoull(text.c_str(), &end, isHexadecimal ? 16 : 10);
    return *end != 0 || errno != 0 || text.find('-') != std::string::npos
               ? vexkit2::variant_t()
               : vexkit2::variant_t(static_cast<std::uint64_t>(value));
}

KEXA_COMMAND_LOCAL vexkit2::variant_t convertFloating(const std::string& text)
{
    if (text.find_first_not_of("0123456789+-.eE") != std::string::npos)
    {
        return vexkit2::variant_t();
    }
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    return *end != 0 || !std::isfinite(value) ? vexkit2::variant_t() : vexkit2::variant_t(value);
}

KEXA_COMMAND_INLINE vexkit2::variant_t convertText(std::int32_t rawType, std::wstring_view text,
                                                   std::string& reason)
{
    if (rawType == kexa_3_3::value_type_string)
    {
        return vexkit2::variant_t(text.data(), text.size());
    }
    const std::string narrowed = narrow(text);
    vexkit2::variant_t value;
    if (rawType == kexa_3_3::value_type_boolean)
    {
        value = convertBoolean(narrowed);
    }
    else if (!narrowed.empty())
    {
        value = rawType == kexa_3_3::value_type_double
                    ? convertFloating(narrowed)
                    : convertInteger(narrowed, rawType == kexa_3_3::value_type_integer ||
                                                   rawType == kexa_3_3::value_type_integer64);
    }
    if (value.kind() == vexkit2::kind_null)
    {
        reason = "'" + narrowed + "' is no " +
                 (rawType == kexa_3_3::value_type_boolean ? "boolean" : "number");
    }
    return value;
}

} // namespace detail
} // namespace v1
} // namespace kexa
