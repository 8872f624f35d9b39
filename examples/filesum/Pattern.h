// File name patterns: "*" stands for any characters, "?" for one.
#pragma once

#include <string_view>

namespace filesum
{

// Case counts. The texts are UTF-8 (or bytes of no encoding, each a character of its own).
bool matches(std::string_view name, std::string_view pattern);

} // namespace filesum
