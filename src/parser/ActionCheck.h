// Checks that the actions and options of a command line go together.
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

// Visits every name under which the result holds an occurrence, which a default is not. If several
// names are wrong, the first in alphabetical order is reported.
//
// compatible: groups of actions that may be given together.
// message:    receives what is wrong when 2 is returned.
// Returns 0; 2; or 1 when the result holds a name that is not declared.
[[nodiscard]] result_t checkActions(const OptionResultTable& result,
                                    const RegisteredOptionStorage& options,
                                    const ActionGroups& compatible, std::wstring& message);

} // namespace kexa_3_3
