// BasicParser's way through the arguments of a parse.

#include <cassert>
#include <exception>
#include <optional>
#include <span>

#include "options/ValueText.h"
#include "parser/ArgumentLines.h"
#include "parser/BasicParser.h"
#include "parser/CopiedArguments.h"
#include "parser/OptionFiles.h"
#include "parser/OwnResult.h"
#include "recognition/AbbreviationParser.h"
#include "recognition/ArgumentQueue.h"
#include "recognition/PositionalOptionsParser.h"
#include "recognition/Runs.h"
#include "result/ParseResult.h"
#include "support/Text.h"
#include "support/Trace.h"

namespace kexa_3_3
{

namespace
{

constexpr std::wstring_view end_marker = L"--";
constexpr std::wstring_view trace_keyword = L"kexaoption=kexalogenable=1";

// The result of a step of a parse: whose it is was found out when the parse began.
ParseResult* filledBy(IParseResult* result)
{
    assert(ownResult(result) == result);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast): asserted above.
    return static_cast<ParseResult*>(result);
}

// The keyword counts as the first argument only, and is never parsed.
void switchTraceBy(ArgumentQueue& arguments)
{
    switchTrace(false);
    if (!arguments.empty() && arguments.front() == trace_keyword)
    {
        switchTrace(true);
        arguments.removeFront();
    }
}

// Lets the parser with the highest priority among those that claim the front argument parse it.
// They are asked in the order given. Answers the code, or nothing where none claims the argument.
template <class Run, class... Parsers>
std::optional<int> parseFront(ArgumentQueue& arguments, typename Run::Collector* collector,
                              const RegisteredOptionStorage& options, std::wstring& message,
                              Parsers&... chain)
{
    const IArgumentParser* best = nullptr;
    std::int32_t bestPriority = -99999999;
    const auto ask = [&](auto& parser) // by its own type, which spares virtual calls
    {
        const int answer = parser.template recognizeIn<Run>(arguments, options, message);
        if (answer == IArgumentParser::claimed && parser.priority() > bestPriority)
        {
            best = &parser;
            bestPriority = parser.priority();
        }
    };
    (ask(chain), ...);

    std::optional<int> code;
    const auto parseIfBest = [&](auto& parser)
    {
        if (&parser == best)
        {
            std::int64_t optionIndex = -1;
            code =
                parser.template parseIn<Run>(arguments, collector, options, optionIndex, message);
        }
    };
    (parseIfBest(chain), ...);
    return code;
}

} // namespace

// Only event handlers could see whether the host's arguments are copied or not: without any, no
// code of the host runs during a parse. So the copy is made only for them.
result_t BasicParser::parse(std::int32_t argc, const wchar_t* const* argv, IParseResult* result)
{
    try
    {
        ParseResult* const filled = ownResult(result);
        if (filled != nullptr)
        {
            storeDefaults(*filled);
        }
        std::span<const wchar_t* const> given;
        if (argv != nullptr && argc > 1)
        {
            given = std::span(argv + 1, static_cast<std::size_t>(argc) - 1);
        }
        if (m_events.empty())
        {
            ArgumentQueue arguments(given);
            return parseArguments(arguments, filled);
        }
        const CopiedArguments copied(given);
        ArgumentQueue arguments(copied.pointers());
        return parseArguments(arguments, filled);
    }
    catch (const std::exception&)
    {
        return result_standard_exception;
    }
}

result_t BasicParser::parseCommandLine(const wchar_t* commandLine, IParseResult* result)
{
    try
    {
        std::wstring_view text = viewOf(commandLine);
        std::wstring copied;
        if (!m_events.empty())
        {
            copied = text;
            text = copied;
        }
        WideLines lines(text);
        ArgumentQueue arguments(lines);
        return parseArguments(arguments, ownResult(result));
    }
    catch (const std::exception&)
    {
        return result_standard_exception;
    }
}

result_t BasicParser::parseArguments(ArgumentQueue& arguments, IParseResult* result)
{
    try
    {
        return parseAll(arguments, result);
    }
    catch (const std::exception&)
    {
        throw;
    }
    catch (...)
    {
        m_errorMessage = L"Unidentified problem detected.";
        return result_unknown_exception;
    }
}

result_t BasicParser::parseAll(ArgumentQueue& arguments, IParseResult* result)
{
    ParseResult* const filled = filledBy(result);
    if (filled == nullptr)
    {
        const result_t code = parseOnce(arguments, nullptr);
        return code != result_success ? code : checkActions(arguments, result, m_errorMessage);
    }
    OptionFiles files(*filled);
    result_t code = parseOnce(arguments, filled);
    // Asked now: a handler may have enabled them meanwhile.
    if (code == result_success && m_optionFilesEnabled)
    {
        code = files.readAll(
            [&](ArgumentSource& lines)
            {
                ArgumentQueue fileArguments(lines);
                return parseOnce(fileArguments, filled);
            },
            m_errorMessage);
    }
    return code != result_success ? code : checkActions(arguments, result, m_errorMessage);
}

// The arguments of the command line, or of one option file.
result_t BasicParser::parseOnce(ArgumentQueue& arguments, ParseResult* filled)
{
    const result_t code = parseVector(end_marker, arguments, filled, m_errorMessage);
    if (code != result_success || arguments.empty())
    {
        return code;
    }
    return collectNonparsingArguments(end_marker, arguments, filled, m_errorMessage);
}

result_t BasicParser::parseVector(std::wstring_view endMarker, ArgumentQueue& arguments,
                                  IParseResult* result, std::wstring& message)
{
    switchTraceBy(arguments);
    const auto flags = static_cast<std::uint32_t>(m_flags);
    PositionalOptionsParser positional(listeners(), m_strings, flags);
    AbbreviationParser abbreviation(listeners(), m_strings, flags);
    ParseResult* const collector = filledBy(result);

    while (!arguments.empty() && arguments.front() != endMarker)
    {
        // Asked for each argument: a handler may switch it.
        const std::optional<int> code =
            traceIsOn() ? parseFront<AnyRun>(arguments, collector, m_options, message, positional,
                                             abbreviation)
                        : parseFront<UsualRun>(arguments, collector, m_options, message, positional,
                                               abbreviation);
        if (code.has_value())
        {
            if (*code != 0)
            {
                return static_cast<result_t>(*code);
            }
            continue;
        }
        const std::wstring_view argument = arguments.front();
        if (takesUnknown(argument))
        {
            traceLine(L"ignoring ", argument);
            arguments.removeFront();
            continue;
        }
        message = concatenate({L"Unknown option: ", argument});
        return result_invalid_arguments;
    }
    return result_success;
}

// Who hears of events during a parse, or null. Nobody starts to listen in the middle of one: only a
// handler could add another.
EventHandler* BasicParser::listeners() noexcept
{
    return m_events.empty() ? nullptr : &m_events;
}

// Offers an unknown argument to the handlers. Answers whether it may be dropped.
bool BasicParser::takesUnknown(std::wstring_view argument)
{
    const bool isError = (m_flags & flag_unknown_is_error) != 0;
    // An argument is terminated only where the host's is: the handlers get a text of the pool.
    const bool unknown = m_events.empty() || m_events.onUnknownArgument(textForHandlers(argument));
    return !(isError && unknown);
}

// Takes the arguments behind the marker: positional ones are parsed, the others kept as left over.
result_t BasicParser::collectNonparsingArguments(std::wstring_view endMarker,
                                                 ArgumentQueue& arguments, ParseResult* filled,
                                                 std::wstring& message)
{
    constexpr std::wstring_view prefix = L"collectNonparsingArguments: ";
    auto flags = static_cast<std::uint32_t>(m_flags);
    if ((m_flags & flag_any_positional_after_marker) != 0)
    {
        flags &= ~static_cast<std::uint32_t>(flag_no_hyphen_positional);
    }
    PositionalOptionsParser positional(listeners(), m_strings, flags);

    if (!arguments.empty() && arguments.front() == endMarker)
    {
        arguments.removeFront();
    }
    while (!arguments.empty())
    {
        const int recognized = positional.recognize(arguments, m_options, message);
        traceLine(prefix, L"recognize result: ", recognized, L", message: ", viewOf(message));
        if (recognized != IArgumentParser::claimed)
        {
            const std::wstring_view argument = arguments.front();
            if (filled != nullptr)
            {
                filled->addUnparsed(argument);
            }
            traceLine(prefix, L"stored argument: '", argument, L"'");
            arguments.removeFront();
            continue;
        }
        std::int64_t optionIndex = -1;
        const int code = positional.parse(arguments, filled, m_options, optionIndex, message);
        traceLine(prefix, L"parse result: ", code, L", message: ", viewOf(message));
        if (code != 0)
        {
            return static_cast<result_t>(code);
        }
    }
    return result_success;
}

result_t BasicParser::checkActions(const ArgumentQueue& /*arguments*/, IParseResult* result,
                                   std::wstring& message)
{
    ParseResult* const filled = filledBy(result);
    return filled == nullptr
               ? result_success
               : kexa_3_3::checkActions(filled->options(), m_options, m_compatibleActions, message);
}

// Hands the result the default of every option that has one.
void BasicParser::storeDefaults(ParseResult& result) const
{
    if (!m_options.index().holdsValues())
    {
        return; // no option has a default
    }
    for (std::size_t index = 0; index < m_options.size(); ++index)
    {
        const OptionDescription& option = m_options[index];
        if (!option.hasDefault)
        {
            continue;
        }
        const std::wstring text = valueText(option.defaultValue);
        OptionResult record;
        record.defaultText = text;
        record.defaultValue = option.defaultValue;
        record.defaultPosition = no_position;
        static_cast<void>(result.storeOption(option, record));
    }
}

} // namespace kexa_3_3
