#include <cstdio>
#include <kexa/command.h>

struct Settings
{
    bool verbose = false;
    int level = 3;
    std::string mode = "careful";
    std::vector<std::filesystem::path> files;
};

int main(int argc, char** argv)
{
    kexa::Command<Settings> command("pack", "Packs files.");
    command.option(&Settings::verbose, "verbose,v", "Say what happens");
    command.option(&Settings::level, "level,l", "How small").range(1, 9);
    command.option(&Settings::mode, "mode", "How to read").values({"fast", "careful"});
    command.positional(&Settings::files, "file", "Files to pack").required();
    return kexa::run(
        command, argc, argv,
        [](const Settings& s)
        { std::printf("%zu files, level %d, %s\n", s.files.size(), s.level, s.mode.c_str()); });
}
