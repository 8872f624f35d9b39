// Element<T> for paths. Includes <filesystem>, which takes half of the layer's time to compile.
#ifndef KEXA_COMMAND_DETAIL_ELEMENT_PATH_H
#define KEXA_COMMAND_DETAIL_ELEMENT_PATH_H

#if !defined(KEXA_COMMAND_NO_PATHS)
#include <filesystem>
#include <string>

#include "kexa/command/detail/element.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

template <>
struct Element<std::filesystem::path>
{
    static constexpr std::int32_t rawType = kexa_3_3::value_type_string;
    static constexpr const char* name = "path";
    static bool read(Input& input, std::filesystem::path& value)
    {
#if defined(_WIN32)
        value = readWideText(input);
#else
        value = readText(input);
#endif
        return true;
    }
    static std::string text(const std::filesystem::path& value)
    {
#if defined(_WIN32)
        return narrowText(value.native());
#else
        return value.native();
#endif
    }
};

} // namespace detail
} // namespace v1
} // namespace kexa

#endif

#endif
