// UTF-8 to wide text and back, against the definition of well-formed sequences.
#include "support/Utf8.h"

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

// Whatever the bytes: what comes out is the text by definition, which survives the way back.
void checkDecoding(const std::string& bytes)
{
    const std::wstring text = kexa_3_3::wideFromUtf8(bytes);
    fuzzing::requireEqual(text, naive::decodeUtf8(bytes), "bytes decode by the definition");
    const std::string again = kexa_3_3::utf8FromWide(text);
    fuzzing::requireEqual(kexa_3_3::wideFromUtf8(again), text, "a decoded text survives");
    if (text.find(kexa_3_3::replacement_character) == std::wstring::npos)
    {
        fuzzing::require(again == bytes, "well-formed bytes come back as they were");
    }
}

// The bytes taken as wide characters, mostly impossible ones.
void checkEncoding(const std::string& bytes)
{
    std::wstring units(bytes.size() / sizeof(wchar_t), L'\0');
    std::memcpy(units.data(), bytes.data(), units.size() * sizeof(wchar_t));
    const std::string encoded = kexa_3_3::utf8FromWide(units);
    const std::wstring decoded = naive::decodeUtf8(encoded);
    fuzzing::require(kexa_3_3::utf8FromWide(decoded) == encoded, "what is encoded is well-formed");
    if constexpr (sizeof(wchar_t) == 4)
    {
        fuzzing::require(decoded.size() == units.size(), "each number gives one character");
        for (std::size_t position = 0; position < units.size(); ++position)
        {
            const bool possible = isCharacter(static_cast<std::uint32_t>(units[position]));
            fuzzing::require(decoded[position] ==
                                 (possible ? units[position] : kexa_3_3::replacement_character),
                             "what is no character becomes U+FFFD, everything else stays");
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
