// Converts every sequence of up to four bytes at the boundaries of UTF-8 to wide text and back,
// which must give equal bytes. Well-formed sequences must become their characters.
#include <cstddef>
#include <cstdio>
#include <string>

#include "common/Text.h"

namespace
{

constexpr unsigned char alphabet[] = {0x00, 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF,
                                      0xC0, 0xC1, 0xC2, 0xDF, 0xE0, 0xE1, 0xEC, 0xED, 0xEE,
                                      0xEF, 0xF0, 0xF1, 0xF3, 0xF4, 0xF5, 0xFF};

std::size_t failures = 0;
std::size_t sequences = 0;

void expect(bool holds, const char* rule, const std::string& bytes)
{
    if (!holds)
    {
        ++failures;
        std::printf("%s:", rule);
        for (const char byte : bytes)
        {
            std::printf(" %02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        }
        std::printf("\n");
    }
}

void checkRoundTrips(const std::string& bytes)
{
    ++sequences;
    expect(example::toBytes(example::toWide(bytes)) == bytes, "changed on the way", bytes);
    if (bytes.size() == 4)
    {
        return;
    }
    for (const unsigned char byte : alphabet)
    {
        checkRoundTrips(bytes + static_cast<char>(byte));
    }
}

struct Row
{
    std::string bytes;
    std::wstring text;
};

void checkTable()
{
    const std::wstring bytes_of_a_surrogate = {wchar_t(0xDCED), wchar_t(0xDCA0), wchar_t(0xDC80)};
    const std::wstring bytes_of_a_long_slash = {wchar_t(0xDCC0), wchar_t(0xDCAF)};
    const std::wstring byte_and_letter = {wchar_t(0xDCFF), L'A'};
    const std::wstring cut_short = {wchar_t(0xDCF0), wchar_t(0xDC9F), wchar_t(0xDC98)};
    const Row rows[] = {{"A\x7F", L"A\x7F"},
                        {"\xC2\x80\xDF\xBF", L"\x80\x7FF"},
                        {"\xE0\xA0\x80\xEF\xBF\xBD", L"\x800\xFFFD"},
                        {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", L"\U00010000\U0010FFFF"},
                        {"\xF0\x9F\x98\x80", L"\U0001F600"},
                        {"\xED\xA0\x80", bytes_of_a_surrogate},
                        {"\xC0\xAF", bytes_of_a_long_slash},
                        {"\xFF"
                         "A",
                         byte_and_letter},
                        {"\xF0\x9F\x98", cut_short}};
    for (const Row& row : rows)
    {
        expect(example::toWide(row.bytes) == row.text, "wrong wide text", row.bytes);
        expect(example::toBytes(row.text) == row.bytes, "wrong bytes", row.bytes);
    }
    const std::wstring no_bytes = {wchar_t(0xDC7F), wchar_t(0xDD00), wchar_t(0xD800)};
    expect(example::toBytes(no_bytes) == "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD",
           "lone surrogates that stand for no byte", "");
}

} // namespace

int main()
{
    checkRoundTrips("");
    checkTable();
    std::printf("%zu sequences, %zu failures\n", sequences, failures);
    return failures == 0 ? 0 : 1;
}
