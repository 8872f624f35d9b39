// The command line of the program.
#pragma once

#include "fetch/Conversions.h"

namespace fetch
{

kexa::Command<Settings> makeCommand();

} // namespace fetch
