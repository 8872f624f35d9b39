// File names in lines of text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace filesum
{

// Replaces a backslash, a line feed and a carriage return by "\\", "\n" and "\r".
std::string escapedName(std::string_view name);

// Reverts escapedName(). Returns nothing if a backslash is followed by another character.
std::optional<std::string> unescapedName(std::string_view text);

// Returns at most 40 characters of an untrusted text, in quotes. Characters outside printable ASCII
// become '?', because they could be escape sequences of the terminal.
std::string quotedExcerpt(std::string_view text);

} // namespace filesum
