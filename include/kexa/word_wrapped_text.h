/// @file
/// A paragraph laid out for a console: a lead, then text wrapped at an indentation.
#ifndef KEXA_WORD_WRAPPED_TEXT_H
#define KEXA_WORD_WRAPPED_TEXT_H

#include <cstddef>
#include <string>

#include "kexa/export.h"

namespace kexa_3_3
{

/// A laid-out paragraph. One object is used by one thread at a time. It holds a std::wstring that
/// the library fills: host and library must be built with the same standard library, as described
/// at IParser::addCompatibleActions.
class WordWrappedText
{
public:
    /// Lays the paragraph out. The texts are copied.
    ///
    /// @param lead       what stands before the text on the first line, such as a name column; null
    ///                   counts as empty. With an empty text it is not written at all.
    /// @param text       the text to wrap; null counts as empty. Lines break at blanks and at line
    ///                   feeds. A longer word is broken between any two units, though never between
    ///                   the halves of a surrogate pair while a line holds at least two units.
    /// @param indent     the column, from 0, at which wrapped text begins, in wide characters
    /// @param lineWidth  one more than the length of the longest line that is built from text, in
    ///                   wide characters, line feed not counted
    /// @throws std::out_of_range  where no character of the text fits on a line (`lineWidth` is too
    ///                            small for `indent`)
    /// @throws std::bad_alloc     where memory runs out
    KEXA_API WordWrappedText(const wchar_t* lead, const wchar_t* text, std::size_t indent,
                             std::size_t lineWidth);
    KEXA_API ~WordWrappedText();

    /// Copies the lines.
    WordWrappedText(const WordWrappedText&) = default;
    /// Copies the lines.
    WordWrappedText& operator=(const WordWrappedText&) = default;

    /// Returns the laid-out lines, each ended by a line feed; never null. Owned by the object;
    /// valid until the object is assigned to or destroyed.
    KEXA_API const wchar_t* getText() const;

private:
    std::wstring m_text;
};

} // namespace kexa_3_3

#endif
