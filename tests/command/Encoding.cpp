// UTF-8 to wide text and back.
#include "text/Encoding.h"

#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "EncodingRow.h"

using namespace kexa::detail;

TEST(Encoding, WellFormedTextMakesTheRoundTrip)
{
    using namespace std::string_literals;
    const EncodingRow rows[] = {
        {"", L""},
        {"a", L"a"},
        {"\0"s, L"\0"s},
        {"\x7F", L"\x7F"},
        {"\xC2\x80", L"\x80"},
        {"\xDF\xBF", L"\x7FF"},
        {"gr\xC3\xB6\xC3\x9F"
         "e",
         L"gr\u00F6\u00DFe"},
        {"\xE0\xA0\x80", L"\u0800"},
        {"\xE6\x97\xA5\xE6\x9C\xAC", L"\u65E5\u672C"},
        {"\xED\x9F\xBF\xEE\x80\x80", L"\uD7FF\uE000"},
        {"\xEF\xBB\xBF", L"\uFEFF"},
        {"\xEF\xBF\xBF", L"\uFFFF"},
        {"\xF0\x90\x80\x80", L"\U00010000"},
        {"\xF0\x9F\x98\x80", L"\U0001F600"},
        {"\xF4\x8F\xBF\xBF", L"\U0010FFFF"},
    };
    for (const EncodingRow& row : rows)
    {
        expectRoundTrip(row);
    }
}

TEST(Encoding, EveryCodePointMakesTheRoundTrip)
{
    std::wstring text;
    for (std::uint32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint)
    {
        if (codePoint >= 0xD800 && codePoint <= 0xDFFF)
        {
            continue;
        }
        if (sizeof(wchar_t) == 4 || codePoint <= 0xFFFF)
        {
            text.push_back(static_cast<wchar_t>(codePoint));
        }
        else
        {
            text.push_back(static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10)));
            text.push_back(static_cast<wchar_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF)));
        }
    }
    const std::string bytes = narrow(text);
    EXPECT_EQ(bytes.size(), 0x80U + 2 * 0x780U + 3 * 0xF000U + 4 * 0x100000U);
    EXPECT_TRUE(widen(bytes) == text);
}

TEST(Encoding, AppendingKeepsWhatIsThere)
{
    std::wstring wide = L"a";
    appendWide(wide, "\xC3\xA9");
    EXPECT_EQ(wide, L"a\u00E9");
    std::string bytes = "a";
    appendNarrow(bytes, L"\u00E9");
    EXPECT_EQ(bytes, "a\xC3\xA9");
}
