// Typed values, lists, maps and values by name: the command line of a photo converter, which prints
// the settings.
#include <cstdio>
#include <kexa/command.h>

enum class Format
{
    jpeg,
    png,
    pnm
};

struct Settings
{
    std::vector<std::uint16_t> widths = {640, 1280};
    int rotate = 0;
    std::uint64_t mask = 0xFF;
    double gamma = 2.2;
    bool metadata = true;
    Format format = Format::jpeg;
    std::optional<std::string> title;
    std::map<std::string, std::string> tags;
    std::string color = "auto";
    int verbosity = 0;
};

void print(const Settings& settings)
{
    for (const unsigned width : settings.widths)
    {
        std::printf("width %u\n", width);
    }
    constexpr const char* formats[] = {"jpeg", "png", "pnm"};
    std::printf("rotate %d, mask %llx, gamma %g, format %s, color %s, verbosity %d%s\n",
                settings.rotate, static_cast<unsigned long long>(settings.mask), settings.gamma,
                formats[static_cast<int>(settings.format)], settings.color.c_str(),
                settings.verbosity, settings.metadata ? ", metadata kept" : "");
    if (settings.title)
    {
        std::printf("title '%s'\n", settings.title->c_str());
    }
    for (const auto& [key, value] : settings.tags)
    {
        std::printf("tag %s is %s\n", key.c_str(), value.c_str());
    }
}

int main(int argc, char** argv)
{
    kexa::Command<Settings> command("values_and_lists", "Converts photos.");
    command.option(&Settings::widths, "width,w", "Widths in pixels").separator(',').range(16, 8192);
    command.option(&Settings::rotate, "rotate", "Degrees").values({-90, 0, 90, 180});
    command.option(&Settings::mask, "mask", "Channel mask, also hexadecimal");
    command.option(&Settings::gamma, "gamma", "Brightness curve");
    command.option(&Settings::metadata, "metadata", "Keep the metadata");
    command.option(&Settings::format, "format", "File format")
        .values({{"jpeg", Format::jpeg}, {"png", Format::png}, {"pnm", Format::pnm}})
        .deprecated("jpg", "jpeg");
    command.option(&Settings::title, "title", "Caption");
    command.option(&Settings::tags, "tag", "Tags of the picture").valueName("KEY=TEXT");
    command.option(&Settings::color, "color", "Colours in messages")
        .values({"always", "auto", "never"})
        .implicit("always");
    command.option(&Settings::verbosity, "verbose,v", "Say more, each time").count();
    return kexa::run(command, argc, argv, print);
}
