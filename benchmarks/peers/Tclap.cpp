#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <tclap/CmdLine.h>

#include "peers/Peer.h"
#include "peers/Slots.h"

namespace benchmarks
{

namespace
{

class Tclap
{
public:
    explicit Tclap(const Workload& workload) : m_workload(workload)
    {
        m_line.setExceptionHandling(false);
        m_arguments.reserve(workload.options().size());
        for (const Option& option : workload.options())
        {
            m_arguments.push_back(declare(option));
            m_line.add(*m_arguments.back());
        }
    }

    void parse() { m_line.parse(m_workload.argumentCount(), m_workload.argumentVector().data()); }

    template <class Sink>
    void read(Sink& sink) const
    {
        const std::vector<Option>& options = m_workload.options();
        for (std::size_t i = 0; i < options.size(); ++i)
        {
            const TCLAP::Arg& argument = *m_arguments[i];
            if (!argument.isSet())
            {
                sink.absent(i);
            }
            else if (options[i].type == Type::flag)
            {
                const int count = static_cast<const TCLAP::MultiSwitchArg&>(argument).getValue();
                sink.flag(i, static_cast<std::uint64_t>(count));
            }
            else
            {
                readValues(sink, i, options[i], argument);
            }
        }
    }

    // TCLAP writes its usage to std::cout, whose buffer is exchanged meanwhile.
    std::string help()
    {
        const std::ostringstream text;
        std::streambuf* const standard = std::cout.rdbuf(text.rdbuf());
        m_output.usage(m_line);
        std::cout.rdbuf(standard);
        return text.str();
    }

private:
    std::unique_ptr<TCLAP::Arg> declare(const Option& option)
    {
        const std::string letter = option.letter == 0 ? "" : std::string(1, option.letter);
        if (option.type == Type::flag)
        {
            return std::make_unique<TCLAP::MultiSwitchArg>(letter, option.name, option.description);
        }
        return withType(option.type,
                        [&]<class T>(std::type_identity<T>) -> std::unique_ptr<TCLAP::Arg>
                        {
                            if (option.repeated)
                            {
                                return declareRepeated<T>(letter, option);
                            }
                            return std::make_unique<TCLAP::ValueArg<T>>(
                                letter, option.name, option.description, false, T(), "value");
                        });
    }

    template <class T>
    std::unique_ptr<TCLAP::Arg> declareRepeated(const std::string& letter, const Option& option)
    {
        if constexpr (std::is_same_v<T, std::string>)
        {
            if (!option.allowedValues.empty())
            {
                m_allowed.push_back(std::make_unique<TCLAP::ValuesConstraint<std::string>>(
                    const_cast<std::vector<std::string>&>(option.allowedValues)));
                return std::make_unique<TCLAP::MultiArg<std::string>>(
                    letter, option.name, option.description, false, m_allowed.back().get());
            }
        }
        return std::make_unique<TCLAP::MultiArg<T>>(letter, option.name, option.description, false,
                                                    "value");
    }

    template <class Sink>
    static void readValues(Sink& sink, std::size_t index, const Option& option,
                           const TCLAP::Arg& argument)
    {
        withType(
            option.type,
            [&]<class T>(std::type_identity<T>)
            {
                if (option.repeated)
                {
                    put(sink, index, static_cast<const TCLAP::MultiArg<T>&>(argument).getValue());
                }
                else
                {
                    put(sink, index, static_cast<const TCLAP::ValueArg<T>&>(argument).getValue());
                }
            });
    }

    const Workload& m_workload;
    TCLAP::CmdLine m_line{"a program", '=', "1.0", false};
    TCLAP::StdOutput m_output;
    std::vector<std::unique_ptr<TCLAP::ValuesConstraint<std::string>>> m_allowed;
    std::vector<std::unique_ptr<TCLAP::Arg>> m_arguments;
};

} // namespace

Peer tclapPeer()
{
    return makePeer<Tclap>("TCLAP", {.allowedValues = true,
                                     .help = true,
                                     .slowFrom = {{"options", 20000}, {"declarations", 20000}}});
}

} // namespace benchmarks
