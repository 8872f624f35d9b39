// Subcommands: a verb hands the words behind it to a command of its own. Verbs can be abbreviated
// and nested.
#include <cstdio>
#include <kexa/command.h>

struct Add
{
    std::string name, address;
    bool fetch = false;
};

struct Remove
{
    std::string name;
};

struct Remote
{
    std::optional<Add> add;
    std::optional<Remove> remove;
};

struct Settings
{
    bool verbose = false;
    std::optional<Remote> remote;
};

void work(const Settings& settings)
{
    if (settings.remote && settings.remote->add)
    {
        const Add& add = *settings.remote->add;
        std::printf("add %s at %s%s\n", add.name.c_str(), add.address.c_str(),
                    add.fetch ? " and fetch" : "");
    }
    else if (settings.remote && settings.remote->remove)
    {
        std::printf("remove %s\n", settings.remote->remove->name.c_str());
    }
    std::printf("%s", settings.verbose ? "done\n" : "");
}

int main(int argc, char** argv)
{
    kexa::Command<Add> add("add", "Adds a repository.");
    add.option(&Add::fetch, "fetch,f", "Fetch from it at once");
    add.positional(&Add::name, "name", "Its name").required();
    add.positional(&Add::address, "address", "Where it is").required();

    kexa::Command<Remove> remove("remove", "Removes a repository.");
    remove.positional(&Remove::name, "name", "Its name").required();

    kexa::Command<Remote> remote("remote", "Manages other repositories.");
    remote.subcommand(&Remote::add, add);
    remote.subcommand(&Remote::remove, remove);
    remote.actionRequired();

    kexa::Command<Settings> command("subcommands", "Keeps versions.");
    command.option(&Settings::verbose, "verbose,v", "Say what happens");
    command.subcommand(&Settings::remote, remote);
    command.actionRequired();
    return kexa::run(command, argc, argv, work);
}
