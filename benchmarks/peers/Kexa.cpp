#include <fstream>
#include <stdexcept>
#include <vector>

#include "peers/KexaHost.h"
#include "peers/Peer.h"

namespace benchmarks
{

namespace
{

std::int32_t valueType(Type type)
{
    switch (type)
    {
    case Type::flag:
        return kexa_3_3::value_type_boolean;
    case Type::integer:
        return kexa_3_3::value_type_integer;
    case Type::natural:
        return kexa_3_3::value_type_unsigned;
    case Type::integer64:
        return kexa_3_3::value_type_integer64;
    case Type::natural64:
        return kexa_3_3::value_type_unsigned64;
    case Type::real:
        return kexa_3_3::value_type_double;
    case Type::text:
        break;
    }
    return kexa_3_3::value_type_string;
}

// A host on Linux: its arguments are UTF-8 and are converted before the parse.
class KexaFromNarrow
{
public:
    explicit KexaFromNarrow(const Workload& workload) : m_workload(workload), m_host(workload) {}

    void parse()
    {
        std::vector<std::wstring> texts;
        std::vector<const wchar_t*> arguments;
        texts.reserve(m_workload.arguments().size());
        arguments.reserve(m_workload.wideArgumentVector().size());
        arguments.push_back(L"program");
        for (const std::string& argument : m_workload.arguments())
        {
            texts.push_back(widen(argument));
            arguments.push_back(texts.back().c_str());
        }
        arguments.push_back(nullptr);
        m_host.parse(arguments.data());
    }

    template <class Sink>
    void read(Sink& sink) const
    {
        m_host.read(sink);
    }

    std::string help() const { return m_host.help(); }

private:
    const Workload& m_workload;
    KexaHost m_host;
};

} // namespace

void throwMessageOf(kexa_3_3::IParser& parser)
{
    throw std::runtime_error("kexa: " + narrow(parser.getErrorMessage()));
}

KexaHost::KexaHost(const Workload& workload) : m_workload(workload)
{
    kexa_3_3::IParser* parser = nullptr;
    createParser(&parser, kexa_3_3::flag_unknown_is_error);
    m_parser.reset(parser);
    for (const Option& option : workload.options())
    {
        const kexa_3_3::Registration& registration =
            parser->addOption(option.wideNames.c_str(), option.wideDescription.c_str(),
                              valueType(option.type), L"general:General options");
        require(registration.option != nullptr, *parser);
        for (const std::wstring& value : option.wideAllowedValues)
        {
            registration.option->addAllowedValue(vexkit2::variant_t(value));
        }
    }
    kexa_3_3::IParseResult* result = nullptr;
    parser->createParseResult(&result);
    m_result.reset(result);
}

KexaFileHost::KexaFileHost(const Workload& workload, const std::string& path)
    : m_host(workload), m_argument(L"--option-file=" + widen(path))
{
    require(m_host.parser().enableOptionFiles(L"names a file with arguments", L""),
            m_host.parser());
}

void KexaFileHost::parse()
{
    const wchar_t* const arguments[] = {L"program", m_argument.c_str(), nullptr};
    const kexa_3_3::result_t code = m_host.parser().parse(2, arguments, &m_host.result());
    require(code == kexa_3_3::result_success, m_host.parser());
}

void writeOptionFile(const Workload& workload, const std::string& path)
{
    std::ofstream file(path, std::ios::binary);
    for (const std::string& argument : workload.arguments())
    {
        file << argument << '\n';
    }
    file.close();
    if (!file)
    {
        throw std::runtime_error("cannot write " + path);
    }
}

Peer kexaPeer()
{
    return makePeer<KexaHost>("kexa", {.abbreviations = true,
                                       .lists = true,
                                       .allowedValues = true,
                                       .abbreviatedValues = true,
                                       .help = true});
}

Peer kexaFromNarrowPeer()
{
    return makePeer<KexaFromNarrow>("kexa, from UTF-8", {.only = {"small", "arguments"}});
}

} // namespace benchmarks
