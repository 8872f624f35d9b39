// Tests of encoding wide text as UTF-8, and of the round trip.
#include <cstdint>
#include <string>
#include <vector>

#include "support/text/Utf8.h"

#include "CodePoints.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::utf8FromWide;
using kexa_3_3::wideFromUtf8;
using unit::bytesOf;
using unit::encode;
using unit::isScalarValue;
using unit::wideOf;

const std::string replacement = "\xEF\xBF\xBD";

// Returns a text of these units, which may be lone surrogates.
std::wstring units(const std::vector<std::uint32_t>& numbers)
{
    std::wstring text;
    for (const std::uint32_t number : numbers)
    {
        text.push_back(static_cast<wchar_t>(number));
    }
    return text;
}

TEST(Utf8Encoding, BoundariesOfEachLength)
{
    const struct
    {
        std::uint32_t codePoint;
        std::string bytes;
    } rows[] = {{0, std::string(1, '\0')},
                {0x7F, "\x7F"},
                {0x80, "\xC2\x80"},
                {0x7FF, "\xDF\xBF"},
                {0x800, "\xE0\xA0\x80"},
                {0xD7FF, "\xED\x9F\xBF"},
                {0xE000, "\xEE\x80\x80"},
                {0xFEFF, "\xEF\xBB\xBF"},
                {0xFFFF, "\xEF\xBF\xBF"},
                {0x10000, "\xF0\x90\x80\x80"},
                {0x1F600, "\xF0\x9F\x98\x80"},
                {0x10FFFF, "\xF4\x8F\xBF\xBF"}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(bytesOf(utf8FromWide(wideOf({row.codePoint}))), bytesOf(row.bytes));
        EXPECT_EQ(bytesOf(utf8FromWide(wideOf({'a', row.codePoint, 'z'}))),
                  bytesOf("a" + row.bytes + "z"));
    }
    EXPECT_EQ(utf8FromWide({}), "");
}

TEST(Utf8Encoding, LoneSurrogateIsReplaced)
{
    const struct
    {
        std::wstring text;
        std::string bytes;
    } rows[] = {{units({0xD800}), replacement},
                {units({0xDBFF}), replacement},
                {units({0xDC00}), replacement},
                {units({0xDFFF}), replacement},
                {units({0xD83D, 'a'}), replacement + "a"},
                {units({'a', 0xDE00}), "a" + replacement},
                {units({0xDE00, 0xD83D}), replacement + replacement},
                {units({0xD83D, 0xD83D}), replacement + replacement},
                {units({0xDE00, 0xDE00}), replacement + replacement},
                {units({0xD83D, 0xE000}), replacement + "\xEE\x80\x80"}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(bytesOf(utf8FromWide(row.text)), bytesOf(row.bytes));
    }
}

// In UTF-32 each surrogate is ill-formed, in pairs too.
TEST(Utf8Encoding, SurrogatePairIsOneCharacterOnlyInUtf16)
{
    const bool utf16 = sizeof(wchar_t) == 2;
    EXPECT_EQ(bytesOf(utf8FromWide(units({0xD83D, 0xDE00}))),
              bytesOf(utf16 ? "\xF0\x9F\x98\x80" : replacement + replacement));
    EXPECT_EQ(bytesOf(utf8FromWide(units({0xD83D, 0xD83D, 0xDE00, 0xDE00}))),
              bytesOf(utf16 ? replacement + "\xF0\x9F\x98\x80" + replacement
                            : replacement + replacement + replacement + replacement));
}

TEST(Utf8Encoding, NumberBeyondUnicodeIsReplaced)
{
    if (sizeof(wchar_t) == 2)
    {
        GTEST_SKIP() << "a 16-bit unit cannot hold such a number";
    }
    for (const std::uint32_t number : {0x110000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
    {
        EXPECT_EQ(bytesOf(utf8FromWide(units({'a', number, 'z'}))),
                  bytesOf("a" + replacement + "z"))
            << number;
    }
}

TEST(Utf8Encoding, EveryCodePointSurvivesTheRoundTrip)
{
    constexpr std::uint32_t block = 0x400;
    for (std::uint32_t first = 0; first <= 0x10FFFF; first += block)
    {
        std::vector<std::uint32_t> codePoints;
        std::string bytes;
        for (std::uint32_t codePoint = first; codePoint < first + block; ++codePoint)
        {
            if (isScalarValue(codePoint))
            {
                codePoints.push_back(codePoint);
                bytes += encode(codePoint);
            }
        }
        const std::wstring text = wideOf(codePoints);
        ASSERT_TRUE(utf8FromWide(text) == bytes) << "in the block from " << first;
        ASSERT_TRUE(wideFromUtf8(bytes) == text) << "in the block from " << first;
    }
}

} // namespace
