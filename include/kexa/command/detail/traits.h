// What the layer finds out about the types of members.
#ifndef KEXA_COMMAND_DETAIL_TRAITS_H
#define KEXA_COMMAND_DETAIL_TRAITS_H

#include <string_view>
#include <type_traits>
#include <utility>

#include "kexa/command/convert.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

template <class T, class = void>
struct HasConvert : std::false_type
{
};
template <class T>
struct HasConvert<T, std::void_t<decltype(convert<T>::fromText(std::declval<std::string_view>()))>>
    : std::true_type
{
};
template <class T, class = void>
struct HasText : std::false_type
{
};
template <class T>
struct HasText<T, std::void_t<decltype(convert<T>::toText(std::declval<const T&>()))>>
    : std::true_type
{
};

template <class T>
inline constexpr bool isCharacter = std::is_same_v<T, char> || std::is_same_v<T, wchar_t> ||
                                    std::is_same_v<T, char16_t> || std::is_same_v<T, char32_t>;
template <class T>
inline constexpr bool isNumber =
    std::is_arithmetic_v<T> && !std::is_same_v<T, bool> && !isCharacter<T>;

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
