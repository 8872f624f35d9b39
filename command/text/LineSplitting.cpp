#include "LineSplitting.h"

#include <utility>

#include "../Inline.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Reads the pieces of which arguments are made, from the front of a line to its end.
class LineReader
{
public:
    explicit LineReader(std::string_view line) noexcept : m_line(line) {}

    [[nodiscard]] bool atEnd() const noexcept { return m_position == m_line.size(); }
    [[nodiscard]] char current() const noexcept { return m_line[m_position]; }
    [[nodiscard]] std::size_t position() const noexcept { return m_position; }
    void skip() noexcept { ++m_position; }

    // A backslash and a line feed join two lines: nothing stands there.
    bool skipJoint() noexcept
    {
        const bool joint = m_line.substr(m_position, 2) == "\\\n";
        m_position += joint ? 2U : 0U;
        return joint;
    }

    // Reads what is quoted, or one character, and appends what it stands for. Returns false where
    // the line ends before the quote does.
    bool readPiece(std::string& argument)
    {
        switch (current())
        {
        case '\'':
            return readSingleQuotes(argument);
        case '"':
            return readDoubleQuotes(argument);
        case '\\':
            if (m_position + 1 < m_line.size())
            {
                skip();
            }
            [[fallthrough]];
        default:
            argument.push_back(current());
            skip();
            return true;
        }
    }

private:
    bool readSingleQuotes(std::string& argument)
    {
        const std::size_t end = m_line.find('\'', m_position + 1);
        if (end == std::string_view::npos)
        {
            return false;
        }
        argument.append(m_line.substr(m_position + 1, end - m_position - 1));
        m_position = end + 1;
        return true;
    }

    bool readDoubleQuotes(std::string& argument)
    {
        for (skip(); !atEnd(); skip())
        {
            if (current() == '"')
            {
                skip();
                return true;
            }
            if (current() == '\\' && m_position + 1 < m_line.size())
            {
                const char next = m_line[m_position + 1];
                if (next == '\n')
                {
                    skip();
                    continue;
                }
                if (next == '\\' || next == '"' || next == '$' || next == '`')
                {
                    skip();
                }
            }
            argument.push_back(current());
        }
        return false;
    }

    std::string_view m_line;
    std::size_t m_position = 0;
};

KEXA_COMMAND_LOCAL bool isLineSpace(char character) noexcept
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

KEXA_COMMAND_INLINE SplitLine splitLine(std::string_view line)
{
    SplitLine result;
    LineReader reader(line);
    std::string argument;
    bool inside = false;
    while (!reader.atEnd())
    {
        if (reader.skipJoint())
        {
            continue;
        }
        if (isLineSpace(reader.current()))
        {
            if (inside)
            {
                result.arguments.push_back(std::move(argument));
                argument.clear();
                inside = false;
            }
            reader.skip();
            continue;
        }
        inside = true;
        const std::size_t begin = reader.position();
        if (!reader.readPiece(argument))
        {
            result.unterminatedQuote = begin;
            return result;
        }
    }
    if (inside)
    {
        result.arguments.push_back(std::move(argument));
    }
    return result;
}

} // namespace detail
} // namespace v1
} // namespace kexa
