#include "SizedCommandLines.h"

#include <stdexcept>

using namespace kexa_3_3;

namespace
{

std::int32_t typeOf(std::size_t number)
{
    constexpr std::int32_t types[] = {value_type_boolean, value_type_integer, value_type_string};
    return types[number % 3];
}

std::wstring valueOf(std::size_t number)
{
    return std::to_wstring(1000 + number % 9000);
}

} // namespace

std::wstring optionAbbreviation(std::size_t number)
{
    std::wstring digits = std::to_wstring(number);
    digits.insert(0, digits.size() < 5 ? 5 - digits.size() : 0, L'0');
    return L"option-" + digits;
}

std::wstring optionName(std::size_t number)
{
    return optionAbbreviation(number) + L"-name";
}

ParserPointer declareOptions(std::size_t count)
{
    IParser* made = nullptr;
    createParser(&made, 0);
    ParserPointer parser(made);
    for (std::size_t number = 0; number < count; ++number)
    {
        const Registration& registration = parser->addOption(
            optionName(number).c_str(), L"what it does", typeOf(number), L"group");
        if (registration.option == nullptr)
        {
            throw std::runtime_error("an option was not declared");
        }
    }
    return parser;
}

ResultPointer makeResult(IParser& parser)
{
    IParseResult* result = nullptr;
    parser.createParseResult(&result);
    return ResultPointer(result);
}

CommandLine::CommandLine(Style style, std::size_t options, std::size_t arguments)
    : m_parser(declareOptions(style == Style::allowedValues ? 0 : options))
{
    m_arguments.emplace_back(L"program");
    switch (style)
    {
    case Style::fullNames:
    case Style::abbreviations:
    case Style::nextArguments:
        addNamed(options, arguments, style);
        break;
    case Style::positional:
        m_parser->addOption(L"files", L"", value_type_string, L"").option->setMarked();
        m_names.emplace_back(L"files");
        addPlain(arguments);
        break;
    case Style::leftOver:
        m_arguments.emplace_back(L"--");
        addPlain(arguments);
        break;
    case Style::unknown:
        for (std::size_t number = 0; number < arguments; ++number)
        {
            m_arguments.push_back(L"--other-" + std::to_wstring(number) + L"=" + valueOf(number));
        }
        break;
    case Style::listPieces:
        addList(arguments);
        break;
    case Style::allowedValues:
        addAllowed(options, arguments);
        break;
    }
    for (const std::wstring& argument : m_arguments)
    {
        m_vector.push_back(argument.c_str());
    }
}

void CommandLine::addNamed(std::size_t options, std::size_t arguments, Style style)
{
    for (std::size_t number = 0; number < options; ++number)
    {
        m_names.push_back(optionName(number));
    }
    for (std::size_t given = 0; given < arguments; ++given)
    {
        // The step 7 shares no factor with any number of options here, so it visits all options.
        const std::size_t number = given * 7 % options;
        const std::wstring name =
            style == Style::abbreviations ? optionAbbreviation(number) : optionName(number);
        const bool boolean = typeOf(number) == value_type_boolean;
        if (boolean || style == Style::nextArguments)
        {
            m_arguments.push_back(L"--" + name);
        }
        else
        {
            m_arguments.push_back(L"--" + name + L"=" + valueOf(given));
        }
        if (!boolean && style == Style::nextArguments)
        {
            m_arguments.push_back(valueOf(given));
        }
    }
    m_expectedValues = arguments;
}

void CommandLine::addPlain(std::size_t arguments)
{
    for (std::size_t number = 0; number < arguments; ++number)
    {
        m_arguments.push_back(L"file-" + valueOf(number));
    }
    m_expectedValues = arguments;
}

void CommandLine::addList(std::size_t pieces)
{
    m_parser->addOption(L"list", L"", value_type_string, L"");
    m_names.emplace_back(L"list");
    std::wstring argument = L"--list=";
    for (std::size_t number = 0; number < pieces; ++number)
    {
        argument += number == 0 ? L"" : L",";
        argument += valueOf(number);
    }
    m_arguments.push_back(argument);
    m_expectedValues = pieces;
}

void CommandLine::addAllowed(std::size_t values, std::size_t arguments)
{
    IOption* const option = m_parser->addOption(L"choice", L"", value_type_string, L"").option;
    m_names.emplace_back(L"choice");
    for (std::size_t number = 0; number < values; ++number)
    {
        option->addAllowedValue(vexkit2::variant_t(optionName(number)));
    }
    for (std::size_t given = 0; given < arguments; ++given)
    {
        const std::size_t number = given * 7 % values;
        m_arguments.push_back(L"--choice=" +
                              (given % 2 == 0 ? optionName(number) : optionAbbreviation(number)));
    }
    m_expectedValues = arguments;
}

ResultPointer CommandLine::parse() const
{
    ResultPointer result = makeResult(*m_parser);
    const result_t code =
        m_parser->parse(static_cast<std::int32_t>(m_vector.size()), m_vector.data(), result.get());
    if (code != result_success)
    {
        throw std::runtime_error("the command line was not accepted");
    }
    return result;
}

std::size_t CommandLine::countValues(IParseResult& result) const
{
    std::size_t count = 0;
    for (const std::wstring& name : m_names)
    {
        Value value;
        for (result_t code = result.getFirstValue(&value, name.c_str(), 0, no_position);
             code == result_success; code = result.getNextValue(&value, name.c_str()))
        {
            ++count;
        }
    }
    const wchar_t* text = nullptr;
    for (result_t code = result.getFirstUnparsed(&text); code == result_success;
         code = result.getNextUnparsed(&text))
    {
        ++count;
    }
    return count;
}
