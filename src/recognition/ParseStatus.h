// How the parsing of one argument ended.
#pragma once

#include <cstdint>

#include "kexa/result.h"

namespace kexa_3_3
{

enum class ParseStatus : std::uint8_t
{
    parsed,
    refused, // an event handler refused a value
    invalid  // the argument is wrong
};

// Returns the code that a parse ends with; success for a parsed argument, which does not end it.
[[nodiscard]] constexpr result_t resultOf(ParseStatus status) noexcept
{
    switch (status)
    {
    case ParseStatus::parsed:
        return result_success;
    case ParseStatus::refused:
        return result_nothing;
    case ParseStatus::invalid:
        break;
    }
    return result_invalid_arguments;
}

} // namespace kexa_3_3
