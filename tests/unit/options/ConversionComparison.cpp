// Conversion of texts to numbers, compared with what the standard library reads.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <locale>
#include <random>
#include <sstream>
#include <string>

#include "options/ValueConversion.h"

#include "TextPrinting.h"

namespace
{

using kexa_3_3::convertValue;
using toolbox::toUtf8;
using vexkit2::variant_t;

// Reads numbers as a stream of the classic locale does. The stream is used again and again.
class StreamReader
{
public:
    StreamReader() { m_stream.imbue(std::locale::classic()); }

    // The number at the front of the text, which nothing but white space may follow, or null.
    template <class Number>
    variant_t read(const std::wstring& text, bool hexadecimal = false)
    {
        m_stream.clear();
        m_stream.str(text);
        m_stream.setf(hexadecimal ? std::ios_base::hex : std::ios_base::dec,
                      std::ios_base::basefield);
        Number number = 0;
        m_stream >> number;
        if (m_stream.fail())
        {
            return variant_t();
        }
        m_stream.clear();
        const bool more = static_cast<bool>(m_stream >> std::ws) && m_stream.peek() != WEOF;
        return more ? variant_t() : variant_t(number);
    }

private:
    std::wistringstream m_stream;
};

// A minus sign makes an unsigned number wrap in a stream; here it is refused.
template <class Number>
variant_t readUnsigned(StreamReader& reader, const std::wstring& text)
{
    return text.find(L'-') == std::wstring::npos ? reader.read<Number>(text) : variant_t();
}

bool isHexadecimal(const std::wstring& text)
{
    return text.find_first_not_of(L"1234567890ABCDEFabcdef") == std::wstring::npos;
}

variant_t readUnsignedOrHexadecimal(StreamReader& reader, const std::wstring& text)
{
    const std::wstring front = text.substr(0, 2);
    if ((front == L"0x" || front == L"0X") && isHexadecimal(text.substr(2)))
    {
        return reader.read<vexkit2::u64_t>(text, true);
    }
    if (!text.empty() && (text.back() == L'h' || text.back() == L'H') &&
        isHexadecimal(text.substr(0, text.size() - 1)))
    {
        return reader.read<vexkit2::u64_t>(text.substr(0, text.size() - 1), true);
    }
    return readUnsigned<vexkit2::u64_t>(reader, text);
}

// Texts near to numbers: pieces of them in any order, and numbers at the limits of the types.
class NumberTexts
{
public:
    explicit NumberTexts(unsigned seed) : m_random(seed) {}

    std::wstring next()
    {
        static const wchar_t* const pieces[] = {L"0", L"0",  L"1",  L"2",  L"7", L"9",  L"9",
                                                L"5", L"+",  L"-",  L".",  L"e", L"E",  L" ",
                                                L"x", L"0x", L"h",  L"F",  L"a", L"\t", L",",
                                                L"H", L"0X", L"\n", L"00", L"x", L"'",  L"\u0661"};
        std::wstring text;
        if (below(3) == 0)
        {
            text = limit();
        }
        for (unsigned count = below(4) * below(4); count != 0; --count)
        {
            text.insert(below(static_cast<unsigned>(text.size()) + 1),
                        pieces[below(static_cast<unsigned>(std::size(pieces)))]);
        }
        return text;
    }

    unsigned below(unsigned bound) { return static_cast<unsigned>(m_random() % bound); }

private:
    std::wstring limit()
    {
        static const wchar_t* const limits[] = {L"2147483647",
                                                L"2147483648",
                                                L"-2147483648",
                                                L"-2147483649",
                                                L"4294967295",
                                                L"4294967296",
                                                L"9223372036854775807",
                                                L"9223372036854775808",
                                                L"-9223372036854775808",
                                                L"-9223372036854775809",
                                                L"18446744073709551615",
                                                L"18446744073709551616",
                                                L"0xFFFFFFFFFFFFFFFF",
                                                L"10000000000000000h",
                                                L"1.7976931348623157e308",
                                                L"1.8e308",
                                                L"4.9e-324",
                                                L"2e-324"};
        return limits[below(static_cast<unsigned>(std::size(limits)))];
    }

    std::mt19937_64 m_random;
};

// Equal values of one kind; doubles to the bit.
bool areSame(const variant_t& left, const variant_t& right)
{
    if (left.kind() != right.kind())
    {
        return false;
    }
    if (left.kind() != vexkit2::kind_double)
    {
        return left == right;
    }
    const double numbers[] = {left.get<double>(), right.get<double>()};
    return std::memcmp(&numbers[0], &numbers[1], sizeof(double)) == 0;
}

TEST(ConversionComparison, NumbersConvertAsAStreamReadsThem)
{
    StreamReader reader;
    NumberTexts texts(1);
    int converted = 0;
    for (int count = 0; count < 20000; ++count)
    {
        const std::wstring text = texts.next();
        const struct
        {
            std::int32_t type;
            variant_t expected;
        } rows[] = {{6, reader.read<vexkit2::s32_t>(text)},
                    {7, readUnsigned<vexkit2::u32_t>(reader, text)},
                    {8, reader.read<vexkit2::s64_t>(text)},
                    {9, readUnsignedOrHexadecimal(reader, text)}};
        for (const auto& row : rows)
        {
            ASSERT_TRUE(areSame(convertValue(row.type, text), row.expected))
                << "type " << row.type << ": \"" << toUtf8(text) << '"';
            converted += row.expected.kind() != 17 ? 1 : 0;
        }
    }
    EXPECT_GT(converted, 5000);
}

TEST(ConversionComparison, DoublesConvertAsAStreamReadsThem)
{
    StreamReader reader;
    NumberTexts texts(2);
    int converted = 0;
    for (int count = 0; count < 20000; ++count)
    {
        const std::wstring text = texts.next();
        const variant_t expected = reader.read<double>(text);
        ASSERT_TRUE(areSame(convertValue(11, text), expected)) << '"' << toUtf8(text) << '"';
        converted += expected.kind() != 17 ? 1 : 0;
    }
    EXPECT_GT(converted, 2000);
}

std::string randomDigits(NumberTexts& random, unsigned longest)
{
    std::string digits;
    for (unsigned count = random.below(longest) + 1; count != 0; --count)
    {
        digits.push_back(static_cast<char>('0' + random.below(10)));
    }
    return digits;
}

// Returns what std::strtod reads; null for a number that a double cannot hold.
variant_t readDouble(const std::string& text)
{
    const double number = std::strtod(text.c_str(), nullptr);
    return std::isinf(number) ? variant_t() : variant_t(number);
}

void expectSameDouble(const std::string& text)
{
    const std::wstring wide(text.begin(), text.end());
    ASSERT_TRUE(areSame(convertValue(11, wide), readDouble(text))) << text;
}

TEST(ConversionComparison, LongDoublesAreRoundedCorrectly)
{
    NumberTexts random(3);
    for (int count = 0; count < 20000; ++count)
    {
        std::string text = random.below(2) == 0 ? "-" : "";
        text += randomDigits(random, 30) + "." + randomDigits(random, 30);
        if (random.below(2) == 0)
        {
            text += "e" + std::to_string(static_cast<int>(random.below(700)) - 360);
        }
        ASSERT_NO_FATAL_FAILURE(expectSameDouble(text));
    }
}

// A long row of digits or zeros against a large exponent: which of the two wins decides whether the
// number is too large, too small, or neither.
TEST(ConversionComparison, MagnitudeIsThatOfMantissaAndExponentTogether)
{
    NumberTexts random(4);
    for (int count = 0; count < 4000; ++count)
    {
        const unsigned zeros = random.below(800);
        const int exponent = static_cast<int>(random.below(1600)) - 800;
        const std::string digits = randomDigits(random, 3);
        const std::string row(zeros, '0');
        const std::string mantissa =
            random.below(2) == 0 ? digits + row : row.substr(0, zeros / 9) + "." + row + digits;
        ASSERT_NO_FATAL_FAILURE(expectSameDouble(mantissa + "e" + std::to_string(exponent)));
        ASSERT_NO_FATAL_FAILURE(expectSameDouble(mantissa));
    }
}

TEST(ConversionComparison, ExponentMayBeOfAnyLength)
{
    for (const std::string digits : {"99999999999999999999", "4294967296", "18446744073709551616",
                                     "9223372036854775808", "1099511627776"})
    {
        const std::wstring exponent(digits.begin(), digits.end());
        EXPECT_EQ(convertValue(11, L"1e" + exponent).kind(), 17) << digits;
        EXPECT_EQ(convertValue(11, L"0.001e+" + exponent).kind(), 17) << digits;
        EXPECT_TRUE(areSame(convertValue(11, L"1e-" + exponent), variant_t(0.0))) << digits;
        EXPECT_TRUE(areSame(convertValue(11, L"-1000e-" + exponent), variant_t(-0.0))) << digits;
        EXPECT_TRUE(areSame(convertValue(11, L"0.000e" + exponent), variant_t(0.0))) << digits;
    }
}

} // namespace
