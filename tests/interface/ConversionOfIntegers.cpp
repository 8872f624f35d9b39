// The decimal integer types: texts that convert and texts that do not, up to the limits of each.
#include <limits>
#include <string>
#include <vector>

#include "Conversion.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::s32_t;
using vexkit2::s64_t;
using vexkit2::u32_t;

constexpr std::nullopt_t refused = std::nullopt;

const std::wstring many_zeros(5000, L'0');
const std::wstring many_nines(5000, L'9');

// Rows for every decimal integer type.
template <class T>
std::vector<ConversionRow<T>> commonRows()
{
    return {
        {L"0", T{0}},
        {L"1", T{1}},
        {L"+1", T{1}},
        {L"+0", T{0}},
        {L"007", T{7}},
        {L"08", T{8}},
        {L" 5", T{5}},
        {L"\t\n\v\f\r 5", T{5}},
        {L"5 ", T{5}},
        {L"5\t\n\v\f\r ", T{5}},
        {L"  +5  ", T{5}},
        {many_zeros, T{0}},
        {many_zeros + L"12", T{12}},
        {many_zeros + L"x", refused},
        {many_zeros + L"1:2", refused},
        {many_nines, refused},
        {L"+" + many_nines, refused},
        {L"-" + many_nines, refused},
        {L"abc", refused},
        {L" ", refused},
        {L"+", refused},
        {L"-", refused},
        {L"+-1", refused},
        {L"-+1", refused},
        {L"++1", refused},
        {L"--1", refused},
        {L"+ 1", refused},
        {L"- 1", refused},
        {L"1-", refused},
        {L"1 2", refused},
        {L"12x", refused},
        {L"x12", refused},
        {L"1,000", refused},
        {L"1'000", refused},
        {L"1_000", refused},
        {L"1.0", refused},
        {L"1.", refused},
        {L"1e2", refused},
        {L"0x10", refused},
        {L"10h", refused},
        {L"\u0661", refused},     // Arabic-Indic one
        {L"1\u0661", refused},    // Arabic-Indic one after an ASCII digit
        {L"\uFF11", refused},     // fullwidth one
        {L"\u0967", refused},     // Devanagari one
        {L"\u00B2", refused},     // superscript two
        {L"\U0001D7CF", refused}, // mathematical bold one
        {L"\u00A05", refused},    // spaces outside ASCII
        {L"5\u3000", refused},
        {L"\uFEFF5", refused},
        {L"\u22125", refused}, // minus sign outside ASCII
    };
}

template <class T>
void expectTypeConversions(std::int32_t valueType, const wchar_t* typeName,
                           const std::vector<ConversionRow<T>>& rows)
{
    expectConversions<T>(valueType, typeName, commonRows<T>());
    expectConversions<T>(valueType, typeName, rows);
}

TEST(ConversionOfIntegers, Signed32)
{
    expectTypeConversions<s32_t>(
        value_type_integer, L"integer",
        {
            {L"2147483647", std::numeric_limits<s32_t>::max()},
            {L"2147483646", 2147483646},
            {L"2147483648", refused},
            {L"+2147483647", 2147483647},
            {L"+2147483648", refused},
            {L"-2147483648", std::numeric_limits<s32_t>::min()},
            {L"-2147483647", -2147483647},
            {L"-2147483649", refused},
            {L"4294967295", refused},
            {L"4294967296", refused}, // 2^32
            {L"9223372036854775808", refused},
            {L"18446744073709551616", refused}, // 2^64
            {L"-1", -1},
            {L"-0", 0},
            {L" -007 ", -7},
            {L"0000000000002147483647", 2147483647},
            {L"-0000000000002147483648", std::numeric_limits<s32_t>::min()},
            {L"-" + many_zeros + L"3", -3},
        });
}

TEST(ConversionOfIntegers, Unsigned32)
{
    expectTypeConversions<u32_t>(value_type_unsigned, L"unsigned integer",
                                 {
                                     {L"2147483648", 2147483648U},
                                     {L"4294967295", std::numeric_limits<u32_t>::max()},
                                     {L"4294967294", 4294967294U},
                                     {L"+4294967295", 4294967295U},
                                     {L"4294967296", refused},
                                     {L"18446744073709551615", refused},
                                     {L"18446744073709551616", refused},
                                     {L"-1", refused},
                                     {L"-0", refused},
                                     {L" -1", refused},
                                     {L"-4294967295", refused},
                                     {L"00000000000004294967295", 4294967295U},
                                 });
}

TEST(ConversionOfIntegers, Signed64)
{
    expectTypeConversions<s64_t>(
        value_type_integer64, L"64 bit integer",
        {
            {L"2147483648", 2147483648},
            {L"-2147483649", -2147483649},
            {L"4294967296", 4294967296},
            {L"9223372036854775807", std::numeric_limits<s64_t>::max()},
            {L"9223372036854775806", 9223372036854775806},
            {L"9223372036854775808", refused},
            {L"+9223372036854775807", 9223372036854775807},
            {L"+9223372036854775808", refused},
            {L"-9223372036854775808", std::numeric_limits<s64_t>::min()},
            {L"-9223372036854775807", -9223372036854775807},
            {L"-9223372036854775809", refused},
            {L"18446744073709551615", refused},
            {L"18446744073709551616", refused},
            {L"-18446744073709551616", refused},
            {L"-0", 0},
            {L"\t-00042\t", -42},
            {L"00000000000000000009223372036854775807", 9223372036854775807},
        });
}

} // namespace
