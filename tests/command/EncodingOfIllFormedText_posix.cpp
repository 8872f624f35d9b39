// Bytes that are no UTF-8, and wide texts that are no UTF-32.
#include "text/Encoding.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "EncodingRow.h"

using namespace kexa::detail;

TEST(EncodingOfIllFormedText, EachIllFormedByteIsALowSurrogate)
{
    const EncodingRow rows[] = {
        {"\x80", {0xDC80}},
        {"\xFF", {0xDCFF}},
        {"\xE9t\xE9", {0xDCE9, L't', 0xDCE9}},
        {"\xC3", {0xDCC3}},                                     // cut short
        {"\xE4\xB8", {0xDCE4, 0xDCB8}},                         // cut short
        {"\xF0\x9F\x98", {0xDCF0, 0xDC9F, 0xDC98}},             // cut short
        {"\xC0\xAF", {0xDCC0, 0xDCAF}},                         // overlong
        {"\xED\xB2\x80", {0xDCED, 0xDCB2, 0xDC80}},             // a surrogate
        {"\xF4\x90\x80\x80", {0xDCF4, 0xDC90, 0xDC80, 0xDC80}}, // beyond Unicode
        {"\xE4\xB8\xC3\xA9", {0xDCE4, 0xDCB8, 0xE9}},           // the next one is well-formed
    };
    for (const EncodingRow& row : rows)
    {
        expectRoundTrip(row);
    }
}

TEST(EncodingOfIllFormedText, AllShortByteSequencesMakeTheRoundTrip)
{
    // One byte of each kind that the table of well-formed sequences tells apart.
    const std::string alphabet = "a\x80\x8F\x90\x9F\xA0\xBF\xC1\xC3\xE0\xE4\xED\xF0\xF1\xF4\xF5";
    for (std::size_t number = 0;
         number < alphabet.size() * alphabet.size() * alphabet.size() * alphabet.size(); ++number)
    {
        std::string bytes;
        for (std::size_t rest = number; bytes.size() < 4; rest /= alphabet.size())
        {
            bytes.push_back(alphabet[rest % alphabet.size()]);
        }
        ASSERT_EQ(narrow(widen(bytes)), bytes);
    }
}

TEST(EncodingOfIllFormedText, OtherSurrogatesAndNumbersAreReplaced)
{
    for (const long number : {0xD800L, 0xDBFFL, 0xDC00L, 0xDC7FL, 0xDD00L, 0xDFFFL, 0x110000L, -1L})
    {
        EXPECT_EQ(narrow(std::wstring(1, static_cast<wchar_t>(number))), "\xEF\xBF\xBD") << number;
    }
}
