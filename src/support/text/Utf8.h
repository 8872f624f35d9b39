// Conversion between UTF-8 and wide text: UTF-16 where a wide character has 16 bits, else UTF-32.
#pragma once

#include <string>
#include <string_view>

namespace kexa_3_3
{

// Replaces ill-formed text in both directions.
inline constexpr wchar_t replacement_character = 0xFFFD;

// Decodes UTF-8. Ill-formed bytes become U+FFFD, one for each maximal ill-formed part (Unicode
// Standard, section 3.9, "U+FFFD Substitution of Maximal Subparts"). A byte order mark is kept.
[[nodiscard]] std::wstring wideFromUtf8(std::string_view bytes);

// Decodes UTF-8 into the front of `buffer` and returns a view of the decoded text, valid until the
// buffer changes. The buffer grows geometrically and never shrinks, so that decoding many short
// texts with one buffer rarely allocates.
[[nodiscard]] std::wstring_view wideFromUtf8(std::string_view bytes, std::wstring& buffer);

// Encodes wide text. Lone surrogates and numbers beyond U+10FFFF become U+FFFD.
[[nodiscard]] std::string utf8FromWide(std::wstring_view text);

} // namespace kexa_3_3
