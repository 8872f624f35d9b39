// Splits a text into arguments, one from each line.
#pragma once

#include <string_view>

#include "recognition/ArgumentQueue.h"

namespace kexa_3_3
{

// Leading white space (of the classic locale) is skipped, trailing carriage returns are dropped,
// other trailing blanks stay. Blank lines and lines that begin with ';' or '#' give nothing. There
// is no quoting. The arguments are views into the text.
[[nodiscard]] Arguments splitArguments(std::wstring_view text);

} // namespace kexa_3_3
