// Conversion between UTF-8 and wide text: UTF-16 where a wide character has 16 bits, else UTF-32.
#pragma once

#include <string>
#include <string_view>

namespace kexa_3_3
{

// What stands for text that is ill-formed.
inline constexpr wchar_t replacement_character = 0xFFFD;

// Ill-formed bytes become U+FFFD, one for each maximal ill-formed part (Unicode Standard, section
// 3.9, "U+FFFD Substitution of Maximal Subparts"). A byte order mark is kept.
[[nodiscard]] std::wstring wideFromUtf8(std::string_view bytes);

// The same into the front of a string whose length grows where it does not suffice, and never
// shrinks: the cheap way to decode many short texts. The answer is a view of what was written.
[[nodiscard]] std::wstring_view wideFromUtf8(std::string_view bytes, std::wstring& room);

// Lone surrogates and numbers beyond U+10FFFF become U+FFFD.
[[nodiscard]] std::string utf8FromWide(std::wstring_view text);

} // namespace kexa_3_3
