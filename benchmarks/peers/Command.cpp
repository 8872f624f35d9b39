// The command layer: a struct for each workload, filled from UTF-8 arguments.
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <kexa/command.h>

#include "peers/Peer.h"
#include "peers/Slots.h"

namespace benchmarks
{

namespace
{

using Text = std::optional<std::string>;

struct Small
{
    std::uint32_t verbose = 0, quiet = 0, force = 0, recursive = 0;
    Text color, output, input, format, log, prefix, include, config;
    std::optional<std::int32_t> threads, level;
    std::optional<std::uint32_t> timeout, retries;
    std::optional<std::int64_t> offset;
    std::optional<std::uint64_t> limit;
    std::optional<double> ratio, scale;

    // Visits the members in the order of the workload's options.
    template <class Visitor>
    static void visit(const Visitor& visitor)
    {
        visitor(&Small::verbose, &Small::quiet, &Small::force, &Small::recursive, &Small::color,
                &Small::output, &Small::input, &Small::format, &Small::log, &Small::prefix,
                &Small::include, &Small::config, &Small::threads, &Small::level, &Small::timeout,
                &Small::retries, &Small::offset, &Small::limit, &Small::ratio, &Small::scale);
    }
};

struct Arguments
{
    std::uint32_t verbose = 0, force = 0;
    std::vector<std::string> output, input, includePath, libraryPath, define, undefine, format,
        logFile, exclude, pattern, prefix, suffix, source, target;
    std::vector<std::int32_t> threads, optimizationLevel, indentation, priority, column;
    std::vector<std::uint32_t> retries, timeout, lineWidth;
    std::vector<std::int64_t> offset, timestamp;
    std::vector<std::uint64_t> memoryLimit, checksum;
    std::vector<double> ratio, tolerance;

    template <class Visitor>
    static void visit(const Visitor& visitor)
    {
        using A = Arguments;
        visitor(&A::verbose, &A::force, &A::output, &A::input, &A::includePath, &A::libraryPath,
                &A::define, &A::undefine, &A::format, &A::logFile, &A::exclude, &A::pattern,
                &A::prefix, &A::suffix, &A::source, &A::target, &A::threads, &A::optimizationLevel,
                &A::indentation, &A::priority, &A::column, &A::retries, &A::timeout, &A::lineWidth,
                &A::offset, &A::timestamp, &A::memoryLimit, &A::checksum, &A::ratio, &A::tolerance);
    }
};

template <class Settings>
class CommandOf
{
public:
    explicit CommandOf(const Workload& workload) : m_workload(workload)
    {
        Settings::visit(
            [this](auto... members)
            {
                std::size_t next = 0;
                (declare(members, m_workload.options()[next++]), ...);
            });
    }

    void parse()
    {
        m_parsed.emplace(
            m_command.parse(m_workload.argumentCount(), m_workload.argumentVector().data()));
        if (!*m_parsed)
        {
            throw std::runtime_error("kexa::command: " + m_parsed->error().message);
        }
    }

    template <class Sink>
    void read(Sink& sink) const
    {
        Settings::visit(
            [&](auto... members)
            {
                std::size_t next = 0;
                (pass(sink, next++, m_parsed->value().*members), ...);
            });
    }

    std::string help() { return m_command.help({}, 80); }

private:
    template <class Member>
    void declare(Member member, const Option& option)
    {
        std::string names = option.name;
        if (option.letter != 0)
        {
            names += {',', option.letter};
        }
        auto declared = m_command.option(member, names, option.description);
        if constexpr (std::is_same_v<Member, std::uint32_t Settings::*>)
        {
            declared.count();
        }
    }

    template <class Sink>
    static void pass(Sink& sink, std::size_t option, std::uint32_t count)
    {
        count == 0 ? sink.absent(option) : sink.flag(option, count);
    }
    template <class Sink, class T>
    static void pass(Sink& sink, std::size_t option, const std::optional<T>& value)
    {
        value ? put(sink, option, *value) : sink.absent(option);
    }
    template <class Sink, class T>
    static void pass(Sink& sink, std::size_t option, const std::vector<T>& values)
    {
        values.empty() ? sink.absent(option) : put(sink, option, values);
    }

    const Workload& m_workload;
    kexa::Command<Settings> m_command{"program", "a program"};
    std::optional<kexa::Parsed<Settings>> m_parsed;
};

// One of the two commands, by the kind of the workload.
class Command
{
public:
    explicit Command(const Workload& workload)
    {
        if (workload.name() == "small")
        {
            m_small.emplace(workload);
        }
        else
        {
            m_arguments.emplace(workload);
        }
    }
    void parse() { m_small ? m_small->parse() : m_arguments->parse(); }
    template <class Sink>
    void read(Sink& sink) const
    {
        m_small ? m_small->read(sink) : m_arguments->read(sink);
    }
    std::string help() { return m_small ? m_small->help() : m_arguments->help(); }

private:
    std::optional<CommandOf<Small>> m_small;
    std::optional<CommandOf<Arguments>> m_arguments;
};

} // namespace

Peer commandPeer()
{
    return makePeer<Command>("kexa::command", {.only = {"small", "arguments"}});
}

} // namespace benchmarks
