#include "filesum/Names.h"

#include <cstddef>

namespace filesum
{

std::string escapedName(std::string_view name)
{
    std::string text;
    for (const char character : name)
    {
        switch (character)
        {
        case '\\':
            text += "\\\\";
            break;
        case '\n':
            text += "\\n";
            break;
        case '\r':
            text += "\\r";
            break;
        default:
            text += character;
        }
    }
    return text;
}

std::optional<std::string> unescapedName(std::string_view text)
{
    std::string name;
    for (std::size_t index = 0; index < text.size(); ++index)
    {
        if (text[index] != '\\')
        {
            name += text[index];
            continue;
        }
        ++index;
        const char escaped = index < text.size() ? text[index] : '\0';
        if (escaped != '\\' && escaped != 'n' && escaped != 'r')
        {
            return std::nullopt;
        }
        name += escaped == 'n' ? '\n' : escaped == 'r' ? '\r' : '\\';
    }
    return name;
}

std::string quotedExcerpt(std::string_view text)
{
    constexpr std::size_t most = 40;
    std::string excerpt = "'";
    for (const char character : text.substr(0, most))
    {
        const bool printable = character >= ' ' && character <= '~';
        excerpt += printable ? character : '?';
    }
    return excerpt + (text.size() > most ? "...'" : "'");
}

} // namespace filesum
