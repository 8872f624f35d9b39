#include <stdexcept>
#include <string>
#include <vector>

#include <getopt.h>

#include "peers/Conversion.h"
#include "peers/Peer.h"
#include "peers/Slots.h"

namespace benchmarks
{

namespace
{

template <class Text>
class Getopt
{
public:
    explicit Getopt(const Workload& workload) : m_workload(workload)
    {
        const std::vector<Option>& options = workload.options();
        m_slots.reserve(options.size());
        m_given.resize(options.size());
        m_options.reserve(options.size() + 1);
        for (const Option& option : options)
        {
            const int index = static_cast<int>(m_options.size());
            const int takesValue = option.type == Type::flag ? no_argument : required_argument;
            m_slots.push_back(makeSlot<Text>(option));
            m_options.push_back({option.name.c_str(), takesValue, &m_index, index});
            if (option.letter != 0)
            {
                m_letters += option.letter;
                m_letters += takesValue == required_argument ? ":" : "";
            }
        }
        m_options.push_back({nullptr, 0, nullptr, 0});
    }

    void parse()
    {
        // getopt_long reorders the pointers, so it works on a copy of them.
        std::vector<char*> arguments;
        arguments.reserve(m_workload.argumentVector().size());
        for (const char* argument : m_workload.argumentVector())
        {
            arguments.push_back(const_cast<char*>(argument));
        }
        optind = 0;
        opterr = 0;
        for (;;)
        {
            const int found = getopt_long(m_workload.argumentCount(), arguments.data(),
                                          m_letters.c_str(), m_options.data(), nullptr);
            if (found == -1)
            {
                return;
            }
            if (found != 0)
            {
                throw std::invalid_argument("getopt_long: unknown option");
            }
            store(static_cast<std::size_t>(m_index));
        }
    }

    template <class Sink>
    void read(Sink& sink) const
    {
        for (std::size_t i = 0; i < m_slots.size(); ++i)
        {
            if (!m_given[i])
            {
                sink.absent(i);
                continue;
            }
            std::visit([&](const auto& variable) { give(sink, i, variable); }, m_slots[i]);
        }
    }

    std::string help() const { return {}; }

private:
    void store(std::size_t option)
    {
        m_given[option] = true;
        std::visit([](auto& variable) { storeValue(variable); }, m_slots[option]);
    }
    static void storeValue(Count& variable) { ++variable.count; }
    template <class T>
    static void storeValue(std::vector<T>& variable)
    {
        variable.push_back(convert<T>(optarg));
    }
    template <class T>
    static void storeValue(T& variable)
    {
        variable = convert<T>(optarg);
    }

    const Workload& m_workload;
    int m_index = 0; // of the option that getopt_long found last
    std::string m_letters;
    std::vector<option> m_options;
    std::vector<SlotOf<Text>> m_slots;
    std::vector<bool> m_given;
};

} // namespace

Peer getoptPeer()
{
    return makePeer<Getopt<std::string>>("getopt_long", {.abbreviations = true});
}

Peer getoptPointersPeer()
{
    return makePeer<Getopt<const char*>>("getopt_long, no copies",
                                         {.abbreviations = true, .only = {"small", "arguments"}});
}

} // namespace benchmarks
