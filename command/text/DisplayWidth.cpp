#include "DisplayWidth.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <iterator>

#include "../Inline.h"
#include "CodePoints.h"
#include "DisplayWidthTable.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

inline constexpr char32_t zero_width_joiner = 0x200D;
inline constexpr char32_t emoji_presentation_selector = 0xFE0F;

// Returns the properties of a code point; see the table.
KEXA_COMMAND_LOCAL std::uint32_t displayProperties(char32_t codePoint) noexcept
{
    // The first run that begins behind the code point. 0xFF is above all properties.
    const std::uint32_t key = (static_cast<std::uint32_t>(codePoint) << 8) | 0xFF;
    const auto behind =
        std::upper_bound(std::begin(display_width_runs), std::end(display_width_runs), key);
    return *std::prev(behind) & 0xFF;
}

KEXA_COMMAND_LOCAL bool isRegionalIndicator(char32_t codePoint) noexcept
{
    return codePoint >= 0x1F1E6 && codePoint <= 0x1F1FF;
}

KEXA_COMMAND_LOCAL bool isSkinTone(char32_t codePoint) noexcept
{
    return codePoint >= 0x1F3FB && codePoint <= 0x1F3FF;
}

// Takes the code points of one grapheme, one after another.
class GraphemeReader
{
public:
    GraphemeReader(char32_t first, std::uint32_t properties) noexcept
        : m_cells(properties & display_cells), m_last(first), m_properties(properties),
          m_pictographic((properties & display_pictographic) != 0)
    {
    }

    [[nodiscard]] std::size_t cells() const noexcept { return m_cells; }

    // Returns whether a code point continues the grapheme, and if so, takes it.
    bool take(char32_t codePoint) noexcept
    {
        const std::uint32_t properties = displayProperties(codePoint);
        if (isRegionalIndicator(codePoint))
        {
            if (!isRegionalIndicator(m_last) || m_flag)
            {
                return false;
            }
            m_flag = true;
        }
        else if (m_last == zero_width_joiner && m_pictographic &&
                 (properties & display_pictographic) != 0)
        {
            m_cells = std::max(m_cells, std::size_t{properties & display_cells});
        }
        else if (isSkinTone(codePoint))
        {
            if ((m_properties & display_pictographic) == 0)
            {
                return false;
            }
            m_cells = 2;
        }
        else if ((properties & display_extends) == 0)
        {
            return false;
        }
        else if (codePoint == emoji_presentation_selector && (m_properties & display_emoji) != 0)
        {
            m_cells = 2;
        }
        else
        {
            m_cells += properties & display_cells;
        }
        m_last = codePoint;
        m_properties = properties;
        return true;
    }

private:
    std::size_t m_cells;
    char32_t m_last;            // the code point taken last
    std::uint32_t m_properties; // and its properties
    bool m_pictographic;        // of the first code point
    bool m_flag = false;        // two regional indicators are complete
};

KEXA_COMMAND_INLINE Grapheme firstGrapheme(std::string_view text) noexcept
{
    assert(!text.empty());
    const auto isPrintableAscii = [](char byte)
    {
        return byte >= ' ' && byte <= '~';
    };
    if (isPrintableAscii(text[0]) && (text.size() == 1 || isPrintableAscii(text[1])))
    {
        return {1, 1}; // the usual case: nothing continues it
    }
    const DecodedCodePoint first = decodeCodePoint(text);
    const std::uint32_t properties = displayProperties(first.value);
    std::size_t length = first.length;
    if ((properties & (display_cells | display_extends)) == 0)
    {
        return {length, 0}; // nothing continues a control character
    }
    GraphemeReader reader(first.value, properties);
    while (length < text.size())
    {
        const DecodedCodePoint next = decodeCodePoint(text.substr(length));
        if (!next.wellFormed || !reader.take(next.value))
        {
            break;
        }
        length += next.length;
    }
    return {length, reader.cells()};
}

KEXA_COMMAND_INLINE std::size_t displayWidth(std::string_view text) noexcept
{
    std::size_t cells = 0;
    while (!text.empty())
    {
        const Grapheme grapheme = firstGrapheme(text);
        cells += grapheme.cells;
        text.remove_prefix(grapheme.length);
    }
    return cells;
}

} // namespace detail
} // namespace v1
} // namespace kexa
