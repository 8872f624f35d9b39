// The programs of docs/guide.md, in its order. The first argument says which one runs.
#include <cstdio>
#include <cstring>
#include <string>
#include <thread>

#include <kexa/command.h>

namespace
{

std::string joined(const std::vector<std::string>& texts)
{
    std::string all;
    for (const std::string& text : texts)
    {
        all += "[" + text + "]";
    }
    return all;
}

namespace first
{
struct Settings
{
    bool verbose = false;
    bool color = true;
    int level = 3;
    std::optional<std::string> title;
};

int work(const Settings& settings)
{
    std::printf("level %d, title %s%s%s\n", settings.level,
                settings.title ? settings.title->c_str() : "none",
                settings.verbose ? ", verbose" : "", settings.color ? ", in colour" : "");
    return 0;
}

#define main program // the page shows a main()
int main(int argc, char** argv)
{
    kexa::Command<Settings> command("tool", "Shows how options are declared.");
    command.option(&Settings::verbose, "verbose,v", "Say what happens");
    command.option(&Settings::color, "color", "Use colours");
    command.option(&Settings::level, "level,l,depth", "How much");
    command.option(&Settings::title, "title", "Caption");
    return kexa::run(command, argc, argv, work);
}
#undef main
} // namespace first

namespace nested
{
struct Size
{
    unsigned width = 640, height = 480;
};

struct Settings
{
    Size size;
};

kexa::Command<Settings> makeCommand()
{
    kexa::Command<Settings> command("draw");
    auto size = command.in(&Settings::size);
    size.option(&Size::width, "width", "In pixels");
    size.option(&Size::height, "height", "In pixels");
    return command;
}
int program(int argc, char** argv)
{
    auto command = makeCommand();
    return kexa::run(command, argc, argv,
                     [](const Settings& s)
                     { std::printf("%u x %u\n", s.size.width, s.size.height); });
}
} // namespace nested

namespace lists
{
struct Settings
{
    std::vector<std::string> include;
    std::vector<int> sizes = {1, 2};
    std::map<std::string, int> limits;
    std::set<std::string> tags;
};
int program(int argc, char** argv)
{
    kexa::Command<Settings> command("pick");
    command.option(&Settings::include, "include", "A pattern, as often as needed");
    command.option(&Settings::sizes, "size", "Sizes").separator(',');
    command.option(&Settings::limits, "limit", "Limits by name").valueName("NAME=NUMBER");
    command.option(&Settings::tags, "tag", "Each tag once");
    return kexa::run(command, argc, argv,
                     [](const Settings& s)
                     {
                         std::printf("include %s, sizes", joined(s.include).c_str());
                         for (const int size : s.sizes)
                         {
                             std::printf(" %d", size);
                         }
                         for (const auto& [name, limit] : s.limits)
                         {
                             std::printf(", %s at most %d", name.c_str(), limit);
                         }
                         std::printf(", %zu tags\n", s.tags.size());
                     });
}
} // namespace lists

namespace values
{
enum class Mode
{
    fast,
    careful
};

struct Settings
{
    Mode mode = Mode::careful;
    std::string format = "text";
    std::uint32_t buffer = 4096;
    int threads = 1;
    std::string color = "auto";
    int verbosity = 0;
    std::string target;
};
int program(int argc, char** argv)
{
    kexa::Command<Settings> command("read");
    command.option(&Settings::mode, "mode", "How to read")
        .values({{"fast", Mode::fast}, {"careful", Mode::careful}})
        .deprecated("quick", "fast");
    command.option(&Settings::format, "format", "What to write").values({"text", "json", "xml"});
    command.option(&Settings::buffer, "buffer", "Bytes to read at a time").range(1, 1 << 26);
    command.option(&Settings::threads, "threads", "Threads to start")
        .check([](int count) { return count % 2 == 0 || count == 1 ? nullptr : "must be even"; });
    command.option(&Settings::color, "color", "Colours")
        .values({"always", "auto", "never"})
        .implicit("always");
    command.option(&Settings::verbosity, "verbose,v", "Say more, each time").count();
    command.option(&Settings::target, "target", "Where to write").valueName("FILE").required();
    return kexa::run(command, argc, argv,
                     [](const Settings& s)
                     {
                         std::printf("%s, %s, color %s, verbosity %d\n",
                                     s.mode == Mode::fast ? "fast" : "careful", s.format.c_str(),
                                     s.color.c_str(), s.verbosity);
                     });
}
} // namespace values
} // namespace

struct Duration
{
    long seconds = 0;
};

template <>
struct kexa::convert<Duration>
{
    static Conversion<Duration> fromText(std::string_view text)
    {
        const char unit = text.empty() ? '\0' : text.back();
        const long factor = unit == 's' ? 1 : unit == 'm' ? 60 : 0;
        const std::size_t digits = text.find_first_not_of("0123456789");
        if (factor == 0 || digits == 0 || digits + 1 != text.size() || digits > 6)
        {
            return Refusal{"write a duration as 90s or 15m"};
        }
        return Duration{std::atol(std::string(text).c_str()) * factor};
    }
    static std::string toText(const Duration& duration) // for defaults and ranges in the help
    {
        return std::to_string(duration.seconds) + "s";
    }
};

namespace
{
namespace own
{
struct Settings
{
    Duration timeout{10};
};
int program(int argc, char** argv)
{
    kexa::Command<Settings> command("wait");
    command.option(&Settings::timeout, "timeout", "How long to wait").valueName("TIME");
    return kexa::run(command, argc, argv,
                     [](const Settings& s) { std::printf("%ld seconds\n", s.timeout.seconds); });
}
} // namespace own

namespace actions
{
struct Settings
{
    bool list = false, sum = false, remove = false, force = false, verbose = false;
    std::string output;
};
int program(int argc, char** argv)
{
    kexa::Command<Settings> command("files");
    const auto list = command.action(&Settings::list, "list,l", "Print sizes");
    const auto sum = command.action(&Settings::sum, "sum,s", "Print checksums");
    const auto remove = command.action(&Settings::remove, "remove", "Remove files");
    command.together(list, sum);
    command.actionRequired();
    command.option(&Settings::output, "output,o", "Write here").of(list, sum);
    command.option(&Settings::force, "force", "Do not ask").of(remove).required();
    command.option(&Settings::verbose, "verbose", "Say what happens");
    return kexa::run(command, argc, argv,
                     [](const Settings& s) {
                         std::printf("%s%s%s\n", s.list ? "list " : "", s.sum ? "sum " : "",
                                     s.remove ? "remove" : "");
                     });
}
} // namespace actions

namespace positionals
{
struct Settings
{
    bool verbose = false;
    std::vector<std::filesystem::path> sources;
    std::filesystem::path target;
};
int program(int argc, char** argv)
{
    kexa::Command<Settings> command("copy");
    command.option(&Settings::verbose, "verbose,v", "Say what happens");
    command.positional(&Settings::sources, "source", "What to copy").times(1, 8);
    command.positional(&Settings::target, "target", "Where to").required();
    return kexa::run(command, argc, argv,
                     [](const Settings& s)
                     { std::printf("%zu to %s\n", s.sources.size(), s.target.string().c_str()); });
}
} // namespace positionals

namespace rest
{
struct Settings
{
    bool quiet = false;
    std::string program;
    std::vector<std::string> arguments;
};
int program(int argc, char** argv)
{
    kexa::Command<Settings> command("start");
    command.option(&Settings::quiet, "quiet,q", "Print nothing");
    command.positional(&Settings::program, "program", "What to start").required();
    command.rest(&Settings::arguments, "argument", "Passed on unread");
    return kexa::run(command, argc, argv,
                     [](const Settings& s)
                     { std::printf("%s %s\n", s.program.c_str(), joined(s.arguments).c_str()); });
}
} // namespace rest

namespace verbs
{
struct Settings
{
    bool list = false, sum = false;
    std::vector<std::string> paths;
};
int program(int argc, char** argv)
{
    kexa::Command<Settings> command("filesum");
    command.action(&Settings::list, "list", "Print sizes");
    command.action(&Settings::sum, "sum", "Print checksums");
    command.positional(&Settings::paths, "path", "Files and folders");
    command.verbs().actionRequired();
    return kexa::run(command, argc, argv,
                     [](const Settings& s)
                     { std::printf("%s %s\n", s.list ? "list" : "sum", joined(s.paths).c_str()); });
}
} // namespace verbs

namespace subcommands
{
struct Push
{
    bool force = false;
    std::string branch = "main";
};

struct Settings
{
    bool verbose = false;
    std::optional<Push> push;
};
int program(int argc, char** argv)
{
    kexa::Command<Push> push("push", "Sends commits.");
    push.option(&Push::force, "force,f", "Overwrite what is there");
    push.positional(&Push::branch, "branch", "What to send");

    kexa::Command<Settings> command("versions", "Keeps versions.");
    command.option(&Settings::verbose, "verbose,v", "Say what happens");
    command.subcommand(&Settings::push, push);
    command.actionRequired();
    return kexa::run(command, argc, argv,
                     [](const Settings& settings)
                     {
                         if (settings.push)
                         {
                             std::printf("push %s%s\n", settings.push->branch.c_str(),
                                         settings.push->force ? " by force" : "");
                         }
                     });
}
} // namespace subcommands

namespace relations
{
struct Settings
{
    std::string user, password;
    bool json = false, xml = false;
    int first = 1, last = 10;
    bool stdin_ = false;
    std::string file;
};
int program(int argc, char** argv)
{
    kexa::Command<Settings> command("query");
    const auto user = command.option(&Settings::user, "user", "Name");
    const auto password = command.option(&Settings::password, "password", "Secret");
    command.needs(password, user);
    const auto json = command.option(&Settings::json, "json", "Write JSON");
    const auto xml = command.option(&Settings::xml, "xml", "Write XML");
    command.excludes(json, xml);
    const auto file = command.option(&Settings::file, "file", "Read this file");
    const auto input = command.option(&Settings::stdin_, "stdin", "Read standard input");
    command.oneOf(file, input);
    command.option(&Settings::first, "first", "First line");
    command.option(&Settings::last, "last", "Last line");
    command.require(
        [](const Settings& settings)
        { return settings.first <= settings.last ? nullptr : "--first is behind --last"; });
    return kexa::run(command, argc, argv, [](const Settings&) { std::puts("fine"); });
}
} // namespace relations

namespace files
{
struct Settings
{
    int level = 1;
    std::vector<std::string> tags;
};
int program(int argc, char** argv)
{
    kexa::Command<Settings> command("build");
    command.option(&Settings::level, "level", "How much");
    command.option(&Settings::tags, "tag", "Tags");
    command.optionFiles("Read further arguments from a file");
    return kexa::run(command, argc, argv,
                     [](const Settings& s)
                     { std::printf("level %d, tags %s\n", s.level, joined(s.tags).c_str()); });
}
} // namespace files

namespace environment
{
struct Settings
{
    std::string server;
    std::uint16_t port = 8080;
};
int program(int argc, char** argv)
{
    kexa::Command<Settings> command("client");
    command.option(&Settings::server, "server", "Where").required().environment("GUIDE_SERVER");
    command.option(&Settings::port, "port", "Its port").environment("GUIDE_PORT");
    return kexa::run(command, argc, argv,
                     [](const kexa::Parsed<Settings>& parsed)
                     {
                         constexpr const char* names[] = {"default", "environment", "given"};
                         const auto source = static_cast<int>(parsed.source(&Settings::port));
                         std::printf("%s:%d (%s)\n", parsed->server.c_str(), parsed->port,
                                     names[source]);
                     });
}
} // namespace environment

namespace order
{
struct Settings
{
    std::vector<std::string> include, exclude;
};
int program(int argc, char** argv)
{
    kexa::Command<Settings> command("sync");
    command.option(&Settings::include, "include", "Take what matches");
    command.option(&Settings::exclude, "exclude", "Leave out what matches");
    return kexa::run(command, argc, argv,
                     [](const kexa::Parsed<Settings>& parsed)
                     {
                         for (const kexa::Occurrence& each : parsed.occurrences())
                         {
                             std::printf("%s %s\n", each.option.c_str(), each.value.c_str());
                         }
                     });
}
} // namespace order

namespace posix
{
struct Settings
{
    bool all = false, long_ = false;
    int number = 10;
    std::vector<std::string> files;
};
int program(int argc, char** argv)
{
    kexa::Command<Settings> command("head");
    command.option(&Settings::all, "all,a", "All");
    command.option(&Settings::long_, "long,l", "More columns");
    command.option(&Settings::number, "number,n", "Lines");
    command.positional(&Settings::files, "file", "Files");
    command.conventions(kexa::Conventions::posix);
    return kexa::run(command, argc, argv,
                     [](const Settings& s)
                     {
                         std::printf("all %d, long %d, number %d, files %s\n", s.all, s.long_,
                                     s.number, joined(s.files).c_str());
                     });
}
} // namespace posix

namespace help
{
struct Settings
{
    bool pack = false, old = false, secret = false;
    int level = 6;
    std::string archive;
};
int program(int argc, char** argv)
{
    kexa::Command<Settings> command("packer", "Packs and unpacks folders.");
    const auto pack = command.action(&Settings::pack, "pack,p", "Make an archive");
    command.option(&Settings::level, "level", "From fast to small").range(1, 9).of(pack);
    command.option(&Settings::archive, "archive,a", "The archive")
        .valueName("FILE")
        .group("Files")
        .alias("output");
    command.option(&Settings::old, "quick", "Be quick").deprecated("use --level=1");
    command.option(&Settings::secret, "dump", "For the support desk").hidden();
    command.version("packer 1.2").helpOption("help,h,?").versionOption("version,V");
    command.example("packer -p -a src.pack src", "Packs a folder.");
    command.epilog("Archives are compatible with version 1.0.");
    return kexa::run(command, argc, argv, [](const Settings&) {});
}
} // namespace help

namespace errors
{
struct Settings
{
    int level = 3;
};
int main_of_service(int argc, char** argv)
{
    kexa::Command<Settings> command("service");
    command.option(&Settings::level, "level", "How much").range(1, 9);
    const kexa::Parsed<Settings> parsed = command.parse(argc, argv);
    if (parsed)
    {
        std::printf("level %d\n", parsed->level);
        return 0;
    }
    if (parsed.status() == kexa::Status::error)
    {
        const kexa::Error& error = parsed.error();
        std::printf("code %d, option '%s', argument %d\n", error.code, error.option.c_str(),
                    error.index);
        std::printf("message: %s\nhint: %s\n", error.message.c_str(), error.hint.c_str());
        return 2;
    }
    return kexa::report(parsed); // prints the help
}

int levelOf(const std::vector<std::string>& arguments)
{
    kexa::Command<Settings> command("service");
    command.option(&Settings::level, "level", "How much");
    return command.parse(arguments).valueOrThrow().level; // throws kexa::ParseFailure
}
int throwing(int argc, char** argv)
{
    try
    {
        std::printf("%d\n", levelOf({argv + 1, argv + argc}));
    }
    catch (const kexa::ParseFailure& failure)
    {
        std::printf("caught: %s\n", failure.what());
    }
    return 0;
}
} // namespace errors

namespace testing
{
struct Settings
{
    int level = 3;
    std::vector<std::string> files;
};

kexa::Command<Settings> makeCommand()
{
    kexa::Command<Settings> command("pack");
    command.option(&Settings::level, "level", "How small").range(1, 9);
    command.positional(&Settings::files, "file", "Files").required();
    return command;
}

bool test()
{
    auto command = makeCommand();
    const auto good = command.parse({"--lev=5", "a b.txt"});
    const auto same = command.parseLine("--lev=5 'a b.txt'");
    const auto bad = command.parseLine("--level=12 a.txt");
    return good && good->level == 5 && same && same->files == good->files && !bad &&
           bad.error().hint == "allowed are 1 to 9" && bad.error().option == "level" &&
           command.help("level", 80).find("from 1 to 9") != std::string::npos;
}
int program(int, char**)
{
    std::puts(test() ? "the test passes" : "the test fails");
    return 0;
}
} // namespace testing

namespace threads
{
int program(int, char**)
{
    const auto work = [](const char* line, int& level)
    {
        auto command = testing::makeCommand(); // one for each thread
        level = command.parseLine(line).valueOrThrow().level;
    };
    int first = 0;
    int second = 0;
    std::thread one(work, "--level=1 a", std::ref(first));
    std::thread two(work, "--level=2 b", std::ref(second));
    one.join();
    two.join();
    std::printf("%d %d\n", first, second);
    return 0;
}
} // namespace threads

struct Program
{
    const char* name;
    int (*run)(int, char**);
};

constexpr Program programs[] = {
    {"tool", first::program},
    {"draw", nested::program},
    {"pick", lists::program},
    {"read", values::program},
    {"wait", own::program},
    {"files", actions::program},
    {"copy", positionals::program},
    {"start", rest::program},
    {"filesum", verbs::program},
    {"versions", subcommands::program},
    {"query", relations::program},
    {"build", files::program},
    {"client", environment::program},
    {"sync", order::program},
    {"head", posix::program},
    {"packer", help::program},
    {"service", errors::main_of_service},
    {"throwing", errors::throwing},
    {"test", testing::program},
    {"threads", threads::program},
};

} // namespace

int main(int argc, char** argv)
{
    for (const Program& program : programs)
    {
        if (argc > 1 && std::strcmp(program.name, argv[1]) == 0)
        {
            return program.run(argc - 1, argv + 1);
        }
    }
    return 1;
}
