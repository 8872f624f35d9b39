#include "CommandLine.h"

#include "common/Text.h"
#include "filesum/Platform.h"

using namespace kexa_3_3;
using vexkit2::variant_t;

namespace filesum
{

namespace
{

// The keyword of options that take plain arguments, and of the actions that accept these options.
constexpr const wchar_t* positional = L"kexa_positional_option";

// The group of options that only "-help -hidden" shows.
constexpr const wchar_t* hidden_group = L"kexa_hidden";

constexpr vexkit2::u32_t default_buffer = 1U << 18; // bytes
constexpr vexkit2::u32_t largest_buffer = 1U << 26;

// Returns the values of an option as bytes, which the other parts of the tool work with.
std::vector<std::string> textsOf(IParseResult& result, const wchar_t* name)
{
    std::vector<std::string> texts;
    for (const Value& value : example::valuesOf(result, name))
    {
        const wchar_t* text = value.as<const wchar_t*>();
        texts.push_back(example::toBytes(text != nullptr ? text : L""));
    }
    return texts;
}

void readSelection(IParseResult& result, Selection& selection)
{
    selection.include = textsOf(result, L"include");
    selection.exclude = textsOf(result, L"exclude");
    selection.minimumSize = example::lastValue(result, L"min-size").as<vexkit2::u64_t>();
}

void readSettings(IParseResult& result, InterfaceSettings& settings)
{
    settings.list = example::isPresent(result, L"list");
    settings.sum = example::isPresent(result, L"sum");
    settings.verify = example::isPresent(result, L"verify");
    settings.total = example::isPresent(result, L"total");
    settings.help = example::isPresent(result, L"help");
    settings.version = example::isPresent(result, L"version");
    for (const Value& path : example::valuesOf(result, L"path"))
    {
        const wchar_t* text = path.as<const wchar_t*>();
        settings.words.emplace_back(text != nullptr ? text : L"");
    }
    settings.algorithms.clear();
    for (const std::string& name : textsOf(result, L"algorithm"))
    {
        settings.algorithms.push_back(algorithmNamed(name).value());
    }
    readSelection(result, settings.selection);
    if (const wchar_t* output = example::lastValue(result, L"output").as<const wchar_t*>())
    {
        settings.output = pathOf(example::toBytes(output));
    }
    settings.bufferSize = example::lastValue(result, L"buffer-size").as<vexkit2::u32_t>();
    settings.quiet = example::lastValue(result, L"quiet").as<bool>();
    settings.progress = example::lastValue(result, L"progress").as<bool>();
    settings.hidden = example::isPresent(result, L"hidden");
}

} // namespace

CommandLine::CommandLine()
    : m_parser(example::makeParser(flag_unknown_is_error | flag_no_hyphen_positional |
                                   flag_any_positional_after_marker))
{
    declareActions();
    declareOptions();
    m_parser->addEventHandler(&m_limit);
}

void CommandLine::declareActions()
{
    const auto declare = [this](const wchar_t* names, const wchar_t* description) -> IOption&
    {
        return *m_parser->addSwitch(names, description, value_type_none, L"").option;
    };
    declare(L"list,l", L"Print the size and the name of every file").addKeywords(positional);
    declare(L"sum,s", L"Print the checksums, the size and the name of every file")
        .addKeywords(positional);
    declare(L"verify,v", L"Read what -sum wrote, and tell the files that differ")
        .addKeywords(positional);
    declare(L"total,t", L"Print how many files and bytes there are; goes with -list, -sum, -verify")
        .addKeywords(positional);
    declare(L"help,h", L"Explain the actions and options named, or all").addKeywords(positional);
    declare(L"version", L"Print the version");
    for (const wchar_t* action : {L"list", L"sum", L"verify"})
    {
        m_parser->addCompatibleActions({action, L"total"});
    }
}

void CommandLine::declareOptions()
{
    IParser& parser = *m_parser;
    const auto declare = [&parser](const wchar_t* names, const wchar_t* keywords, value_type_t type,
                                   const wchar_t* description, const wchar_t* group) -> IOption&
    {
        return *parser.addOptionWithKeywords(names, keywords, description, type, group).option;
    };
    declare(L"path", positional, value_type_string,
            L"Files and folders (of -verify: files written by -sum; of -help: names of actions and "
            L"options). Plain arguments are paths.",
            L"")
        .setSeparator(0); // a file name may contain a comma
    declare(L"algorithm,a", L"sum", value_type_string, L"Checksums to compute", L"")
        .addAllowedValue(variant_t(L"crc32"))
        .addAllowedValue(variant_t(L"adler32"))
        .addDeprecatedValue(variant_t(L"crc"), variant_t(L"crc32"))
        .setDefaultValue(variant_t(L"crc32"));
    declare(L"include,i", L"list,sum,total", value_type_string,
            L"Take only files whose names match one of these patterns (* and ?)", L"");
    declare(L"exclude,x", L"list,sum,total", value_type_string,
            L"Leave out files and folders whose names match", L"");
    declare(L"min-size", L"list,sum,total", value_type_unsigned64,
            L"Leave out files with fewer bytes", L"")
        .setDefaultValue(variant_t(vexkit2::u64_t{0}));
    declare(L"output,o", L"sum", value_type_string,
            L"Write to this file, which is not summed up itself", L"")
        .setSeparator(0);
    declare(L"quiet,q", L"verify,total", value_type_boolean, L"With -verify: print no OK lines",
            L"")
        .setDefaultValue(variant_t(false));
    declare(L"progress", nullptr, value_type_boolean, L"Show the progress on a terminal", L"")
        .setDefaultValue(variant_t(true));
    parser.enableOptionFiles(L"Read further arguments from a file, one per line", L"");
    declare(L"buffer-size", nullptr, value_type_unsigned, L"Bytes to read at a time", hidden_group)
        .setDefaultValue(variant_t(default_buffer));
    declare(L"hidden", L"help", value_type_none, L"Explain the hidden options", hidden_group);
}

bool CommandLine::parse(int argc, const wchar_t* const* argv, InterfaceSettings& settings)
{
    const example::ResultPointer result = example::makeResult(*m_parser);
    if (m_parser->parse(argc, argv, result.get()) != result_success)
    {
        return false;
    }
    readSettings(*result, settings);
    return true;
}

std::wstring CommandLine::message() const
{
    return m_parser->getErrorMessage();
}

bool CommandLine::help(const std::vector<std::wstring>& topics, bool hidden,
                       std::wstring& text) const
{
    if (topics.empty())
    {
        text = L"filesum lists, sums up and verifies the files of folder trees.\n\n"
               L"Usage: filesum ACTION [OPTIONS] [PATHS]\n\nActions:\n";
        text += m_parser->getTopicList(false);
        text += L"\n\"filesum -help ACTION\" tells more. Options of every action:\n";
        text += m_parser->showFullHelp(hidden);
        return true;
    }
    for (const std::wstring& topic : topics)
    {
        const wchar_t* name = topic.c_str();
        text += m_parser->showTopicHelp(name, hidden);
        if (!m_parser->hasOption(name, true, nullptr) && !m_parser->hasOption(name, false, nullptr))
        {
            return false;
        }
        text += m_parser->showRelatedHelp(name, hidden);
    }
    return true;
}

bool CommandLine::BufferSizeLimit::onValueParsed(const wchar_t* name, const ValueRecord* value)
{
    if (std::wstring_view(name) != L"buffer-size")
    {
        return true;
    }
    const auto size = value->value.get<vexkit2::u32_t>();
    return size > 0 && size <= largest_buffer;
}

} // namespace filesum
