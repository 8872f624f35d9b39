// The text of values.
#include "options/ValueText.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "options/ValueConversion.h"

#include "TextPrinting.h"

namespace
{

using kexa_3_3::convertValue;
using kexa_3_3::valueText;
using toolbox::toUtf8;
using vexkit2::variant_t;

bool isDecimal(const std::wstring& text)
{
    return text.find(L'e') == std::wstring::npos;
}

// How many digits a text writes, leading zeros and trailing ones left out.
std::size_t significantDigits(const std::wstring& text)
{
    std::wstring digits;
    for (const wchar_t character : text.substr(0, text.find(L'e')))
    {
        if (character >= L'0' && character <= L'9' && (character != L'0' || !digits.empty()))
        {
            digits.push_back(character);
        }
    }
    return digits.find_last_not_of(L'0') + 1;
}

// The fewest digits that read back to the same double.
std::size_t fewestDigits(double number)
{
    for (int precision = 0; precision < 17; ++precision)
    {
        char text[64] = "";
        std::snprintf(text, sizeof(text), "%.*e", precision, number);
        if (!(std::strtod(text, nullptr) < number) && !(std::strtod(text, nullptr) > number))
        {
            return static_cast<std::size_t>(precision) + 1;
        }
    }
    return 17;
}

double randomDouble(std::mt19937_64& random)
{
    for (;;)
    {
        const std::uint64_t bits = random();
        double number = 0;
        std::memcpy(&number, &bits, sizeof(number));
        if (std::isfinite(number))
        {
            return number;
        }
    }
}

void expectShortestText(double number)
{
    const std::wstring text = valueText(variant_t(number));
    const variant_t read = convertValue(11, text);
    ASSERT_EQ(read.kind(), 11) << toUtf8(text);
    const double back = read.get<double>();
    ASSERT_EQ(std::memcmp(&back, &number, sizeof(number)), 0) << toUtf8(text);
    const double magnitude = std::abs(number);
    ASSERT_EQ(isDecimal(text), magnitude >= 1e-5 && magnitude < 1e16) << toUtf8(text);
    ASSERT_EQ(significantDigits(text), fewestDigits(number)) << toUtf8(text);
}

TEST(ValueText, AnyDoubleReadsBackFromTheFewestDigits)
{
    std::mt19937_64 random(1);
    for (int count = 0; count < 3000; ++count)
    {
        ASSERT_NO_FATAL_FAILURE(expectShortestText(randomDouble(random)));
    }
}

TEST(ValueText, DoubleOfUsualSizeReadsBackFromTheFewestDigits)
{
    std::mt19937_64 random(2);
    for (int count = 0; count < 3000; ++count)
    {
        const double mantissa = static_cast<double>(random() % 2000001) - 1000000;
        const int exponent = static_cast<int>(random() % 28) - 14;
        const double number = mantissa * std::pow(10.0, exponent);
        if (number < 0 || number > 0)
        {
            ASSERT_NO_FATAL_FAILURE(expectShortestText(number));
        }
    }
}

TEST(ValueText, NotationChangesAtItsLimits)
{
    const struct
    {
        double number;
        const wchar_t* text;
    } rows[] = {{0.0, L"0"},
                {-0.0, L"-0"},
                {1.0, L"1"},
                {-2.5, L"-2.5"},
                {0.1, L"0.1"},
                {1234567.0, L"1234567"},
                {1e15, L"1000000000000000"},
                {9999999999999998.0, L"9999999999999998"},
                {1e16, L"1e+16"},
                {-1e16, L"-1e+16"},
                {10000000000000002.0, L"1.0000000000000002e+16"},
                {1e20, L"1e+20"},
                {1e-5, L"0.00001"},
                {-1e-5, L"-0.00001"},
                {1.5e-5, L"0.000015"},
                {9.9e-6, L"9.9e-06"},
                {std::nextafter(1e-5, 0.0), L"9.999999999999999e-06"},
                {2.5e-07, L"2.5e-07"},
                {1e-100, L"1e-100"},
                {std::numeric_limits<double>::max(), L"1.7976931348623157e+308"},
                {std::numeric_limits<double>::denorm_min(), L"5e-324"}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(valueText(variant_t(row.number)), row.text);
    }
}

TEST(ValueText, FloatIsShownAsTheDoubleItIs)
{
    EXPECT_EQ(valueText(variant_t(0.5F)), L"0.5");
    EXPECT_EQ(valueText(variant_t(0.1F)), L"0.10000000149011612");
}

TEST(ValueText, EveryKindHasItsText)
{
    const wchar_t* const wide = L"w\u00E9\U0001F600";
    const struct
    {
        variant_t value;
        std::wstring text;
    } rows[] = {{variant_t(true), L"1"},
                {variant_t(false), L"0"},
                {variant_t(std::numeric_limits<vexkit2::s32_t>::min()), L"-2147483648"},
                {variant_t(std::numeric_limits<vexkit2::u32_t>::max()), L"4294967295"},
                {variant_t(std::numeric_limits<vexkit2::s64_t>::min()), L"-9223372036854775808"},
                {variant_t(std::numeric_limits<vexkit2::u64_t>::max()), L"18446744073709551615"},
                {variant_t("n\xC3\xA9\xF0\x9F\x98\x80"), L"n\u00E9\U0001F600"},
                {variant_t("bad\xFFz"), L"bad\uFFFDz"},
                {variant_t(wide), wide},
                {variant_t::reference("\xE2\x80\x94"), L"\u2014"},
                {variant_t::reference(wide), wide},
                {variant_t(L""), L""},
                {variant_t::blob("abc", 3), L""},
                {variant_t(), L""},
                {variant_t::object(new vexkit2::polymorphic_t), L""}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(valueText(row.value), row.text) << "kind " << row.value.kind();
    }
}

} // namespace
