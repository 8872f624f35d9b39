// How wide help may be.
#ifndef KEXA_COMMAND_PLATFORM_TERMINAL_WIDTH_H
#define KEXA_COMMAND_PLATFORM_TERMINAL_WIDTH_H

#include <cstddef>

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Returns the columns of the terminal that standard output goes to, on Windows those of the
// console's window; 0 where it is no terminal, or does not tell. The variable COLUMNS has no say:
// shells do not export it, and where someone does, it is the width of another time.
[[nodiscard]] std::size_t terminalColumns() noexcept;

// The width of help for a terminal of so many columns: 60 to 120, and 80 where it is not known (0).
[[nodiscard]] constexpr std::size_t clampHelpWidth(std::size_t columns) noexcept
{
    if (columns == 0)
    {
        return 80;
    }
    return columns < 60 ? 60 : columns > 120 ? 120 : columns;
}

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
