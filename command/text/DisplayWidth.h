// How many cells of a terminal a text takes.
#ifndef KEXA_COMMAND_TEXT_DISPLAY_WIDTH_H
#define KEXA_COMMAND_TEXT_DISPLAY_WIDTH_H

#include <cstddef>
#include <string_view>

namespace kexa
{
inline namespace v1
{
namespace detail
{

// What a reader sees as one character: a code point and what continues it.
struct Grapheme
{
    std::size_t length; // in bytes, above 0
    std::size_t cells;
};

// Returns the grapheme at the front of a UTF-8 text, which is not empty.
//
// East Asian wide and fullwidth characters and emoji take two cells; combining marks, format and
// control characters none; what is ill-formed, one for each maximal ill-formed part, and all others
// one. One grapheme of two cells each are: emoji joined by U+200D, an emoji with a skin tone, an
// emoji made so by U+FE0F (keycaps too), and a flag of two regional indicators. Terminals that join
// less show more cells.
[[nodiscard]] Grapheme firstGrapheme(std::string_view text) noexcept;

// The cells of all graphemes of a UTF-8 text. Tabs and line feeds count none.
[[nodiscard]] std::size_t displayWidth(std::string_view text) noexcept;

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
