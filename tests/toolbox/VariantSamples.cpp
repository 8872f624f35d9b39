#include "VariantSamples.h"

#include <limits>

namespace variant_samples
{

using vexkit2::s32_t;
using vexkit2::s64_t;
using vexkit2::u32_t;
using vexkit2::u64_t;
using vexkit2::variant_t;

std::vector<EqualSamples> numberClasses()
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double highest = std::numeric_limits<double>::max();
    constexpr double tiniest = std::numeric_limits<double>::denorm_min();
    constexpr s64_t lowest64 = std::numeric_limits<s64_t>::min();
    return {
        {number("-infinity", -infinity),
         number("-infinity (float)", static_cast<float>(-infinity))},
        {number("-highest double", -highest)},
        {number("-2^63 (8)", lowest64), number("-2^63 (11)", -9223372036854775808.0),
         number("-2^63 (10)", -9223372036854775808.0F)},
        {number("-2^63 + 1024 (8)", lowest64 + 1024),
         number("-2^63 + 1024 (11)", -9223372036854774784.0)},
        {number("-2^31 - 1 (8)", s64_t{-2147483649}), number("-2^31 - 1 (11)", -2147483649.0)},
        {number("-2^31 (6)", std::numeric_limits<s32_t>::min()),
         number("-2^31 (8)", s64_t{-2147483648}), number("-2^31 (11)", -2147483648.0),
         number("-2^31 (10)", -2147483648.0F)},
        {number("-2 (6)", s32_t{-2}), number("-2 (8)", s64_t{-2}), number("-2 (11)", -2.0)},
        {number("-1.5 (10)", -1.5F), number("-1.5 (11)", -1.5)},
        {number("-1 (6)", s32_t{-1}), number("-1 (8)", s64_t{-1}), number("-1 (10)", -1.0F),
         number("-1 (11)", -1.0)},
        {number("-0.5 (11)", -0.5)},
        {number("-tiniest double", -tiniest)},
        {number("0 (6)", s32_t{0}), number("0 (7)", u32_t{0}), number("0 (8)", s64_t{0}),
         number("0 (9)", u64_t{0}), number("0 (10)", 0.0F), number("0 (11)", 0.0),
         number("-0 (10)", -0.0F), number("-0 (11)", -0.0)},
        {number("tiniest double", tiniest)},
        {number("0.1 (11)", 0.1)},
        {number("0.1 (10)", 0.1F)}, // 0.100000001490116...
        {number("1 (6)", s32_t{1}), number("1 (7)", u32_t{1}), number("1 (8)", s64_t{1}),
         number("1 (9)", u64_t{1}), number("1 (10)", 1.0F), number("1 (11)", 1.0)},
        {number("1.5 (11)", 1.5)},
        {number("2 (6)", s32_t{2}), number("2 (11)", 2.0)},
        {number("2^31 - 1 (6)", std::numeric_limits<s32_t>::max()),
         number("2^31 - 1 (7)", u32_t{2147483647}), number("2^31 - 1 (8)", s64_t{2147483647}),
         number("2^31 - 1 (9)", u64_t{2147483647}), number("2^31 - 1 (11)", 2147483647.0)},
        {number("2^31 (7)", u32_t{2147483648U}), number("2^31 (8)", s64_t{2147483648}),
         number("2^31 (9)", u64_t{2147483648U}), number("2^31 (10)", 2147483648.0F),
         number("2^31 (11)", 2147483648.0)},
        {number("2^32 - 1 (7)", std::numeric_limits<u32_t>::max()),
         number("2^32 - 1 (8)", s64_t{4294967295}), number("2^32 - 1 (9)", u64_t{4294967295U}),
         number("2^32 - 1 (11)", 4294967295.0)},
        {number("2^32 - 0.5 (11)", 4294967295.5)},
        {number("2^32 (8)", s64_t{4294967296}), number("2^32 (9)", u64_t{4294967296U}),
         number("2^32 (11)", 4294967296.0)},
        {number("2^53 (8)", s64_t{9007199254740992}), number("2^53 (9)", u64_t{9007199254740992U}),
         number("2^53 (11)", 9007199254740992.0)},
        {number("2^63 (9)", u64_t{9223372036854775808U}),
         number("2^63 (11)", 9223372036854775808.0), number("2^63 (10)", 9223372036854775808.0F)},
        {number("2^63 + 2048 (9)", u64_t{9223372036854777856U}),
         number("2^63 + 2048 (11)", 9223372036854777856.0)},
        {number("2^64 - 2048 (9)", u64_t{18446744073709549568U}),
         number("2^64 - 2048 (11)", 18446744073709549568.0)},
        {number("2^64 (11)", 18446744073709551616.0), number("2^64 (10)", 18446744073709551616.0F)},
        {number("highest double", highest)},
        {number("infinity (11)", infinity), number("infinity (10)", static_cast<float>(infinity))},
    };
}

std::vector<EqualSamples> textAndBlobClasses()
{
    std::vector<EqualSamples> classes;
    for (const char* text : {"", "1", "ab", "abc", "b", "\xC3\xA9"})
    {
        const std::string label = std::string("narrow '") + text;
        classes.push_back({{label + "' (12)", variant_t(text)},
                           {label + "' (12, from a string)", variant_t(std::string(text))},
                           {label + "' (14)", variant_t::reference(text)}});
    }
    for (const wchar_t* text : {L"", L"1", L"ab", L"abc", L"b", L"\u00E9", L"\u2014"})
    {
        const std::string label = "wide text of length " +
                                  std::to_string(std::wstring(text).size()) + ", beginning with " +
                                  std::to_string(static_cast<unsigned long>(text[0]));
        classes.push_back({{label + " (13)", variant_t(text)},
                           {label + " (13, from a string)", variant_t(std::wstring(text))},
                           {label + " (15)", variant_t::reference(text)}});
    }
    classes.push_back({{"empty blob", variant_t::blob(nullptr, 0)}});
    for (const std::string& bytes :
         {std::string(1, '\0'), std::string(2, '\0'), std::string("1"), std::string("a\0b", 3),
          std::string("a\0c", 3), std::string("ab"), std::string("\xFF")})
    {
        classes.push_back(
            {{"blob '" + bytes + "'", variant_t::blob(bytes.data(), bytes.size())},
             {"blob '" + bytes + "', made again", variant_t::blob(bytes.data(), bytes.size())}});
    }
    return classes;
}

std::vector<EqualSamples> ascendingClasses()
{
    std::vector<EqualSamples> classes = {{{"null", variant_t()}, {"another null", variant_t()}},
                                         {{"false", variant_t(false)}},
                                         {{"true", variant_t(true)}}};
    for (EqualSamples& equal : numberClasses())
    {
        classes.push_back(std::move(equal));
    }
    for (EqualSamples& equal : textAndBlobClasses())
    {
        classes.push_back(std::move(equal));
    }
    const auto [first, second] = twoObjects();
    classes.push_back({{"first object", first}, {"first object, shared", first}});
    classes.push_back({{"second object", second}});
    return classes;
}

} // namespace variant_samples
