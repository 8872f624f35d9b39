// Types of the program: a duration is read and printed by functions of its own. Rules refuse values
// for reasons of the program.
#include <cstdio>
#include <kexa/command.h>

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
        const long factor = unit == 's' ? 1 : unit == 'm' ? 60 : unit == 'h' ? 3600 : 0;
        const std::size_t digits = text.find_first_not_of("0123456789");
        if (factor == 0 || digits == 0 || digits + 1 != text.size() || digits > 6)
        {
            return Refusal{"write a duration as 90s, 15m or 2h"};
        }
        return Duration{std::atol(std::string(text).c_str()) * factor};
    }
    static std::string toText(const Duration& duration)
    {
        return std::to_string(duration.seconds) + "s";
    }
};

struct Settings
{
    Duration interval{60};
    Duration timeout{10};
    std::vector<std::uint16_t> ports;
};

int main(int argc, char** argv)
{
    kexa::Command<Settings> command("own_types", "Watches ports.");
    command.option(&Settings::interval, "interval", "Time between two looks")
        .valueName("TIME")
        .check([](const Duration& each)
               { return each.seconds > 0 ? nullptr : "it must not be zero"; });
    command.option(&Settings::timeout, "timeout", "How long a look may take").valueName("TIME");
    command.positional(&Settings::ports, "port", "Ports to watch")
        .times(1, 3)
        .check([](std::uint16_t port)
               { return port >= 1024 ? "" : std::to_string(port) + " belongs to the system"; });
    command.require(
        [](const Settings& settings)
        {
            return settings.timeout.seconds <= settings.interval.seconds
                       ? nullptr
                       : "the timeout is longer than the interval";
        });
    return kexa::run(command, argc, argv,
                     [](const Settings& settings)
                     {
                         std::printf("every %ld s, %ld s at most, %zu ports\n",
                                     settings.interval.seconds, settings.timeout.seconds,
                                     settings.ports.size());
                     });
}
