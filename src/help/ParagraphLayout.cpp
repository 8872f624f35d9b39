#include "help/ParagraphLayout.h"

#include <algorithm>
#include <stdexcept>

#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

[[noreturn]] void failForWantOfRoom()
{
    throw std::out_of_range("no character of the text fits on a line");
}

// A character outside the basic plane is not broken apart while a line has room for both halves.
[[nodiscard]] std::size_t keepPairWhole(std::wstring_view text, std::size_t length) noexcept
{
    const bool splits = wide_is_utf16 && length > 1 && length < text.size() &&
                        isHighSurrogate(text[length - 1]) && isLowSurrogate(text[length]);
    return splits ? length - 1 : length;
}

// How many characters at the front of the text go on a line with room for `room`. The text is empty
// or begins with neither a blank nor a line feed.
[[nodiscard]] std::size_t chunkLength(std::wstring_view text, std::size_t room)
{
    // Looked for where it matters only: the whole of a long text would be searched for every line.
    const std::wstring_view fitting = text.substr(0, room);
    const std::size_t length = std::min(fitting.find(L'\n'), fitting.size());
    if (length == text.size())
    {
        return length;
    }
    if (length == 0)
    {
        failForWantOfRoom();
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
    if (lineWidth <= indent)
    {
        failForWantOfRoom();
    }
    const std::size_t width = lineWidth - indent;
    std::size_t lineLength = leadLength;
    while (!text.empty())
    {
        if (text.front() == L' ' || text.front() == L'\n')
        {
            text.remove_prefix(1);
            if (!text.empty())
            {
                continue;
            }
        }
        std::size_t room = width - 1;
        if (lineLength < indent)
        {
            out.append(indent - lineLength, L' ');
        }
        else if (room > lineLength - indent + 1)
        {
            room = indent + width - 2 - lineLength;
            out.push_back(L' ');
        }
        else
        {
            // The line is full before any text: with no indentation every line would be.
            if (lineLength == 0 && !text.empty())
            {
                failForWantOfRoom();
            }
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
