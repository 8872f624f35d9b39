// A text in both encodings.
#ifndef KEXA_TESTS_COMMAND_ENCODING_ROW_H
#define KEXA_TESTS_COMMAND_ENCODING_ROW_H

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "text/Encoding.h"

struct EncodingRow
{
    std::string bytes;
    std::wstring text;
};

// The row, and longer ones where whole groups of ASCII bytes lie before, between and behind.
inline std::vector<EncodingRow> amidAscii(const EncodingRow& row)
{
    return {row,
            {"12345678" + row.bytes, L"12345678" + row.text},
            {row.bytes + "123456789", row.text + L"123456789"},
            {"123" + row.bytes + "1234567812345678" + row.bytes,
             L"123" + row.text + L"1234567812345678" + row.text}};
}

inline void expectRoundTrip(const EncodingRow& row)
{
    for (const EncodingRow& longer : amidAscii(row))
    {
        EXPECT_EQ(kexa::detail::widen(longer.bytes), longer.text) << longer.bytes;
        EXPECT_EQ(kexa::detail::narrow(longer.text), longer.bytes) << longer.bytes;
    }
}

#endif
