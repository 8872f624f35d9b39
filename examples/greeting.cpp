// The smallest program: a struct, one option, and what is done with it.
#include <cstdio>
#include <kexa/command.h>

struct Settings
{
    std::string name = "World";
};

int main(int argc, char** argv)
{
    kexa::Command<Settings> command("greeting", "Greets somebody.");
    command.option(&Settings::name, "name,n", "Whom to greet");
    return kexa::run(command, argc, argv,
                     [](const Settings& settings)
                     { std::printf("Hello, %s!\n", settings.name.c_str()); });
}
