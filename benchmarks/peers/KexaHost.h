// A host of the library, which uses only its public interface.
#ifndef KEXA_BENCHMARKS_KEXA_HOST_H
#define KEXA_BENCHMARKS_KEXA_HOST_H

#include <memory>
#include <string>

#include <kexa/kexa.h>

#include "workloads/Workload.h"

namespace benchmarks
{

struct Release
{
    template <class Interface>
    void operator()(Interface* object) const
    {
        object->release();
    }
};
using ParserPointer = std::unique_ptr<kexa_3_3::IParser, Release>;
using ResultPointer = std::unique_ptr<kexa_3_3::IParseResult, Release>;

[[noreturn]] void throwMessageOf(kexa_3_3::IParser& parser);

inline void require(bool condition, kexa_3_3::IParser& parser)
{
    if (!condition)
    {
        throwMessageOf(parser);
    }
}

class KexaHost
{
public:
    explicit KexaHost(const Workload& workload);

    kexa_3_3::IParser& parser() const noexcept { return *m_parser; }
    kexa_3_3::IParseResult& result() const noexcept { return *m_result; }

    void parse() { parse(m_workload.wideArgumentVector().data()); }
    void parse(const wchar_t* const* arguments)
    {
        const kexa_3_3::result_t code =
            m_parser->parse(m_workload.argumentCount(), arguments, m_result.get());
        require(code == kexa_3_3::result_success, *m_parser);
    }

    template <class Sink>
    void read(Sink& sink) const
    {
        kexa_3_3::Value value;
        const std::vector<Option>& options = m_workload.options();
        for (std::size_t i = 0; i < options.size(); ++i)
        {
            const Option& option = options[i];
            const wchar_t* const name = option.wideName.c_str();
            bool found = m_result->getFirstValue(&value, name, 0, kexa_3_3::no_position) ==
                         kexa_3_3::result_success;
            if (!found)
            {
                sink.absent(i);
            }
            while (found)
            {
                give(sink, i, option.type, value);
                // An option that is given once at most is read with one call: hosts of the other
                // parsers have a single variable for it.
                found = (option.repeated || option.list || Sink::wants_all) &&
                        m_result->getNextValue(&value, name) == kexa_3_3::result_success;
            }
        }
    }

    std::wstring_view wideHelp() const { return m_parser->showFullHelp(false); }
    std::string help() const { return narrow(wideHelp()); }

private:
    template <class Sink>
    static void give(Sink& sink, std::size_t option, Type type, const kexa_3_3::Value& value)
    {
        switch (type)
        {
        case Type::flag:
            sink.flag(option, value.as<bool>() ? 1 : 0);
            break;
        case Type::integer:
            sink.integer(option, value.as<vexkit2::s32_t>());
            break;
        case Type::natural:
            sink.natural(option, value.as<vexkit2::u32_t>());
            break;
        case Type::integer64:
            sink.integer(option, value.as<vexkit2::s64_t>());
            break;
        case Type::natural64:
            sink.natural(option, value.as<vexkit2::u64_t>());
            break;
        case Type::real:
            sink.real(option, value.as<double>());
            break;
        case Type::text:
            sink.text(option, value.as<const wchar_t*>());
            break;
        }
    }

    const Workload& m_workload;
    ParserPointer m_parser;
    ResultPointer m_result;
};

// A host that declares as KexaHost does and takes its arguments from an option file (see
// writeOptionFile).
class KexaFileHost
{
public:
    KexaFileHost(const Workload& workload, const std::string& path);

    void parse();

    template <class Sink>
    void read(Sink& sink) const
    {
        m_host.read(sink);
    }

    const KexaHost& host() const noexcept { return m_host; }

private:
    KexaHost m_host;
    std::wstring m_argument; // names the file
};

// Writes the workload's arguments to a file, one on each line. Throws std::runtime_error when that
// fails.
void writeOptionFile(const Workload& workload, const std::string& path);

} // namespace benchmarks

#endif
