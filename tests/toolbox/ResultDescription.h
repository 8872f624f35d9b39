// The contents of a parse result, as a text or as lists.
#ifndef KEXA_TESTS_TOOLBOX_RESULT_DESCRIPTION_H
#define KEXA_TESTS_TOOLBOX_RESULT_DESCRIPTION_H

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include <kexa/kexa.h>

namespace faults
{

using Names = std::vector<const wchar_t*>;

// Formats the results of all queries for these names. Positions are relative to firstPosition, so
// that repeated parses have equal texts.
std::wstring describe(kexa_3_3::IParseResult& result, const Names& names,
                      std::int32_t firstPosition);

// The values of each name, without defaults, and the left-over arguments under the empty name.
using Contents = std::map<std::wstring, std::vector<std::wstring>>;
Contents readContents(kexa_3_3::IParseResult& result, const Names& names);

// Returns the contents of a result that was filled with both in this order.
Contents operator+(Contents first, const Contents& second);

} // namespace faults

#endif
