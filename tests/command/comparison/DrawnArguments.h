// Arguments for drawn declarations: most of them nearly right.
#ifndef KEXA_TESTS_COMMAND_COMPARISON_DRAWN_ARGUMENTS_H
#define KEXA_TESTS_COMMAND_COMPARISON_DRAWN_ARGUMENTS_H

#include <string>
#include <vector>

#include "DrawnCommand.h"

namespace toolbox
{

std::vector<std::string> drawArguments(Choices& choices, const DrawnDeclarations& declarations);

} // namespace toolbox

#endif
