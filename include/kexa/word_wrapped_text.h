// A paragraph laid out for a console: a lead, then text wrapped at an indentation.
#ifndef KEXA_WORD_WRAPPED_TEXT_H
#define KEXA_WORD_WRAPPED_TEXT_H

#include <cstddef>
#include <string>

#include "kexa/export.h"

namespace kexa_3_3
{

class WordWrappedText
{
public:
    // Lays the paragraph out.
    //
    // lead:      what stands before the text on the first line (a name column, say); null counts as
    //            empty. With an empty text it is not written at all.
    // text:      the text to wrap; null counts as empty. Lines break at blanks and at line feeds; a
    //            longer word is broken hard, though never between the halves of a surrogate pair
    //            while a line holds at least two units.
    // indent:    the column, from 0, at which wrapped text begins, in wide characters.
    // lineWidth: one more than the longest line that is built from text, line feed not counted, in
    //            wide characters.
    //
    // Throws std::out_of_range where no character of the text fits on a line (`lineWidth` too
    // small for `indent`), and std::bad_alloc.
    KEXA_API WordWrappedText(const wchar_t* lead, const wchar_t* text, std::size_t indent,
                             std::size_t lineWidth);
    KEXA_API ~WordWrappedText();

    WordWrappedText(const WordWrappedText&) = default;
    WordWrappedText& operator=(const WordWrappedText&) = default;

    // The laid-out lines, each ended by a line feed. Belongs to the object; valid until the object
    // is assigned to or destroyed.
    KEXA_API const wchar_t* getText() const;

private:
    std::wstring m_text;
};

} // namespace kexa_3_3

#endif
