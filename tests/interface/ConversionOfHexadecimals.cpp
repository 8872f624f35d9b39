// The unsigned 64-bit type: decimal, and hexadecimal with the prefix "0x" or the suffix "h".
#include <limits>
#include <string>

#include "Conversion.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::u64_t;

constexpr std::nullopt_t refused = std::nullopt;
constexpr u64_t highest = std::numeric_limits<u64_t>::max();
constexpr const wchar_t* type_name = L"unsigned 64 bit or hex";

void expectUnsigned64(const std::vector<ConversionRow<u64_t>>& rows)
{
    expectConversions<u64_t>(value_type_unsigned64, type_name, rows);
}

TEST(ConversionOfHexadecimals, EveryFormOfThirtyOneGivesThirtyOne)
{
    expectUnsigned64({{L"0x1F", 31},
                      {L"1Fh", 31},
                      {L"1fh", 31},
                      {L"0X1f", 31},
                      {L"31", 31},
                      {L"0x1f", 31},
                      {L"0X1F", 31},
                      {L"1FH", 31},
                      {L"1fH", 31},
                      {L"0x01F", 31},
                      {L"001Fh", 31},
                      {L"+31", 31},
                      {L" 31 ", 31},
                      {L"0031", 31}});
}

TEST(ConversionOfHexadecimals, PrefixedNumbers)
{
    expectUnsigned64({{L"0x0", 0},
                      {L"0x00", 0},
                      {L"0xA", 10},
                      {L"0xabcdef", 0xABCDEF},
                      {L"0xABCDEF", 0xABCDEF},
                      {L"0xaBcDeF", 0xABCDEF},
                      {L"0X0123456789", 0x123456789},
                      {L"0x7FFFFFFFFFFFFFFF", 0x7FFFFFFFFFFFFFFFU},
                      {L"0xFFFFFFFFFFFFFFFE", highest - 1},
                      {L"0xFFFFFFFFFFFFFFFF", highest},
                      {L"0xffffffffffffffff", highest},
                      {L"0x" + std::wstring(3000, L'0') + L"1F", 31},
                      {L"0x10000000000000000", refused},
                      {L"0xFFFFFFFFFFFFFFFFF", refused},
                      {L"0x" + std::wstring(3000, L'F'), refused},
                      {L"0x", refused},
                      {L"0X", refused},
                      {L"0x1G", refused},
                      {L"0xG", refused},
                      {L"0x-1", refused},
                      {L"0x+1", refused},
                      {L"0x 1F", refused},
                      {L"0x1F ", refused},
                      {L" 0x1F", refused},
                      {L"\t0x1F", refused},
                      {L"+0x1F", refused},
                      {L"-0x1F", refused},
                      {L"00x1F", refused},
                      {L"0x0x1F", refused},
                      {L"x1F", refused},
                      {L"0x1.8", refused},
                      {L"0x1Fh", refused},
                      {L"0x1F\uFF26", refused}}); // a fullwidth F
}

TEST(ConversionOfHexadecimals, SuffixedNumbers)
{
    expectUnsigned64({{L"0h", 0},
                      {L"10h", 16},
                      {L"9H", 9},
                      {L"Ah", 10},
                      {L"abcdefh", 0xABCDEF},
                      {L"FFFFFFFFFFFFFFFFh", highest},
                      {L"ffffffffffffffffH", highest},
                      {std::wstring(3000, L'0') + L"1Fh", 31},
                      {L"10000000000000000h", refused},
                      {std::wstring(3000, L'F') + L"h", refused},
                      {L"h", refused},
                      {L"H", refused},
                      {L"hh", refused},
                      {L"1hh", refused},
                      {L"1Gh", refused},
                      {L" 1Fh", refused},
                      {L"1Fh ", refused},
                      {L"1F h", refused},
                      {L"+1Fh", refused},
                      {L"-1Fh", refused},
                      {L"0xh", refused},
                      {L"1h1", refused}});
}

TEST(ConversionOfHexadecimals, DecimalNumbers)
{
    expectUnsigned64({{L"0", 0},
                      {L"18446744073709551615", highest},
                      {L"18446744073709551614", highest - 1},
                      {L"+18446744073709551615", highest},
                      {L"18446744073709551616", refused},
                      {L"18446744073709551625", refused},
                      {L"99999999999999999999", refused},
                      {L"9223372036854775808", 9223372036854775808U},
                      {std::wstring(3000, L'0') + L"8", 8},
                      {L"08", 8},
                      {L"\t\n\v\f\r 5\t\n\v\f\r ", 5},
                      {std::wstring(3000, L'9'), refused},
                      {L"-1", refused},
                      {L"-0", refused},
                      {L" -1", refused},
                      {L"-18446744073709551615", refused},
                      {L"+", refused},
                      {L" ", refused},
                      {L"+-1", refused},
                      {L"1F", refused},
                      {L"F", refused},
                      {L"1 F", refused},
                      {L"1.0", refused},
                      {L"1e3", refused},
                      {L"1,000", refused},
                      {L"\u0661", refused},
                      {L"\uFF11", refused},
                      {L"5\u00A0", refused}});
}

} // namespace
