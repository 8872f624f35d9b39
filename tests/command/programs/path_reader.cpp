// A program with a narrow main that shows the values of its command line and the files that it
// names, on the standard output in UTF-8.
#include <fstream>
#include <iterator>
#include <string>

#include "kexa/command.h"

#include "platform/StandardStreams.h"

namespace
{

struct Settings
{
    std::string size;
    std::optional<std::filesystem::path> output;
    std::vector<std::filesystem::path> paths;
};

std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return file ? std::string(std::istreambuf_iterator<char>(file), {}) : "not there";
}

} // namespace

int main(int argc, char** argv)
{
    kexa::Command<Settings> command("path_reader");
    command.option(&Settings::size, "gr\u00F6\u00DFe,\u65E5\u672C,\U0001F600", "");
    command.option(&Settings::output, "output,o", "");
    command.positional(&Settings::paths, "path", "");
    command.optionFiles();
    return kexa::run(command, argc, argv,
                     [](const Settings& settings)
                     {
                         std::string text = "'" + settings.size + "'";
                         if (settings.output)
                         {
                             text += " to " + contentOf(*settings.output);
                         }
                         for (const std::filesystem::path& path : settings.paths)
                         {
                             text += " " + contentOf(path);
                         }
                         using namespace kexa::detail;
                         return writeText(StandardStream::output, text + "\n") ? 0 : 1;
                     });
}
