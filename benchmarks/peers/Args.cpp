#include <memory>
#include <string>
#include <vector>

#include <args.hxx>

#include "peers/Peer.h"
#include "peers/Slots.h"

namespace benchmarks
{

namespace
{

class Args
{
public:
    explicit Args(const Workload& workload) : m_workload(workload)
    {
        m_flags.reserve(workload.options().size());
        for (const Option& option : workload.options())
        {
            m_flags.push_back(declare(option));
        }
    }

    void parse()
    {
        m_parser.ParseCLI(m_workload.argumentCount(), m_workload.argumentVector().data());
    }

    template <class Sink>
    void read(Sink& sink) const
    {
        const std::vector<Option>& options = m_workload.options();
        for (std::size_t i = 0; i < options.size(); ++i)
        {
            args::Base& flag = *m_flags[i];
            if (!flag.Matched())
            {
                sink.absent(i);
            }
            else if (options[i].type == Type::flag)
            {
                sink.flag(i, static_cast<std::uint64_t>(
                                 args::get(static_cast<args::CounterFlag&>(flag))));
            }
            else
            {
                readValues(sink, i, options[i], flag);
            }
        }
    }

    std::string help() const { return m_parser.Help(); }

private:
    using AllowedTexts = args::MapFlagList<std::string, std::string, std::vector, args::ValueReader,
                                           std::unordered_map>;

    static args::Matcher matcher(const Option& option)
    {
        return option.letter == 0 ? args::Matcher{option.name}
                                  : args::Matcher{option.letter, option.name};
    }

    std::unique_ptr<args::Base> declare(const Option& option)
    {
        if (option.type == Type::flag)
        {
            return std::make_unique<args::CounterFlag>(m_parser, option.name, option.description,
                                                       matcher(option));
        }
        if (!option.allowedValues.empty())
        {
            std::unordered_map<std::string, std::string> allowed;
            for (const std::string& value : option.allowedValues)
            {
                allowed.emplace(value, value);
            }
            return std::make_unique<AllowedTexts>(m_parser, option.name, option.description,
                                                  matcher(option), allowed);
        }
        return withType(option.type,
                        [&]<class T>(std::type_identity<T>) -> std::unique_ptr<args::Base>
                        {
                            if (option.repeated)
                            {
                                return std::make_unique<args::ValueFlagList<T>>(
                                    m_parser, option.name, option.description, matcher(option));
                            }
                            return std::make_unique<args::ValueFlag<T>>(
                                m_parser, option.name, option.description, matcher(option));
                        });
    }

    template <class Sink>
    static void readValues(Sink& sink, std::size_t index, const Option& option, args::Base& flag)
    {
        if (!option.allowedValues.empty())
        {
            put(sink, index, args::get(static_cast<AllowedTexts&>(flag)));
            return;
        }
        withType(option.type,
                 [&]<class T>(std::type_identity<T>)
                 {
                     if (option.repeated)
                     {
                         put(sink, index, args::get(static_cast<args::ValueFlagList<T>&>(flag)));
                     }
                     else
                     {
                         put(sink, index, args::get(static_cast<args::ValueFlag<T>&>(flag)));
                     }
                 });
    }

    const Workload& m_workload;
    args::ArgumentParser m_parser{"a program"};
    std::vector<std::unique_ptr<args::Base>> m_flags;
};

} // namespace

Peer argsPeer()
{
    return makePeer<Args>("args", {.allowedValues = true, .help = true});
}

} // namespace benchmarks
