// The command line of PosixSettings, as getopt_long reads it.
#ifndef KEXA_TESTS_COMMAND_LAYER_GETOPT_LONG_POSIX_H
#define KEXA_TESTS_COMMAND_LAYER_GETOPT_LONG_POSIX_H

#include <string>
#include <vector>

// Returns the settings as show() does, "error" where getopt_long finds one. Texts that are not
// given are "unset".
std::string runGetopt(std::vector<std::string> arguments);

#endif
