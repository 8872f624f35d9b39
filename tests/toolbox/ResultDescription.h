// All that a parse result holds, as text or as lists to add up.
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

// Everything that the queries answer for these names, one fact in each line. Positions count from
// firstPosition, so that the same parse gives the same text at any time.
std::wstring describe(kexa_3_3::IParseResult& result, const Names& names,
                      std::int32_t firstPosition);

// What was stored by occurrences, defaults left out: the texts of each name, and under the empty
// name the left-over arguments.
using Contents = std::map<std::wstring, std::vector<std::wstring>>;
Contents readContents(kexa_3_3::IParseResult& result, const Names& names);

// The contents of a result that both were stored into, one after the other.
Contents operator+(Contents first, const Contents& second);

} // namespace faults

#endif
