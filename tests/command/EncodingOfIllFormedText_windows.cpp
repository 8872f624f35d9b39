// Bytes that are no UTF-8, and wide texts that are no UTF-16.
#include "text/Encoding.h"

#include <string>

#include <gtest/gtest.h>

#include "EncodingRow.h"

using namespace kexa::detail;

TEST(EncodingOfIllFormedText, LoneSurrogatesMakeTheRoundTrip)
{
    const EncodingRow rows[] = {
        {"\xED\xA0\x80", {static_cast<wchar_t>(0xD800)}},
        {"\xED\xAF\xBF"
         "a",
         {static_cast<wchar_t>(0xDBFF), L'a'}},
        {"\xED\xBF\xBF", {static_cast<wchar_t>(0xDFFF)}},
        {"\xED\xB0\x80\xED\xA0\x80", {static_cast<wchar_t>(0xDC00), static_cast<wchar_t>(0xD800)}},
    };
    for (const EncodingRow& row : rows)
    {
        // Not doubled: two halves side by side are one character.
        EXPECT_EQ(widen(row.bytes), row.text);
        EXPECT_EQ(narrow(row.text), row.bytes);
    }
}

TEST(EncodingOfIllFormedText, EachMaximalIllFormedPartIsReplaced)
{
    const EncodingRow rows[] = {
        {"\x80", L"\uFFFD"},
        {"\xE9t\xE9", L"\uFFFDt\uFFFD"},
        {"\xE4\xB8", L"\uFFFD"},
        {"\xF0\x9F\x98"
         "a",
         L"\uFFFD"
         L"a"},
        {"\xC0\xAF", L"\uFFFD\uFFFD"},
        {"\xED\xA0", L"\uFFFD\uFFFD"},
        {"\xF4\x90\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD"},
    };
    for (const EncodingRow& row : rows)
    {
        for (const EncodingRow& longer : amidAscii(row))
        {
            EXPECT_EQ(widen(longer.bytes), longer.text) << longer.bytes;
        }
    }
}
