// The program that the guide begins with.
#include <kexa/command.h>

enum class Mode
{
    fast,
    careful
};

struct Settings
{
    bool list = false, sum = false, verbose = false;
    Mode mode = Mode::careful;
    std::uint32_t buffer = 1 << 18;
    std::vector<std::string> include;
    std::optional<std::filesystem::path> output;
    std::vector<std::filesystem::path> paths;
};
static int work(const Settings& s)
{
    std::printf("list=%d sum=%d verbose=%d mode=%d buffer=%u include=%zu", s.list, s.sum, s.verbose,
                (int)s.mode, s.buffer, s.include.size());
    for (auto& i : s.include)
        std::printf("[%s]", i.c_str());
    std::printf(" output=%s paths=", s.output ? s.output->string().c_str() : "-");
    for (auto& p : s.paths)
        std::printf("[%s]", p.string().c_str());
    std::printf("\n");
    return 0;
}
int main(int argc, char** argv)
{
    kexa::Command<Settings> command("filesum", "Lists and sums up files.");
    const auto list = command.action(&Settings::list, "list,l", "Print sizes");
    const auto sum = command.action(&Settings::sum, "sum,s", "Print checksums");
    command.together(list, sum);
    command.option(&Settings::verbose, "verbose,v", "Say what happens");
    command.option(&Settings::mode, "mode,m", "How to read")
        .values({{"fast", Mode::fast}, {"careful", Mode::careful}});
    command.option(&Settings::buffer, "buffer-size", "Bytes to read at a time").range(1, 1 << 26);
    command.option(&Settings::include, "include,i", "Take only these").of(list, sum);
    command.option(&Settings::output, "output,o", "Write here").of(sum);
    command.positional(&Settings::paths, "path", "Files and folders").required();
    return kexa::run(command, argc, argv, [](const Settings& settings) { return work(settings); });
}
