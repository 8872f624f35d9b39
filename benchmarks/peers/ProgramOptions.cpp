#include <sstream>
#include <string>
#include <vector>

#include <boost/program_options.hpp>

#include "peers/Peer.h"
#include "peers/Slots.h"

namespace benchmarks
{

// The value of a flag that may be given several times; Boost's own flags may be given only once.
struct Occurrences
{
    std::uint64_t count = 0;
};

void validate(boost::any& stored, const std::vector<std::string>&, Occurrences*, int)
{
    Occurrences occurrences;
    if (!stored.empty())
    {
        occurrences = boost::any_cast<Occurrences>(stored);
    }
    ++occurrences.count;
    stored = occurrences;
}

namespace
{

namespace program_options = boost::program_options;

class ProgramOptions
{
public:
    explicit ProgramOptions(const Workload& workload) : m_workload(workload)
    {
        auto add = m_description.add_options();
        for (const Option& option : workload.options())
        {
            const std::string names =
                option.letter == 0 ? option.name : option.name + "," + option.letter;
            add(names.c_str(), semantic(option), option.description.c_str());
        }
    }

    void parse()
    {
        program_options::store(
            program_options::parse_command_line(m_workload.argumentCount(),
                                                m_workload.argumentVector().data(), m_description),
            m_variables);
        program_options::notify(m_variables);
    }

    template <class Sink>
    void read(Sink& sink) const
    {
        const std::vector<Option>& options = m_workload.options();
        for (std::size_t i = 0; i < options.size(); ++i)
        {
            const program_options::variable_value& value = m_variables[options[i].name];
            if (value.empty())
            {
                sink.absent(i);
            }
            else if (options[i].type == Type::flag)
            {
                sink.flag(i, value.as<Occurrences>().count);
            }
            else
            {
                readValues(sink, i, options[i], value);
            }
        }
    }

    std::string help() const
    {
        std::ostringstream text;
        text << m_description;
        return text.str();
    }

private:
    static const program_options::value_semantic* semantic(const Option& option)
    {
        if (option.type == Type::flag)
        {
            return program_options::value<Occurrences>()->zero_tokens()->composing();
        }
        return withType(
            option.type,
            [&]<class T>(std::type_identity<T>) -> const program_options::value_semantic*
            {
                if (option.repeated)
                {
                    return program_options::value<std::vector<T>>();
                }
                return program_options::value<T>();
            });
    }

    template <class Sink>
    static void readValues(Sink& sink, std::size_t index, const Option& option,
                           const program_options::variable_value& value)
    {
        withType(option.type,
                 [&]<class T>(std::type_identity<T>)
                 {
                     if (option.repeated)
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
    program_options::options_description m_description{"a program"};
    program_options::variables_map m_variables;
};

} // namespace

Peer programOptionsPeer()
{
    // Its time grows with the square of the number of values that one option holds.
    return makePeer<ProgramOptions>("Boost.Program_options",
                                    {.abbreviations = true,
                                     .help = true,
                                     .largest = {{"arguments", 100000}},
                                     .slowFrom = {{"arguments", 100000},
                                                  {"typed", 70000},
                                                  {"options", 20000},
                                                  {"abbreviations", 20000},
                                                  {"declarations", 20000}}});
}

} // namespace benchmarks
