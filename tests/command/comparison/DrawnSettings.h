// The struct that drawn commands fill, and its members by number.
#ifndef KEXA_TESTS_COMMAND_COMPARISON_DRAWN_SETTINGS_H
#define KEXA_TESTS_COMMAND_COMPARISON_DRAWN_SETTINGS_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "kexa/command.h"

namespace toolbox
{

struct DrawnSettings
{
    bool list = false;
    bool sum = false;
    bool remove = false;
    bool flag = false;
    bool on = true;
    std::int32_t number = 5;
    std::int64_t wideNumber = -7;
    std::uint32_t size = 8;
    std::uint64_t wideSize = 9;
    double ratio = 0.5;
    std::string text = "text";
    std::optional<std::string> output;
    std::string mode = "slow";
    std::int32_t level = 10;
    std::vector<std::int32_t> numbers;
    std::vector<std::uint64_t> sizes;
    std::vector<double> ratios;
    std::vector<std::string> texts;
    std::vector<std::string> modes;
    int count = 0;
    std::string first;
    std::vector<std::string> words;
};

enum Member : unsigned char
{
    member_flag,
    member_on,
    member_number,
    member_wide_number,
    member_size,
    member_wide_size,
    member_ratio,
    member_text,
    member_output,
    member_mode,
    member_level,
    member_numbers,
    member_sizes,
    member_ratios,
    member_texts,
    member_modes,
    member_count,
    member_end
};

// Calls the function with the pointer to a member.
template <class Function>
auto withMember(Member member, const Function& function)
{
    switch (member)
    {
    case member_flag:
        return function(&DrawnSettings::flag);
    case member_on:
        return function(&DrawnSettings::on);
    case member_number:
        return function(&DrawnSettings::number);
    case member_wide_number:
        return function(&DrawnSettings::wideNumber);
    case member_size:
        return function(&DrawnSettings::size);
    case member_wide_size:
        return function(&DrawnSettings::wideSize);
    case member_ratio:
        return function(&DrawnSettings::ratio);
    case member_text:
        return function(&DrawnSettings::text);
    case member_output:
        return function(&DrawnSettings::output);
    case member_mode:
        return function(&DrawnSettings::mode);
    case member_level:
        return function(&DrawnSettings::level);
    case member_numbers:
        return function(&DrawnSettings::numbers);
    case member_sizes:
        return function(&DrawnSettings::sizes);
    case member_ratios:
        return function(&DrawnSettings::ratios);
    case member_texts:
        return function(&DrawnSettings::texts);
    case member_modes:
        return function(&DrawnSettings::modes);
    default:
        return function(&DrawnSettings::count);
    }
}

inline constexpr bool DrawnSettings::*action_members[] = {&DrawnSettings::list, &DrawnSettings::sum,
                                                          &DrawnSettings::remove};

} // namespace toolbox

#endif
