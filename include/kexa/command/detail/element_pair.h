// Element<T> for key=value.
#ifndef KEXA_COMMAND_DETAIL_ELEMENT_PAIR_H
#define KEXA_COMMAND_DETAIL_ELEMENT_PAIR_H

#include <string>
#include <string_view>
#include <utility>

#include "kexa/command/detail/element.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// key=value, each of them of a type of its own.
template <class Key, class Mapped>
struct Element<std::pair<Key, Mapped>, void>
{
    static constexpr std::int32_t rawType = kexa_3_3::value_type_string;
    static constexpr const char* name = "key=value";

    template <class Part>
    static bool readPart(Input& input, std::wstring_view text, Part& part)
    {
        const vexkit2::variant_t value = convertText(Element<Part>::rawType, text, input.reason);
        if (value.kind() == vexkit2::kind_null)
        {
            return false;
        }
        Input inner{&value, input.declaration, std::string()};
        const bool isRead = Element<Part>::read(inner, part);
        input.reason = std::move(inner.reason);
        return isRead;
    }
    static bool read(Input& input, std::pair<Key, Mapped>& value)
    {
        std::wstring_view key;
        std::wstring_view mapped;
        return splitPair(input, key, mapped) && readPart(input, key, value.first) &&
               readPart(input, mapped, value.second);
    }
    static std::string text(const std::pair<Key, Mapped>& value)
    {
        return std::string(Element<Key>::text(value.first)) + "=" +
               std::string(Element<Mapped>::text(value.second));
    }
};

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
