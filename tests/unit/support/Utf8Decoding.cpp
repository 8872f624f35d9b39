// Tests of decoding UTF-8: which bytes are ill-formed, and how many U+FFFD replace them.
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "support/text/Utf8.h"

#include "CodePoints.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::wideFromUtf8;
using unit::bytesOf;
using unit::encode;
using unit::isScalarValue;
using unit::wideOf;

struct Row
{
    std::string bytes;
    std::vector<std::uint32_t> codePoints;
};

constexpr std::uint32_t bad = 0xFFFD;

void expectDecoded(const std::vector<Row>& rows)
{
    for (const Row& row : rows)
    {
        EXPECT_EQ(wideFromUtf8(row.bytes), wideOf(row.codePoints)) << bytesOf(row.bytes);
    }
}

TEST(Utf8Decoding, WellFormedText)
{
    expectDecoded({{"", {}},
                   {"a", {'a'}},
                   {std::string("a\0b", 3), {'a', 0, 'b'}},
                   {"\x7F", {0x7F}},
                   {"\xC2\x80", {0x80}},
                   {"\xDF\xBF", {0x7FF}},
                   {"\xE0\xA0\x80", {0x800}},
                   {"\xED\x9F\xBF", {0xD7FF}},
                   {"\xEE\x80\x80", {0xE000}},
                   {"\xEF\xBF\xBD", {0xFFFD}},
                   {"\xEF\xBF\xBE", {0xFFFE}},
                   {"\xEF\xBF\xBF", {0xFFFF}},
                   {"\xF0\x90\x80\x80", {0x10000}},
                   {"\xF0\x9F\x98\x80", {0x1F600}},
                   {"\xF4\x8F\xBF\xBF", {0x10FFFF}},
                   {"\x4D\xD0\xB0\xE4\xBA\x8C\xF0\x90\x8C\x82", {0x4D, 0x430, 0x4E8C, 0x10302}}});
}

TEST(Utf8Decoding, ByteOrderMarkIsKept)
{
    expectDecoded({{"\xEF\xBB\xBF", {0xFEFF}}, {"\xEF\xBB\xBF\x61", {0xFEFF, 'a'}}});
}

// Tables 3-8 to 3-11 of the Unicode Standard, and the example with mixed faults of older versions.
TEST(Utf8Decoding, ExamplesOfTheUnicodeStandard)
{
    expectDecoded(
        {{"\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41", {bad, bad, bad, bad, bad, bad, bad, bad, 'A'}},
         {"\xED\xA0\x80\xED\xBF\xBF\xED\xAF\x41", {bad, bad, bad, bad, bad, bad, bad, bad, 'A'}},
         {"\xF4\x91\x92\x93\xFF\x41\x80\xBF\x42", {bad, bad, bad, bad, bad, 'A', bad, bad, 'B'}},
         {"\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41", {bad, bad, bad, bad, 'A'}},
         {"\x61\xF1\x80\x80\xE1\x80\xC2\x62\x80\x63\x80\xBF\x64",
          {'a', bad, bad, bad, 'b', bad, 'c', bad, bad, 'd'}}});
}

TEST(Utf8Decoding, OverlongFormsAreOneFaultForEachByte)
{
    expectDecoded({{"\xC0\x80", {bad, bad}},
                   {"\xC1\xBF", {bad, bad}},
                   {"\xE0\x80\x80", {bad, bad, bad}},
                   {"\xE0\x9F\xBF", {bad, bad, bad}},
                   {"\xF0\x80\x80\x80", {bad, bad, bad, bad}},
                   {"\xF0\x8F\xBF\xBF", {bad, bad, bad, bad}}});
}

TEST(Utf8Decoding, SurrogatesAreOneFaultForEachByte)
{
    expectDecoded({{"\xED\xA0\x80", {bad, bad, bad}},
                   {"\xED\xBF\xBF", {bad, bad, bad}},
                   {"\xED\xA0\xBD\xED\xB8\x80", {bad, bad, bad, bad, bad, bad}}});
}

TEST(Utf8Decoding, NumbersBeyondUnicodeAreOneFaultForEachByte)
{
    expectDecoded({{"\xF4\x90\x80\x80", {bad, bad, bad, bad}},
                   {"\xF5\x80\x80\x80", {bad, bad, bad, bad}},
                   {"\xF8\x88\x80\x80\x80", {bad, bad, bad, bad, bad}},
                   {"\xFC\x84\x80\x80\x80\x80", {bad, bad, bad, bad, bad, bad}},
                   {"\xFE", {bad}},
                   {"\xFF\xFF", {bad, bad}}});
}

TEST(Utf8Decoding, SequenceCutShortIsOneFault)
{
    expectDecoded({{"\xC2", {bad}},
                   {"\xE1", {bad}},
                   {"\xE1\x80", {bad}},
                   {"\xF0\x9F", {bad}},
                   {"\xF0\x9F\x98", {bad}},
                   {"\xF0\x9F\x98\x61", {bad, 'a'}},
                   {"\xE2\x82\xC3\xA9", {bad, 0xE9}},
                   {"\xC3\xC3\xA9", {bad, 0xE9}}});
}

TEST(Utf8Decoding, LoneContinuationBytesAreOneFaultEach)
{
    expectDecoded({{"\x80", {bad}},
                   {"\xBF\x80", {bad, bad}},
                   {"a\x80z", {'a', bad, 'z'}},
                   {"\xC3\xA9\xA9", {0xE9, bad}}});
}

// A reference decoder. It holds all proper prefixes of well-formed sequences, which it finds by
// encoding every code point.
class Sequences
{
public:
    Sequences()
    {
        for (std::uint32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint)
        {
            // The 64 sequences that differ only in their last byte have equal prefixes.
            if (isScalarValue(codePoint) && codePoint % 64 == 0)
            {
                const std::string bytes = encode(codePoint);
                for (std::size_t length = 1; length < bytes.size(); ++length)
                {
                    m_prefixes.insert(bytes.substr(0, length));
                }
            }
        }
    }

    [[nodiscard]] std::wstring decode(std::string_view bytes) const
    {
        std::wstring text;
        while (!bytes.empty())
        {
            std::size_t length = 1;
            while (length < bytes.size() && isPrefix(bytes.substr(0, length)) &&
                   (isWhole(bytes.substr(0, length + 1)) || isPrefix(bytes.substr(0, length + 1))))
            {
                ++length;
            }
            const std::string_view part = bytes.substr(0, length);
            text += wideOf({isWhole(part) ? unit::decodeWhole(part) : bad});
            bytes.remove_prefix(length);
        }
        return text;
    }

private:
    [[nodiscard]] bool isPrefix(std::string_view bytes) const
    {
        return m_prefixes.find(bytes) != m_prefixes.end();
    }
    [[nodiscard]] bool isWhole(std::string_view bytes) const
    {
        const std::uint32_t codePoint = unit::decodeWhole(bytes);
        return isScalarValue(codePoint) && encode(codePoint) == bytes;
    }

    std::set<std::string, std::less<>> m_prefixes;
};

TEST(Utf8Decoding, EveryShortSequenceOfBoundaryBytesMatchesTheReference)
{
    const std::string alphabet = "\x41\x7F\x80\x8F\x90\x9F\xA0\xBF\xC1\xC2\xE0\xE1\xED\xF0\xF4\xF5";
    const Sequences sequences;
    for (std::size_t length = 1; length <= 4; ++length)
    {
        std::vector<std::size_t> digits(length, 0);
        for (bool more = true; more;)
        {
            std::string bytes;
            for (const std::size_t digit : digits)
            {
                bytes.push_back(alphabet[digit]);
            }
            ASSERT_EQ(wideFromUtf8(bytes), sequences.decode(bytes)) << bytesOf(bytes);
            more = false;
            for (std::size_t& digit : digits)
            {
                digit = (digit + 1) % alphabet.size();
                if (digit != 0)
                {
                    more = true;
                    break;
                }
            }
        }
    }
}

TEST(Utf8Decoding, AsciiRunsOfAnyLengthMayPrecedeAndFollow)
{
    const Sequences sequences;
    for (const char* const middle :
         {"", "\xC3\xA9", "\xF0\x9F\x98\x80", "\xE2\x82", "\x80", "\xFF"})
    {
        for (std::size_t before = 0; before < 20; ++before)
        {
            for (std::size_t behind = 0; behind < 20; ++behind)
            {
                const std::string bytes =
                    std::string(before, 'a') + middle + std::string(behind, '\x7F');
                ASSERT_EQ(wideFromUtf8(bytes), sequences.decode(bytes)) << bytesOf(bytes);
                const std::string twice = bytes + middle;
                ASSERT_EQ(wideFromUtf8(twice), sequences.decode(twice)) << bytesOf(twice);
            }
        }
    }
}

TEST(Utf8DecodingIntoBuffer, ReturnsAViewOfTheDecodedText)
{
    std::wstring buffer;
    for (const char* const bytes :
         {"a text that is rather long", "b", "", "\xC3\xA9", "\xF0\x9F\x98\x80\xFF",
          "and another text, which is longer than all of the texts before it", "c"})
    {
        const std::wstring_view text = wideFromUtf8(bytes, buffer);
        EXPECT_EQ(text, wideFromUtf8(bytes)) << bytes;
        EXPECT_EQ(text.data(), buffer.data());
    }
}

TEST(Utf8DecodingIntoBuffer, BufferGrowsAndNeverShrinks)
{
    std::wstring buffer;
    std::size_t before = 0;
    for (const std::size_t length : {0U, 5U, 100U, 3U, 0U, 99U, 101U, 1000U, 1U})
    {
        EXPECT_EQ(wideFromUtf8(std::string(length, 'a'), buffer), std::wstring(length, L'a'));
        EXPECT_GE(buffer.size(), before);
        EXPECT_GE(buffer.size(), length);
        before = buffer.size();
    }
}

// Growing to the exact size would fill the whole buffer again for each text that is one byte
// longer.
TEST(Utf8DecodingIntoBuffer, BufferGrowsGeometrically)
{
    std::wstring buffer;
    std::size_t before = 0;
    std::size_t changes = 0;
    std::string bytes;
    for (int length = 1; length <= 10000; ++length)
    {
        bytes.push_back('a');
        ASSERT_EQ(wideFromUtf8(bytes, buffer).size(), bytes.size());
        changes += buffer.size() == before ? 0U : 1U;
        before = buffer.size();
    }
    EXPECT_LE(changes, 20U);
}

TEST(Utf8DecodingIntoBuffer, TextBehindTheViewIsIgnored)
{
    std::wstring buffer(50, L'?');
    EXPECT_EQ(wideFromUtf8("ab", buffer), L"ab");
    EXPECT_EQ(buffer.size(), 50U);
    EXPECT_EQ(wideFromUtf8("\xE2\x82\xAC\xE2\x82", buffer), L"\u20AC\uFFFD");
    EXPECT_EQ(wideFromUtf8("", buffer), L"");
    EXPECT_EQ(buffer.size(), 50U);
}

} // namespace
