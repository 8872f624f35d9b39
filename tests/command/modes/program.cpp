// Prints what it was given. Compiled in every mode that the layer has.
#include "Shared.h"

#include <cstdio>
#include <cstring>

namespace
{

int print(const Shared& shared)
{
    std::printf("%s %d", shared.verbose ? "verbose" : "quiet", shared.level);
    for (const std::string& word : shared.words)
    {
        std::printf(" <%s>", word.c_str());
    }
    std::printf("\n");
    return shared.level == 9 ? 9 : 0;
}

} // namespace

int main(int argc, char** argv)
{
    kexa::Command<Shared> made = makeCommand();
    kexa::Command<Shared> command = std::move(made);
    if (argc == 2 && std::strcmp(argv[1], "misuse") == 0)
    {
        command.option(&Shared::level, "verbose", "Taken");
    }
    return kexa::run(command, argc, argv, print);
}
