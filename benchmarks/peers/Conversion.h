// Conversion of texts to numbers with the C library, as hosts of a C parser do it.
#ifndef KEXA_BENCHMARKS_CONVERSION_H
#define KEXA_BENCHMARKS_CONVERSION_H

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace benchmarks
{

// Converts the whole text and checks the range; returns the text itself for text types. Throws
// std::invalid_argument where the text is not a number of type T.
template <class T>
T convert(const char* text)
{
    if constexpr (std::is_same_v<T, std::string> || std::is_same_v<T, const char*>)
    {
        return text;
    }
    else
    {
        char* end = nullptr;
        errno = 0;
        const auto number = [&]
        {
            if constexpr (std::is_floating_point_v<T>)
            {
                return std::strtod(text, &end);
            }
            else if constexpr (std::is_signed_v<T>)
            {
                return std::strtoll(text, &end, 10);
            }
            else
            {
                return std::strtoull(text, &end, 10);
            }
        }();
        const bool outside =
            number < std::numeric_limits<T>::lowest() || number > std::numeric_limits<T>::max();
        if (end == text || *end != '\0' || errno != 0 || outside)
        {
            throw std::invalid_argument(std::string("not a number: ") + text);
        }
        return static_cast<T>(number);
    }
}

} // namespace benchmarks

#endif
