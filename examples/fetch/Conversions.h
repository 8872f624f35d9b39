// How texts become the types of the program.
#pragma once

#include <kexa/command.h>

#include "fetch/Settings.h"

template <>
struct kexa::convert<fetch::Duration>
{
    static Conversion<fetch::Duration> fromText(std::string_view text);
    static std::string toText(const fetch::Duration& duration);
};

template <>
struct kexa::convert<fetch::Size>
{
    static Conversion<fetch::Size> fromText(std::string_view text);
    static std::string toText(const fetch::Size& size);
};
