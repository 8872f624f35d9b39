// How the text of one value becomes a C++ type: Element<T> for every T that an option can have.
#ifndef KEXA_COMMAND_DETAIL_ELEMENT_H
#define KEXA_COMMAND_DETAIL_ELEMENT_H

#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>

#include "kexa/command/convert.h"
#include "kexa/command/detail/declaration.h"
#include "kexa/command/detail/numbers.h"
#include "kexa/command/detail/traits.h"
#include "kexa/option.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// The primary template has the types of the program.
template <class T, class = void>
struct Element
{
    static_assert(HasConvert<T>::value,
                  "no option can have this type: specialise kexa::convert for it");
    static constexpr std::int32_t rawType = kexa_3_3::value_type_string;
    static constexpr const char* name = "value";
    static bool read(Input& input, T& value)
    {
        Conversion<T> converted = convert<T>::fromText(readText(input));
        if (!converted)
        {
            input.reason = converted.reason();
            return false;
        }
        value = std::move(*converted);
        return true;
    }
    static std::string text([[maybe_unused]] const T& value)
    {
        if constexpr (HasText<T>::value)
        {
            return convert<T>::toText(value);
        }
        else
        {
            return std::string();
        }
    }
};

template <>
struct Element<bool>
{
    static constexpr std::int32_t rawType = kexa_3_3::value_type_boolean;
    static constexpr const char* name = "boolean";
    static bool read(Input& input, bool& value) { return readBoolean(input, value); }
    static std::string text(bool value) { return value ? "true" : "false"; }
};

template <class T>
struct Element<T, std::enable_if_t<isNumber<T> && std::is_integral_v<T> && !HasConvert<T>::value>>
{
    using Wide = std::conditional_t<std::is_signed_v<T>, std::int64_t, std::uint64_t>;
    static constexpr bool isSmall = sizeof(T) <= sizeof(std::int32_t);
    static constexpr std::int32_t rawType =
        std::is_signed_v<T>
            ? (isSmall ? kexa_3_3::value_type_integer : kexa_3_3::value_type_integer64)
            : (isSmall ? kexa_3_3::value_type_unsigned : kexa_3_3::value_type_unsigned64);
    static constexpr const char* name = "number";
    static bool read(Input& input, T& value)
    {
        Wide wide = 0;
        if constexpr (std::is_signed_v<T>)
        {
            if (!readInteger(input, std::numeric_limits<T>::min(), std::numeric_limits<T>::max(),
                             wide))
            {
                return false;
            }
        }
        else if (!readUnsigned(input, std::numeric_limits<T>::max(), wide))
        {
            return false;
        }
        value = static_cast<T>(wide);
        return true;
    }
    static std::string text(T value) { return textOf(static_cast<Wide>(value)); }
};

template <class T>
struct Element<T, std::enable_if_t<std::is_floating_point_v<T> && !HasConvert<T>::value>>
{
    static_assert(!std::is_same_v<T, long double>, "an option can be a float or a double");
    static constexpr std::int32_t rawType = kexa_3_3::value_type_double;
    static constexpr const char* name = "number";
    static bool read(Input& input, T& value)
    {
        if constexpr (std::is_same_v<T, float>)
        {
            return readFloat(input, value);
        }
        else
        {
            return readDouble(input, value);
        }
    }
    static std::string text(T value) { return textOf(static_cast<double>(value)); }
};

template <>
struct Element<std::string>
{
    static constexpr std::int32_t rawType = kexa_3_3::value_type_string;
    static constexpr const char* name = "text";
    static bool read(Input& input, std::string& value)
    {
        value = readText(input);
        return true;
    }
    static const std::string& text(const std::string& value) { return value; }
};

template <>
struct Element<std::wstring>
{
    static constexpr std::int32_t rawType = kexa_3_3::value_type_string;
    static constexpr const char* name = "text";
    static bool read(Input& input, std::wstring& value)
    {
        value = readWideText(input);
        return true;
    }
    static std::string text(const std::wstring& value) { return narrowText(value); }
};

// Only a table of named values gives an enumeration its texts; see ReadElement.
template <class T>
struct Element<T, std::enable_if_t<std::is_enum_v<T> && !HasConvert<T>::value>>
{
    static constexpr std::int32_t rawType = kexa_3_3::value_type_string;
    static constexpr const char* name = "value";
    static bool read(Input&, T&) { return false; }
    static std::string text(const T&) { return std::string(); }
};

// Reads one value: by its name where the option has a table, and subject to the option's rules.
template <class T>
bool readElement(Input& input, T& value)
{
    if (isNamed(input))
    {
        readNamed(input, &value);
    }
    else if (!Element<T>::read(input, value))
    {
        return false;
    }
    return passesRules(input, &value);
}

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
