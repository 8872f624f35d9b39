#include <string>
#include <vector>

#include <cxxopts.hpp>

#include "peers/Peer.h"
#include "peers/Slots.h"

namespace benchmarks
{

namespace
{

class Cxxopts
{
public:
    explicit Cxxopts(const Workload& workload) : m_workload(workload)
    {
        cxxopts::OptionAdder add = m_options.add_options();
        for (const Option& option : workload.options())
        {
            const std::string names = option.letter == 0
                                          ? option.name
                                          : std::string(1, option.letter) + "," + option.name;
            if (option.type == Type::flag)
            {
                add(names, option.description, cxxopts::value<bool>());
                continue;
            }
            withType(option.type,
                     [&]<class T>(std::type_identity<T>)
                     {
                         if (option.repeated || option.list)
                         {
                             add(names, option.description, cxxopts::value<std::vector<T>>());
                         }
                         else
                         {
                             add(names, option.description, cxxopts::value<T>());
                         }
                     });
        }
    }

    void parse()
    {
        m_result = m_options.parse(m_workload.argumentCount(), m_workload.argumentVector().data());
    }

    template <class Sink>
    void read(Sink& sink) const
    {
        const std::vector<Option>& options = m_workload.options();
        for (std::size_t i = 0; i < options.size(); ++i)
        {
            const std::size_t count = m_result.count(options[i].name);
            if (count == 0)
            {
                sink.absent(i);
            }
            else if (options[i].type == Type::flag)
            {
                sink.flag(i, count);
            }
            else
            {
                readValues(sink, i, options[i]);
            }
        }
    }

    std::string help() const { return m_options.help(); }

private:
    template <class Sink>
    void readValues(Sink& sink, std::size_t index, const Option& option) const
    {
        const cxxopts::OptionValue& value = m_result[option.name];
        withType(option.type,
                 [&]<class T>(std::type_identity<T>)
                 {
                     if (option.repeated || option.list)
                     {
                         put(sink, index, value.as<std::vector<T>>());
                     }
                     else
                     {
                         put(sink, index, value.as<T>());
                     }
                 });
    }

    const Workload& m_workload;
    cxxopts::Options m_options{"program", "a program"};
    cxxopts::ParseResult m_result;
};

} // namespace

Peer cxxoptsPeer()
{
    // Its regular expression runs out of stack on arguments of some tens of thousands of
    // characters.
    return makePeer<Cxxopts>(
        "cxxopts", {.lists = true, .help = true, .largest = {{"texts", 1000}, {"integers", 1000}}});
}

} // namespace benchmarks
