// Texts that convert to a double, and texts that do not.
#include <cmath>
#include <limits>
#include <string>

#include "Conversion.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;

constexpr std::nullopt_t refused = std::nullopt;
constexpr double highest = std::numeric_limits<double>::max();
constexpr double smallest_normal = std::numeric_limits<double>::min();
constexpr double smallest = std::numeric_limits<double>::denorm_min();

const std::wstring zeros_400(400, L'0');

void expectDoubles(const std::vector<ConversionRow<double>>& rows)
{
    expectConversions<double>(value_type_double, L"double", rows);
}

TEST(ConversionOfDoubles, DecimalsWithAnOptionalExponent)
{
    expectDoubles({{L"0", 0.0},
                   {L"1", 1.0},
                   {L"+1", 1.0},
                   {L"-1", -1.0},
                   {L"2.5", 2.5},
                   {L"-2.5", -2.5},
                   {L".5", 0.5},
                   {L"-.5", -0.5},
                   {L"5.", 5.0},
                   {L"5.e1", 50.0},
                   {L".5e1", 5.0},
                   {L"0.1", 0.1},
                   {L"00012.500", 12.5},
                   {L"1e3", 1000.0},
                   {L"1E3", 1000.0},
                   {L"1e+3", 1000.0},
                   {L"1e-3", 0.001},
                   {L"1e0003", 1000.0},
                   {L"1e-0", 1.0},
                   {L"123456789012345678", 123456789012345678.0},
                   {L"9007199254740993", 9007199254740992.0},
                   {L"3.141592653589793238462643383279502884", 3.141592653589793},
                   {L" 2.5", 2.5},
                   {L"2.5 ", 2.5},
                   {L"\t\n\v\f\r 2.5\t\n\v\f\r ", 2.5}});
}

TEST(ConversionOfDoubles, AnythingElseIsRefused)
{
    expectDoubles({{L" ", refused},       {L"abc", refused},      {L".", refused},
                   {L"-", refused},       {L"+", refused},        {L"-.", refused},
                   {L"e5", refused},      {L".e5", refused},      {L"1e", refused},
                   {L"1e+", refused},     {L"1e-", refused},      {L"1e+-5", refused},
                   {L"1e 5", refused},    {L"1e5.0", refused},    {L"1e5e5", refused},
                   {L"1.5.", refused},    {L"1..5", refused},     {L"--1", refused},
                   {L"+-1", refused},     {L"- 1", refused},      {L"1 2", refused},
                   {L"1x", refused},      {L"1f", refused},       {L"1d5", refused},
                   {L"1,5", refused},     {L"1'000", refused},    {L"1,000.5", refused},
                   {L"1_0", refused},     {L"\u0661", refused},   {L"1.\u0665", refused},
                   {L"\uFF11", refused},  {L"1\u066B5", refused}, {L"\u22121", refused},
                   {L"\u00A01", refused}, {L"1\u3000", refused}});
}

TEST(ConversionOfDoubles, HexadecimalsInfinityAndNanAreRefused)
{
    expectDoubles({{L"inf", refused},
                   {L"-inf", refused},
                   {L"INF", refused},
                   {L"infinity", refused},
                   {L"Infinity", refused},
                   {L"nan", refused},
                   {L"NaN", refused},
                   {L"-nan", refused},
                   {L"nan(1)", refused},
                   {L"0x10", refused},
                   {L"0x1p3", refused},
                   {L"0x1.8p1", refused},
                   {L"-0X1P-2", refused},
                   {L"1p3", refused},
                   {L"10h", refused}});
}

TEST(ConversionOfDoubles, MagnitudeTooLargeIsRefused)
{
    expectDoubles({{L"1.7976931348623157e308", highest},
                   {L"-1.7976931348623157e308", -highest},
                   {L"1.7976931348623158e308", highest}, // nearer to the highest than to 2^1024
                   {L"1.7976931348623159e308", refused},
                   {L"-1.7976931348623159e308", refused},
                   {L"1e308", 1e308},
                   {L"1e309", refused},
                   {L"-1e309", refused},
                   {L"1e400", refused},
                   {L"1e99999999999999999999", refused},
                   {L"-1e99999999999999999999", refused},
                   {L"1" + zeros_400, refused},
                   {L"0.01e310", 1e308},
                   {L"1" + zeros_400 + L"e-400", 1.0}});
}

TEST(ConversionOfDoubles, MagnitudeTooSmallGivesTheNearest)
{
    expectDoubles({{L"2.2250738585072014e-308", smallest_normal},
                   {L"2.2250738585072009e-308", smallest_normal - smallest},
                   {L"4.9406564584124654e-324", smallest},
                   {L"-4.9406564584124654e-324", -smallest},
                   {L"5e-324", smallest},
                   {L"3e-324", smallest},
                   {L"2.5e-324", smallest},
                   {L"2.4e-324", 0.0},
                   {L"1e-400", 0.0},
                   {L"1e-99999999999999999999", 0.0},
                   {L"0." + zeros_400 + L"1", 0.0},
                   {L"0." + zeros_400 + L"1e401", 1.0},
                   {L"0e99999999999999999999", 0.0},
                   {L"0." + zeros_400, 0.0},
                   {zeros_400 + L"1", 1.0}});
}

TEST(ConversionOfDoubles, SignOfZeroIsKept)
{
    for (const wchar_t* text : {L"-0", L"-0.0", L"-0e5", L"-1e-400"})
    {
        const Converted converted = convert(value_type_double, text);
        ASSERT_EQ(converted.value.kind(), 11) << toUtf8(text);
        EXPECT_EQ(converted.value.get<double>(), 0.0) << toUtf8(text);
        EXPECT_TRUE(std::signbit(converted.value.get<double>())) << toUtf8(text);
    }
    EXPECT_FALSE(std::signbit(convert(value_type_double, L"0").value.get<double>()));
    EXPECT_FALSE(std::signbit(convert(value_type_double, L"1e-400").value.get<double>()));
}

TEST(ConversionOfDoubles, TiesGoToTheEvenNeighbour)
{
    expectDoubles(
        {{L"9007199254740993", 9007199254740992.0},
         {L"9007199254740993.0000000000000000000000000000000000000001", 9007199254740994.0},
         {L"9007199254740995", 9007199254740996.0},
         {L"0.500000000000000166533453693773481063544750213623046875", 0.5000000000000002},
         {L"1.00000000000000011102230246251565404236316680908203125", 1.0},
         {L"1.00000000000000011102230246251565404236316680908203126", 1.0000000000000002}});
}

} // namespace
