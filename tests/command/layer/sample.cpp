// The program that the guide begins with.
#include <kexa/command.h>

enum class Mode { fast, careful };

struct Settings
{
    bool list = false, sum = false, verbose = false;
    Mode mode = Mode::careful;
    std::uint32_t buffer = 1 << 18;
    std::vector<std::string> include;
    std::optional<std::filesystem::path> output;
    std::vector<std::filesystem::path> paths;
};
static int work(const Settings& settings) { return settings.list ? 0 : 1; }
int main(int argc, char** argv)
{
    kexa::Command<Settings> command("filesum", "Lists and sums up files.");
    const auto list = command.action(&Settings::list, "list,l", "Print sizes");
    const auto sum = command.action(&Settings::sum, "sum,s", "Print checksums");
    command.together(list, sum);
    command.option(&Settings::verbose, "verbose,v", "Say what happens");
    command.option(&Settings::mode, "mode,m", "How to read").values({{"fast", Mode::fast}, {"careful", Mode::careful}});
    command.option(&Settings::buffer, "buffer-size", "Bytes to read at a time").range(1, 1 << 26);
    command.option(&Settings::include, "include,i", "Take only these").of(list, sum);
    command.option(&Settings::output, "output,o", "Write here").of(sum);
    command.positional(&Settings::paths, "path", "Files and folders").required();
    return kexa::run(command, argc, argv, [](const Settings& settings) { return work(settings); });
}
