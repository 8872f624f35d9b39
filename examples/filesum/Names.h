// File names as they stand in lines of text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace filesum
{

// Writes a backslash, a line feed and a carriage return as "\\", "\n" and "\r".
std::string escapedName(std::string_view name);

// The reverse; nothing where a backslash is followed by something else.
std::optional<std::string> unescapedName(std::string_view text);

// At most 40 characters of a text of unknown origin, in quotes; what is not printable ASCII, an
// escape sequence for the terminal say, becomes "?".
std::string quotedExcerpt(std::string_view text);

} // namespace filesum
