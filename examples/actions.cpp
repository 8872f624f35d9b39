// Actions: the command line of a program for notes. A command line has one action, or several that
// are declared as going together. An option is accepted by the actions that it names, else by all.
#include <cstdio>
#include <kexa/command.h>

struct Settings
{
    bool add = false, find = false, count = false, remove = false;
    std::string text;
    std::vector<unsigned> numbers;
    std::filesystem::path file = "notes.txt";
};

void print(const Settings& settings)
{
    std::printf("%s%s%s%s in %s:", settings.add ? "add" : "", settings.find ? "find" : "",
                settings.count ? "count" : "", settings.remove ? "remove" : "",
                settings.file.string().c_str());
    for (const unsigned number : settings.numbers)
    {
        std::printf(" %u", number);
    }
    std::printf(" %s\n", settings.text.c_str());
}

int main(int argc, char** argv)
{
    kexa::Command<Settings> command("actions", "Keeps notes.");
    const auto add = command.action(&Settings::add, "add", "Add a note");
    const auto find = command.action(&Settings::find, "find", "Print notes");
    const auto count = command.action(&Settings::count, "count", "Count notes");
    const auto remove = command.action(&Settings::remove, "remove", "Remove notes");
    command.together(find, count).actionRequired();
    command.option(&Settings::text, "text", "Words of the note").of(add, find, count);
    command.option(&Settings::numbers, "id", "Numbers of notes").of(remove).required();
    command.option(&Settings::file, "file", "Where the notes are").environment("NOTES_FILE");
    return kexa::run(command, argc, argv, print);
}
