// Positional arguments, and what is left over: a program that starts another one in a folder. What
// is left over begins with the first plain argument behind the others, or with "--".
#include <cstdio>
#include <kexa/command.h>

struct Settings
{
    unsigned times = 1;
    std::filesystem::path folder;
    std::string program;
    std::vector<std::string> arguments;
};

void print(const Settings& settings)
{
    std::printf("in %s, %u times: %s", settings.folder.string().c_str(), settings.times,
                settings.program.c_str());
    for (const std::string& argument : settings.arguments)
    {
        std::printf(" '%s'", argument.c_str());
    }
    std::printf("\n");
}

int main(int argc, char** argv)
{
    kexa::Command<Settings> command("positional_arguments", "Runs a program in a folder.");
    command.option(&Settings::times, "times,t", "How often").range(1, 100);
    command.positional(&Settings::folder, "folder", "Where to run it").required();
    command.positional(&Settings::program, "program", "What to run").required();
    command.rest(&Settings::arguments, "argument", "Passed on unread, options included");
    return kexa::run(command, argc, argv, print);
}
