// Whether the actions and options of a command line go together.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "kexa/result.h"

namespace kexa_3_3
{

class OptionResultTable;
class RegisteredOptionStorage;

using ActionGroups = std::vector<std::set<std::wstring>>;

// Looks at every name under which the result holds an occurrence; defaults alone do not count. The
// names count in alphabetical order where the order decides which of two is reported.
//
// compatible: groups of actions that may be given together.
// message:    receives what is wrong where the answer is 2.
// Answers 0; 2; or 1 where the result holds a name that the registry does not know.
[[nodiscard]] result_t checkActions(const OptionResultTable& result,
                                    const RegisteredOptionStorage& options,
                                    const ActionGroups& compatible, std::wstring& message);

} // namespace kexa_3_3
