// The program of docs/coming-from.md.
#include <cstdio>

#include <kexa/command.h>

namespace
{

struct Settings
{
    bool verbose = false;
    int number = 0;
    std::string text;
    std::vector<std::string> files;
};

kexa::Command<Settings> makeCommand()
{
    kexa::Command<Settings> command("tool");
    command.conventions(kexa::Conventions::posix); // bundles, glued values, --text= as empty text
    command.abbreviations(false);                  // names in full
    command.option(&Settings::verbose, "verbose,v", "Say what happens");
    command.option(&Settings::number, "number,n", "A number");
    command.option(&Settings::text, "text", "A text");
    command.positional(&Settings::files, "file", "Files");
    return command;
}

} // namespace

int main(int argc, char** argv)
{
    auto command = makeCommand();
    return kexa::run(command, argc, argv,
                     [](const Settings& s)
                     {
                         std::printf("%s, %d, '%s', %zu files\n", s.verbose ? "verbose" : "quiet",
                                     s.number, s.text.c_str(), s.files.size());
                     });
}
