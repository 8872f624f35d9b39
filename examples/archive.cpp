// A command line in the manner of tar: actions, options that only some of them accept, and bundles
// of letters as in "archive -cvf all.tar src".
#include <cstdio>
#include <kexa/command.h>

namespace fs = std::filesystem;

struct Settings
{
    bool create = false, extract = false, list = false, append = false;
    std::optional<fs::path> file;
    fs::path folder = ".";
    int verbose = 0;
    bool gzip = false, xz = false;
    bool keep = false;
    bool preserve = false;
    unsigned strip = 0;
    std::vector<std::string> exclude;
    std::vector<fs::path> members;
};

void print(const Settings& settings)
{
    std::printf("%s %s in %s, verbose %d%s%s%s%s, strip %u",
                settings.create    ? "create"
                : settings.extract ? "extract"
                : settings.list    ? "list"
                                   : "append",
                settings.file ? settings.file->string().c_str() : "standard input",
                settings.folder.string().c_str(), settings.verbose, settings.gzip ? ", gzip" : "",
                settings.xz ? ", xz" : "", settings.keep ? ", keep" : "",
                settings.preserve ? ", preserve" : "", settings.strip);
    for (const std::string& pattern : settings.exclude)
    {
        std::printf(", without %s", pattern.c_str());
    }
    for (const fs::path& member : settings.members)
    {
        std::printf(" [%s]", member.string().c_str());
    }
    std::printf("\n");
}

int main(int argc, char** argv)
{
    kexa::Command<Settings> command("archive", "Makes and reads archives.");
    command.action(&Settings::create, "create,c", "Make an archive");
    const auto extract = command.action(&Settings::extract, "extract,get,x", "Restore members");
    const auto list = command.action(&Settings::list, "list,t", "List members");
    command.action(&Settings::append, "append,r", "Add members at the end");
    command.actionRequired().conventions(kexa::Conventions::posix);

    command.option(&Settings::file, "file,f", "The archive; without it the standard streams");
    command.option(&Settings::folder, "directory,C", "Change to this folder first");
    command.option(&Settings::verbose, "verbose,v", "Name each member, with -vv its size").count();
    const auto gzip = command.option(&Settings::gzip, "gzip,z", "Compress with gzip");
    const auto xz = command.option(&Settings::xz, "xz,J", "Compress with xz");
    command.excludes(gzip, xz);
    command.option(&Settings::keep, "keep-old-files,k", "Replace no files").of(extract);
    command.option(&Settings::preserve, "preserve,p", "Restore permissions").of(extract);
    command.option(&Settings::strip, "strip-components", "Leave out leading folders")
        .of(extract, list)
        .range(0, 64);
    command.option(&Settings::exclude, "exclude", "Leave out members that match")
        .valueName("PATTERN");
    command.positional(&Settings::members, "member", "Files and folders");
    command.require(
        [](const Settings& each)
        { return each.create && each.members.empty() ? "an empty archive is not made" : nullptr; });
    command.example("archive -czf src.tgz src", "Packs a folder.");
    command.example("archive -xvf src.tgz -C /tmp", "Unpacks it elsewhere.");
    return kexa::run(command, argc, argv, print);
}
