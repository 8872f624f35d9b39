// Lays a paragraph out: a lead, then text wrapped at an indentation.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kexa_3_3
{

// Appends the lines of the paragraph to `out`; an empty text appends nothing.
//
// indent:    the column at which wrapped text begins.
// lineWidth: one more than the longest line that is built from the text.
//
// A blank or line feed at the start of what remains of the text is dropped, one at a time; a text
// that ends with one gives one more line, of the indentation alone. A word longer than a line is
// broken. Throws std::out_of_range where not a single character of the text fits on a line.
void appendParagraph(std::wstring& out, std::wstring_view lead, std::wstring_view text,
                     std::size_t indent, std::size_t lineWidth);

// The same behind a lead that `out` ends with, for a text that is not empty. leadLength: the length
// of the lead.
void continueParagraph(std::wstring& out, std::size_t leadLength, std::wstring_view text,
                       std::size_t indent, std::size_t lineWidth);

} // namespace kexa_3_3
