// File name patterns: "*" matches any number of characters, "?" matches one.
#pragma once

#include <string_view>

namespace filesum
{

// Case-sensitive. The texts are UTF-8; each byte that is not part of well-formed UTF-8 is one
// character.
bool matches(std::string_view name, std::string_view pattern);

} // namespace filesum
