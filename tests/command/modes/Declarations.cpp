#include "Shared.h"

kexa::Command<Shared> makeCommand()
{
    kexa::Command<Shared> command("shared", "Is declared in another unit.");
    command.option(&Shared::verbose, "verbose,v", "Say more");
    command.option(&Shared::level, "level,l", "How much")
        .range(1, 9)
        .check([](int level) { return level == 5 ? "is not wanted" : nullptr; });
    command.positional(&Shared::words, "word", "What to say");
    return command;
}
