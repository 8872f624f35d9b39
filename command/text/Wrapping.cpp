#include "Wrapping.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "../Inline.h"
#include "DisplayWidth.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_LOCAL std::string_view withoutTrailingBlanks(std::string_view text) noexcept
{
    const std::size_t last = text.find_last_not_of(" \t");
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

// Removes the front of a text up to `length` and returns it.
KEXA_COMMAND_LOCAL std::string_view takeFront(std::string_view& text, std::size_t length) noexcept
{
    const std::string_view front = text.substr(0, length);
    text.remove_prefix(front.size());
    return front;
}

// Fills lines with words.
class LineFiller
{
public:
    LineFiller(std::vector<std::string>& lines, std::size_t width) : m_lines(lines), m_width(width)
    {
    }

    // Adds a line of the text, which has no line end.
    void addLine(std::string_view text)
    {
        while (!text.empty())
        {
            const std::size_t blanks = std::min(text.find_first_not_of(" \t"), text.size());
            text.remove_prefix(blanks);
            const std::string_view word = takeFront(text, text.find_first_of(" \t"));
            addWord(blanks, word);
        }
        endLine();
    }

private:
    void addWord(std::size_t blanks, std::string_view word)
    {
        const std::size_t cells = displayWidth(word);
        if (m_cells + blanks + cells <= m_width)
        {
            m_line.append(blanks, ' ').append(word);
            m_cells += blanks + cells;
        }
        else if (cells <= m_width)
        {
            breakLine();
            m_line = word;
            m_cells = cells;
        }
        else
        {
            addWideWord(blanks, word);
        }
    }

    void addWideWord(std::size_t blanks, std::string_view word)
    {
        if (m_cells + blanks + firstGrapheme(word).cells <= m_width)
        {
            m_line.append(blanks, ' ');
            m_cells += blanks;
        }
        else
        {
            breakLine();
        }
        while (!word.empty())
        {
            const Grapheme grapheme = firstGrapheme(word);
            if (m_cells + grapheme.cells > m_width)
            {
                breakLine();
            }
            m_line.append(takeFront(word, grapheme.length));
            m_cells += grapheme.cells;
        }
    }

    // Ends the line before a word, unless nothing stands on it.
    void breakLine()
    {
        if (!m_line.empty())
        {
            endLine();
        }
    }

    void endLine()
    {
        m_lines.push_back(std::move(m_line));
        m_line.clear();
        m_cells = 0;
    }

    std::vector<std::string>& m_lines;
    const std::size_t m_width;
    std::string m_line; // the one being filled
    std::size_t m_cells = 0;
};

KEXA_COMMAND_INLINE std::vector<std::string> wrapText(std::string_view text, std::size_t width)
{
    assert(width > 0);
    std::vector<std::string> lines;
    LineFiller filler(lines, width);
    while (!text.empty())
    {
        std::string_view line = takeFront(text, text.find('\n'));
        text.remove_prefix(std::min<std::size_t>(text.size(), 1));
        if (!line.empty() && line.back() == '\r')
        {
            line.remove_suffix(1);
        }
        filler.addLine(withoutTrailingBlanks(line));
    }
    return lines;
}

KEXA_COMMAND_INLINE void appendHanging(std::string& target, std::string_view lead,
                                       std::string_view text, std::size_t indent, std::size_t width)
{
    assert(indent < width);
    constexpr std::size_t least_distance = 2;
    lead = withoutTrailingBlanks(lead);
    std::size_t column = displayWidth(lead);
    target.append(lead);
    if (column > 0 && column + least_distance > indent)
    {
        target.push_back('\n');
        column = 0;
    }
    const std::vector<std::string> lines = wrapText(text, width - indent);
    for (const std::string& line : lines)
    {
        if (!line.empty())
        {
            target.append(indent - column, ' ').append(line);
        }
        target.push_back('\n');
        column = 0;
    }
    if (lines.empty() && column > 0)
    {
        target.push_back('\n');
    }
}

} // namespace detail
} // namespace v1
} // namespace kexa
