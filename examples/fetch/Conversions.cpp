#include "fetch/Conversions.h"

namespace
{

// Reads up to nine digits at the beginning and removes them. Returns false if there are none or
// too many.
bool takeNumber(std::string_view& text, std::uint64_t& number)
{
    std::size_t digits = 0;
    number = 0;
    for (; digits < text.size() && text[digits] >= '0' && text[digits] <= '9'; ++digits)
    {
        number = number * 10 + static_cast<std::uint64_t>(text[digits] - '0');
        if (digits == 9)
        {
            return false;
        }
    }
    text.remove_prefix(digits);
    return digits > 0;
}

} // namespace

kexa::Conversion<fetch::Duration> kexa::convert<fetch::Duration>::fromText(std::string_view text)
{
    std::uint64_t number = 0;
    if (takeNumber(text, number))
    {
        const auto count = static_cast<double>(number);
        if (text == "ms")
        {
            return fetch::Duration{count / 1000};
        }
        if (text.empty() || text == "s")
        {
            return fetch::Duration{count};
        }
        if (text == "m")
        {
            return fetch::Duration{count * 60};
        }
    }
    return Refusal{"write a duration as 500ms, 30s or 5m"};
}

std::string kexa::convert<fetch::Duration>::toText(const fetch::Duration& duration)
{
    const auto milliseconds = static_cast<long>(duration.seconds * 1000);
    return milliseconds == 0          ? ""
           : milliseconds % 1000 == 0 ? std::to_string(milliseconds / 1000) + "s"
                                      : std::to_string(milliseconds) + "ms";
}

kexa::Conversion<fetch::Size> kexa::convert<fetch::Size>::fromText(std::string_view text)
{
    constexpr std::string_view units = "KMG";
    std::uint64_t number = 0;
    if (takeNumber(text, number))
    {
        const std::size_t unit = text.size() == 1 ? units.find(text[0]) : std::string_view::npos;
        if (text.empty() || unit != std::string_view::npos)
        {
            return fetch::Size{text.empty() ? number : number << (10 * (unit + 1))};
        }
    }
    return Refusal{"write a size as 500, 64K, 10M or 2G"};
}

std::string kexa::convert<fetch::Size>::toText(const fetch::Size& size)
{
    return size.bytes == 0 ? "" : std::to_string(size.bytes);
}
