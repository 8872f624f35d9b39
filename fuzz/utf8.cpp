// Fuzzes the conversion of UTF-8 to wide text and back: compares it with the reference decoder.
#include "support/text/Utf8.h"

#include <cstring>
#include <string>

#include "Fuzzing.h"
#include "NaiveUtf8.h"

namespace
{

bool isCharacter(std::uint32_t code)
{
    return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

// Decodes the bytes as UTF-8. The decoded text must survive a round trip.
void checkDecoding(const std::string& bytes)
{
    const std::wstring text = kexa_3_3::wideFromUtf8(bytes);
    fuzzing::requireEqual(text, naive::decodeUtf8(bytes),
                          "bytes are decoded as by the reference decoder");
    const std::string again = kexa_3_3::utf8FromWide(text);
    fuzzing::requireEqual(kexa_3_3::wideFromUtf8(again), text,
                          "a decoded text survives the round trip");
    if (text.find(kexa_3_3::replacement_character) == std::wstring::npos)
    {
        fuzzing::require(again == bytes, "well-formed bytes survive the round trip");
    }
}

// Encodes the bytes as wide characters, most of which are no code points.
void checkEncoding(const std::string& bytes)
{
    std::wstring units(bytes.size() / sizeof(wchar_t), L'\0');
    std::memcpy(units.data(), bytes.data(), units.size() * sizeof(wchar_t));
    const std::string encoded = kexa_3_3::utf8FromWide(units);
    const std::wstring decoded = naive::decodeUtf8(encoded);
    fuzzing::require(kexa_3_3::utf8FromWide(decoded) == encoded, "encoded text is well-formed");
    if constexpr (sizeof(wchar_t) == 4)
    {
        fuzzing::require(decoded.size() == units.size(), "each unit becomes one character");
        for (std::size_t position = 0; position < units.size(); ++position)
        {
            const bool possible = isCharacter(static_cast<std::uint32_t>(units[position]));
            fuzzing::require(decoded[position] ==
                                 (possible ? units[position] : kexa_3_3::replacement_character),
                             "invalid units become U+FFFD, all others are unchanged");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    checkDecoding(bytes);
    checkEncoding(bytes);
    return 0;
}
