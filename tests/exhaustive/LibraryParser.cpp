#include "LibraryParser.h"

#include <stdexcept>

#include "kexa/parse_result.h"
#include "LibraryResult.h"
#include "RuleHandler.h"

namespace naive
{

using kexa_3_3::IParser;
using kexa_3_3::IParseResult;

namespace
{

ParserPointer makeParser(std::int32_t flags)
{
    IParser* parser = nullptr;
    if (kexa_3_3::createParser(&parser, flags) != 0 || parser == nullptr)
    {
        throw std::runtime_error("no parser");
    }
    return ParserPointer(parser);
}

std::unique_ptr<IParseResult, Releaser> makeResult(IParser& parser)
{
    IParseResult* result = nullptr;
    if (parser.createParseResult(&result) != 0 || result == nullptr)
    {
        throw std::runtime_error("no result");
    }
    return std::unique_ptr<IParseResult, Releaser>(result);
}

void apply(kexa_3_3::IOption& option, const BuilderStep& step)
{
    switch (step.call)
    {
    case BuilderStep::Call::addName:
        option.addName(step.text.c_str());
        break;
    case BuilderStep::Call::addAllowedValue:
        option.addAllowedValue(step.value);
        break;
    case BuilderStep::Call::addDeprecatedValue:
        option.addDeprecatedValue(step.value, step.replacement);
        break;
    case BuilderStep::Call::setDefaultValue:
        option.setDefaultValue(step.value);
        break;
    case BuilderStep::Call::setSeparator:
        option.setSeparator(step.separator);
        break;
    case BuilderStep::Call::setMarked:
        option.setMarked();
        break;
    case BuilderStep::Call::addKeywords:
        option.addKeywords(step.text.c_str());
        break;
    }
}

const kexa_3_3::Registration& declare(IParser& parser, const Declaration& declaration)
{
    const wchar_t* names = declaration.names.c_str();
    switch (declaration.form)
    {
    case Declaration::Form::optionWithKeywords:
        return parser.addOptionWithKeywords(names, declaration.keywords.c_str(), L"",
                                            declaration.valueType, L"");
    case Declaration::Form::action:
        return parser.addSwitch(names, L"", declaration.valueType, L"");
    case Declaration::Form::option:
        break;
    }
    return parser.addOption(names, L"", declaration.valueType, L"");
}

void declare(IParser& parser, const Declarations& declarations)
{
    for (const Declaration& declaration : declarations.options)
    {
        kexa_3_3::IOption* option = declare(parser, declaration).option;
        for (const BuilderStep& step : declaration.steps)
        {
            if (option != nullptr)
            {
                apply(*option, step);
            }
        }
    }
    for (const std::set<std::wstring>& actions : declarations.compatibleActions)
    {
        parser.addCompatibleActions(actions);
    }
}

std::vector<std::wstring> unparsedOf(IParseResult& result)
{
    std::vector<std::wstring> unparsed;
    const wchar_t* argument = nullptr;
    for (std::int32_t code = result.getFirstUnparsed(&argument); code == 0;
         code = result.getNextUnparsed(&argument))
    {
        unparsed.push_back(argument);
    }
    return unparsed;
}

std::wstring joined(const Arguments& arguments)
{
    std::wstring text;
    for (const std::wstring& argument : arguments)
    {
        text += argument + L'\n';
    }
    return text;
}

std::int32_t callParser(IParser& parser, const ParseCall& call, IParseResult* result)
{
    if (call.asCommandLine)
    {
        return parser.parseCommandLine(joined(call.arguments).c_str(), result);
    }
    std::vector<const wchar_t*> argv{L"program"};
    for (const std::wstring& argument : call.arguments)
    {
        argv.push_back(argument.c_str());
    }
    return parser.parse(static_cast<std::int32_t>(argv.size()), argv.data(), result);
}

} // namespace

PositionProbe::PositionProbe() : m_parser(makeParser(0))
{
    m_parser->addOption(L"probe", L"", kexa_3_3::value_type_string, L"");
}

std::int32_t PositionProbe::takePosition()
{
    const wchar_t* const argv[] = {L"program", L"--probe=x"};
    const auto result = makeResult(*m_parser);
    m_parser->parse(2, argv, result.get());
    kexa_3_3::Value value;
    if (result->getFirstValue(&value, L"probe", 0, no_position) != 0)
    {
        throw std::runtime_error("the probe has no value");
    }
    return value.position;
}

Comparison::Comparison(const Declarations& declarations, std::int32_t flags,
                       const std::vector<HandlerRule>& handlers)
    : m_rules(handlers), m_naive(declarations, flags), m_names(namesOf(m_naive.registry())),
      m_parser(makeParser(flags)), m_nextPosition(positionAfter(m_probe.takePosition()))
{
    declare(*m_parser, declarations);
    m_handlers.reserve(m_rules.size());
    for (std::size_t index = 0; index < m_rules.size(); ++index)
    {
        m_handlers.emplace_back(index, m_rules[index], m_events);
        m_parser->addEventHandler(&m_handlers.back());
    }
}

Comparison::~Comparison() = default;

Outcome Comparison::predict(const ParseCall& call)
{
    Parsed parsed = call.asCommandLine
                        ? m_naive.parseCommandLine(joined(call.arguments), m_rules, m_nextPosition,
                                                   call.storing)
                        : m_naive.parse(call.arguments, m_rules, m_nextPosition, call.storing);
    Outcome outcome;
    outcome.code = parsed.code;
    // A successful parse does not change the message of the previous parse.
    outcome.message = parsed.code == 0 ? m_actual.message : parsed.message;
    outcome.events = std::move(parsed.events);
    outcome.unparsed = parsed.result.unparsed();
    outcome.names = queryResult(parsed.result, m_names, m_nextPosition, call.ranges);
    outcome.nextPosition = parsed.nextPosition;
    return outcome;
}

Outcome Comparison::observe(const ParseCall& call)
{
    const auto result = makeResult(*m_parser);
    m_events.clear();
    Outcome outcome;
    outcome.code = callParser(*m_parser, call, call.storing ? result.get() : nullptr);
    outcome.message = m_parser->getErrorMessage();
    outcome.events = m_events;
    outcome.unparsed = unparsedOf(*result);
    LibraryResult queried(*result);
    outcome.names = queryResult(queried, m_names, m_nextPosition, call.ranges);
    outcome.nextPosition = m_probe.takePosition();
    return outcome;
}

bool Comparison::agree(const ParseCall& call)
{
    m_expected = predict(call);
    m_actual = observe(call);
    m_nextPosition = positionAfter(m_actual.nextPosition);
    return m_expected == m_actual;
}

} // namespace naive
