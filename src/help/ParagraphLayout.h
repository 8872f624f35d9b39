// Layout of a paragraph: a lead, followed by text that is wrapped and indented.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kexa_3_3
{

// Appends the lead and the wrapped text to `out`. Appends nothing, not even the lead, if the text
// is empty.
//
// lead:      begins the first line. It is never wrapped.
// indent:    number of blanks before the text of each line (0: none, but see below).
// lineWidth: exclusive limit for the length of a line of text, indentation included.
//
// Lines break at blanks and line feeds, which are dropped at the start of a line. A lead of at
// least `indent` characters is followed by one blank, as is every line if `indent` is 0. A text
// that ends with a blank or line feed adds one more line without text. A word longer than a line is
// broken. Throws std::out_of_range if no character fits on a line; `out` may have grown by then.
void appendParagraph(std::wstring& out, std::wstring_view lead, std::wstring_view text,
                     std::size_t indent, std::size_t lineWidth);

// Appends the wrapped text to `out`, which already ends with the lead. Otherwise as
// appendParagraph().
//
// leadLength: length of the lead, at most that of `out`.
// text:       not empty.
void continueParagraph(std::wstring& out, std::size_t leadLength, std::wstring_view text,
                       std::size_t indent, std::size_t lineWidth);

} // namespace kexa_3_3
