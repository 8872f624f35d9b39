#include "help/ParagraphLayout.h"

#include <algorithm>
#include <cassert>
#include <stdexcept>

#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

[[noreturn]] void throwLineTooNarrow()
{
    throw std::out_of_range("no character of the text fits on a line");
}

// Returns the length of a line so that it does not end between the halves of a surrogate pair. Only
// a line with room for a single unit still splits a pair.
[[nodiscard]] std::size_t keepPairWhole(std::wstring_view text, std::size_t length) noexcept
{
    const bool splits = wide_is_utf16 && length > 1 && length < text.size() &&
                        isHighSurrogate(text[length - 1]) && isLowSurrogate(text[length]);
    // cppcheck-suppress knownConditionTrueFalse ; true where a wide character has 16 bits
    return splits ? length - 1 : length;
}

[[nodiscard]] bool startsWithSeparator(std::wstring_view text) noexcept
{
    return !text.empty() && (text.front() == L' ' || text.front() == L'\n');
}

// Returns how many characters at the front of the text fill a line with room for `room` characters.
// Precondition: the text does not start with a separator.
[[nodiscard]] std::size_t chunkLength(std::wstring_view text, std::size_t room)
{
    assert(!startsWithSeparator(text));
    // The search for a line feed is limited to what fits. Searching all of the text for each line
    // would be quadratic.
    const std::wstring_view fitting = text.substr(0, room);
    const std::size_t length = std::min(fitting.find(L'\n'), fitting.size());
    if (length == text.size())
    {
        return length;
    }
    if (length == 0)
    {
        throwLineTooNarrow();
    }
    const bool insideWord =
        text[length] != L' ' && text[length] != L'\n' && text[length - 1] != L' ';
    if (!insideWord)
    {
        return length;
    }
    const std::size_t blank = text.substr(0, length).rfind(L' ');
    return blank == std::wstring_view::npos ? keepPairWhole(text, length) : blank;
}

} // namespace

void appendParagraph(std::wstring& out, std::wstring_view lead, std::wstring_view text,
                     std::size_t indent, std::size_t lineWidth)
{
    if (!text.empty())
    {
        out.append(lead);
        continueParagraph(out, lead.size(), text, indent, lineWidth);
    }
}

void continueParagraph(std::wstring& out, std::size_t leadLength, std::wstring_view text,
                       std::size_t indent, std::size_t lineWidth)
{
    assert(!text.empty());
    assert(leadLength <= out.size());
    if (lineWidth <= indent)
    {
        throwLineTooNarrow();
    }
    std::size_t lineLength = leadLength; // of the line that `out` ends with
    while (!text.empty())
    {
        if (startsWithSeparator(text))
        {
            text.remove_prefix(1);
            if (!text.empty())
            {
                continue;
            }
            // A separator at the end of the text adds one more line.
        }
        std::size_t room = 0;
        if (lineLength < indent)
        {
            out.append(indent - lineLength, L' ');
            room = lineWidth - indent - 1;
        }
        else if (lineLength + 2 < lineWidth)
        {
            out.push_back(L' ');
            room = lineWidth - lineLength - 2;
        }
        else if (lineLength == 0 && !text.empty())
        {
            // An empty line without indentation has no room, so no following line has any.
            throwLineTooNarrow();
        }
        else
        {
            out.push_back(L'\n');
            lineLength = 0;
            continue;
        }
        const std::size_t length = chunkLength(text, room);
        out.append(text.substr(0, length));
        out.push_back(L'\n');
        text.remove_prefix(length);
        lineLength = 0;
    }
}

} // namespace kexa_3_3
