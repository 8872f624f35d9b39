// UTF-8, which the command layer speaks, from and to wide text, which the library speaks.
//
// What no encoding allows makes the round trip where it may name a file:
// - Where a wide character has 32 bits: a byte b that belongs to no well-formed UTF-8 is the lone
//   surrogate U+DC00 + b (PEP 383), in which form the library opens option files of such names. So
//   narrow(widen(bytes)) == bytes for all bytes.
// - Where it has 16 bits: a lone surrogate is its three bytes of generalized UTF-8 (WTF-8). So
//   widen(narrow(text)) == text for all texts. Ill-formed bytes, those of a surrogate excepted, are
//   U+FFFD, one for each maximal ill-formed part.
#ifndef KEXA_COMMAND_TEXT_ENCODING_H
#define KEXA_COMMAND_TEXT_ENCODING_H

#include <string>
#include <string_view>

namespace kexa
{
inline namespace v1
{
namespace detail
{

[[nodiscard]] std::wstring widen(std::string_view text);

// A number that is no code point, and with 32 bits a surrogate that stands for no byte, is written
// as U+FFFD.
[[nodiscard]] std::string narrow(std::wstring_view text);

// Append the conversion of `text` to `target`, which it does not overlap.
void appendWide(std::wstring& target, std::string_view text);
void appendNarrow(std::string& target, std::wstring_view text);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
