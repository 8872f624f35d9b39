// The command line of the tool.
#pragma once

#include <kexa/command.h>

#include "filesum/Settings.h"

namespace filesum
{

kexa::Command<Settings> makeCommand();

} // namespace filesum
