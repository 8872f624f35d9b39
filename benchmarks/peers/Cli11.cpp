#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "peers/Peer.h"
#include "peers/Slots.h"

namespace benchmarks
{

namespace
{

class Cli11
{
public:
    explicit Cli11(const Workload& workload) : m_workload(workload)
    {
        const std::vector<Option>& options = workload.options();
        m_slots.reserve(options.size());
        m_options.reserve(options.size());
        for (const Option& option : options)
        {
            m_slots.push_back(makeSlot(option));
            std::string names = option.letter == 0 ? "" : std::string("-") + option.letter + ",";
            names += "--" + option.name;
            m_options.push_back(std::visit(
                [&](auto& variable) { return declare(names, variable, option); }, m_slots.back()));
        }
    }

    void parse() { m_app.parse(m_workload.argumentCount(), m_workload.argumentVector().data()); }

    template <class Sink>
    void read(Sink& sink) const
    {
        for (std::size_t i = 0; i < m_slots.size(); ++i)
        {
            if (m_options[i]->count() == 0)
            {
                sink.absent(i);
                continue;
            }
            std::visit([&](const auto& variable) { give(sink, i, variable); }, m_slots[i]);
        }
    }

    std::string help() const { return m_app.help(); }

private:
    CLI::Option* declare(const std::string& names, Count& variable, const Option& option)
    {
        return m_app.add_flag(names, variable.count, option.description);
    }
    template <class T>
    CLI::Option* declare(const std::string& names, T& variable, const Option& option)
    {
        CLI::Option* const declared = m_app.add_option(names, variable, option.description);
        if (option.list)
        {
            declared->delimiter(',');
        }
        if (!option.allowedValues.empty())
        {
            declared->check(CLI::IsMember(
                std::set<std::string>(option.allowedValues.begin(), option.allowedValues.end())));
        }
        return declared;
    }

    const Workload& m_workload;
    CLI::App m_app{"a program", "program"};
    std::vector<Slot> m_slots; // never grows: the options refer to its elements
    std::vector<CLI::Option*> m_options;
};

} // namespace

Peer cli11Peer()
{
    return makePeer<Cli11>("CLI11", {.lists = true,
                                     .allowedValues = true,
                                     .help = true,
                                     .slowFrom = {{"options", 20000}, {"declarations", 20000}}});
}

} // namespace benchmarks
