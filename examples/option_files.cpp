// Option files: "--option-file=NAME" adds the arguments in the file, one in each line, behind those
// of the command line. An error says in which line it is.
#include <cstdio>
#include <kexa/command.h>

struct Settings
{
    int level = 0;
    std::vector<std::string> tags;
};

void print(const kexa::Parsed<Settings>& parsed)
{
    std::printf("level %d", parsed->level);
    for (const std::string& tag : parsed->tags)
    {
        std::printf(", tag %s", tag.c_str());
    }
    std::printf("\n");
    for (const kexa::Occurrence& each : parsed.occurrences())
    {
        std::printf("  %s '%s' of argument %d", each.option.c_str(), each.value.c_str(),
                    each.index);
        each.line == 0 ? std::printf("\n") : std::printf(", %s:%d\n", each.file.c_str(), each.line);
    }
}

int main(int argc, char** argv)
{
    kexa::Command<Settings> command("option_files");
    command.option(&Settings::level, "level", "How much to say");
    command.option(&Settings::tags, "tag", "Tags of the run").separator(',');
    command.optionFiles("Read further arguments from a file");
    return kexa::run(command, argc, argv, print);
}
