// UTF-8 texts by code points.
#ifndef KEXA_COMMAND_TEXT_CODE_POINTS_H
#define KEXA_COMMAND_TEXT_CODE_POINTS_H

#include <cstddef>
#include <string>
#include <string_view>

namespace kexa
{
inline namespace v1
{
namespace detail
{

inline constexpr char32_t replacement_character = 0xFFFD;

// A byte that belongs to no well-formed sequence, as a code point: the surrogates U+DC80 to U+DCFF,
// which well-formed UTF-8 cannot hold. Python calls it surrogateescape (PEP 383).
constexpr char32_t escapedByte(char byte) noexcept
{
    return 0xDC00 + char32_t{static_cast<unsigned char>(byte)};
}

struct DecodedCodePoint
{
    char32_t value;     // U+FFFD where ill-formed
    std::size_t length; // in bytes; of the maximal ill-formed part where ill-formed
    bool wellFormed;
};

// Decodes the code point at the front of a text, which is not empty. Overlong forms, surrogates and
// numbers beyond U+10FFFF are ill-formed.
[[nodiscard]] DecodedCodePoint decodeCodePoint(std::string_view text) noexcept;

// Appends a code point, at most U+10FFFF; surrogates are encoded like others, in three bytes.
void appendCodePoint(std::string& text, char32_t codePoint);

// All code points of a text, ill-formed bytes by escapedByte.
[[nodiscard]] std::u32string codePointsOf(std::string_view text);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
