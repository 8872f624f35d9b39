// A command that is declared in one unit and used in another.
#ifndef KEXA_TESTS_COMMAND_MODES_SHARED_H
#define KEXA_TESTS_COMMAND_MODES_SHARED_H

#include <kexa/command.h>

struct Shared
{
    bool verbose = false;
    int level = 3;
    std::vector<std::string> words;
};

kexa::Command<Shared> makeCommand();

#endif
