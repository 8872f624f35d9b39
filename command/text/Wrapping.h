// Breaking texts into lines of a width in cells.
#ifndef KEXA_COMMAND_TEXT_WRAPPING_H
#define KEXA_COMMAND_TEXT_WRAPPING_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Breaks a UTF-8 text into lines of at most `width` cells.
//
// Lines end at each \n or \r\n of the text, and before a word that finds no room. The blanks
// (spaces and tabs) around a break are dropped; those at the front of a line of the text stay, as
// its indentation, where a word follows them on the line. A tab counts, and is written, as one
// space. A word wider than a line begins on the current line and is broken between graphemes; one
// grapheme that is wider than a line has a line for itself. An empty line of the text gives an
// empty line; no line follows its last line end.
//
// width: above 0.
[[nodiscard]] std::vector<std::string> wrapText(std::string_view text, std::size_t width);

// Appends a text behind a lead, as the entries of a list: the lead begins at the left edge, all
// lines of the text at `indent`. Where fewer than two cells are left between lead and text, the
// text begins on the next line. Without a text the lead stands alone. Every line ends with \n, none
// with a blank.
//
// lead:   one line; it may be wider than `width`.
// indent: in cells; below `width`.
void appendHanging(std::string& target, std::string_view lead, std::string_view text,
                   std::size_t indent, std::size_t width);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
