// The program of docs/mistakes.md. Its first argument names the program that runs.
#include <cstdio>
#include <cstring>

#include <kexa/command.h>

namespace
{

struct Settings
{
    bool list = false, sum = false, remove = false;
    bool verbose = false;
    std::string mode = "careful";
    std::int32_t offset = 0;
    std::uint8_t level = 3;
    std::uint32_t buffer = 4096;
    double length = 0.5;
    std::vector<int> sizes;
    std::optional<std::filesystem::path> output;
    std::vector<std::filesystem::path> paths;
};

kexa::Command<Settings> makeCommand()
{
    kexa::Command<Settings> command("files", "Lists and sums up files.");
    const auto list = command.action(&Settings::list, "list,l", "Print sizes");
    const auto sum = command.action(&Settings::sum, "sum,s", "Print checksums");
    command.action(&Settings::remove, "remove,delete", "Remove files");
    command.together(list, sum).actionRequired();
    command.option(&Settings::verbose, "verbose,v", "Say what happens");
    command.option(&Settings::mode, "mode,m", "How to read").values({"fast", "careful"});
    command.option(&Settings::offset, "offset", "Where to begin");
    command.option(&Settings::level, "level", "How much");
    command.option(&Settings::buffer, "buffer-size", "Bytes to read at a time").range(1, 1 << 26);
    command.option(&Settings::length, "length", "How long");
    command.option(&Settings::sizes, "sizes", "Sizes of blocks")
        .separator(',')
        .check([](int size) { return size % 2 == 0 ? nullptr : "must be even"; });
    command.option(&Settings::output, "output,o", "Write here").of(sum);
    command.positional(&Settings::paths, "path", "Files and folders").required();
    command.optionFiles();
    return command;
}

struct Verbs
{
    bool list = false, sum = false;
    std::vector<std::string> paths;
};

kexa::Command<Verbs> makeVerbs()
{
    kexa::Command<Verbs> command("sums");
    command.action(&Verbs::list, "list", "Print sizes");
    command.action(&Verbs::sum, "sum", "Print checksums");
    command.positional(&Verbs::paths, "path", "Files");
    command.verbs().actionRequired();
    return command;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "sums") == 0)
    {
        auto command = makeVerbs();
        return kexa::run(command, argc - 1, argv + 1, [](const Verbs&) { std::puts("accepted"); });
    }
    auto command = makeCommand();
    return kexa::run(command, argc - 1, argv + 1, [](const Settings&) { std::puts("accepted"); });
}
