// How BasicParser consumes arguments, one after the other.

#include <cassert>
#include <optional>

#include "parser/BasicParser.h"
#include "parser/OwnResult.h"
#include "recognition/AbbreviationParser.h"
#include "recognition/ArgumentQueue.h"
#include "recognition/PositionalOptionsParser.h"
#include "recognition/Runs.h"
#include "result/ParseResult.h"
#include "support/platform/Trace.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

constexpr std::wstring_view trace_keyword = L"kexaoption=kexalogenable=1";

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

// The argument parsers of one run.
struct ArgumentParsers
{
    PositionalOptionsParser positional;
    AbbreviationParser abbreviation;
};

// Passes the front argument to the parser that claims it; if both do, to the one with the higher
// priority. Returns the status of that parser, or nothing if none claims the argument.
template <class Run>
std::optional<ParseStatus> parseFront(ArgumentParsers& parsers, ArgumentQueue& arguments,
                                      ParseResult* result, const RegisteredOptionStorage& options,
                                      std::wstring& message)
{
    constexpr int claimed = IArgumentParser::claimed;
    auto& [positional, abbreviation] = parsers;
    assert(abbreviation.priority() > positional.priority());
    const bool isValue = positional.recognizeIn<Run>(arguments, options, message) == claimed;
    const bool isOption = abbreviation.recognizeIn<Run>(arguments, options, message) == claimed;
    std::int64_t optionIndex = -1;
    if (isOption)
    {
        return abbreviation.parseIn<Run>(arguments, result, options, optionIndex, message);
    }
    if (isValue)
    {
        return positional.parseIn<Run>(arguments, result, options, optionIndex, message);
    }
    return std::nullopt;
}

} // namespace

result_t BasicParser::parseVector(std::wstring_view endMarker, ArgumentQueue& arguments,
                                  IParseResult* result, std::wstring& message)
{
    switchTraceBy(arguments);
    const auto flags = static_cast<std::uint32_t>(m_flags);
    ArgumentParsers parsers = {{eventReceiver(), m_strings, flags},
                               {eventReceiver(), m_strings, flags}};
    ParseResult* const filled = filledBy(result);
    while (!arguments.empty() && arguments.front() != endMarker)
    {
        // Read for each argument: a handler may switch the trace.
        const std::optional<ParseStatus> status =
            traceIsOn() ? parseFront<AnyRun>(parsers, arguments, filled, m_options, message)
                        : parseFront<UsualRun>(parsers, arguments, filled, m_options, message);
        if (!status.has_value())
        {
            if (!dropUnknown(arguments, message))
            {
                return result_invalid_arguments;
            }
        }
        else if (*status != ParseStatus::parsed)
        {
            return resultOf(*status);
        }
    }
    return result_success;
}

// Returns the receiver of the events of a parse, or null if no handler is registered. Null stays
// right during the whole parse, as only a handler could register another.
EventHandler* BasicParser::eventReceiver() noexcept
{
    return m_events.empty() ? nullptr : &m_events;
}

// Removes the front argument, which is unknown, after offering it to the handlers. Returns false,
// with a message, when it is an error.
bool BasicParser::dropUnknown(ArgumentQueue& arguments, std::wstring& message)
{
    const std::wstring_view argument = arguments.front();
    const bool isError = (m_flags & flag_unknown_is_error) != 0;
    // Handlers get a text of the pool, which is null-terminated and lives as long as the parser.
    const bool isTaken =
        !m_events.empty() && !m_events.onUnknownArgument(textForHandlers(argument));
    if (isError && !isTaken)
    {
        message = concatenate({L"Unknown option: ", argument});
        return false;
    }
    traceLine(L"ignoring ", argument);
    arguments.removeFront();
    return true;
}

// Takes the end marker and the arguments behind it: positional ones are parsed, the others are
// stored as left over.
result_t BasicParser::collectNonparsingArguments(std::wstring_view endMarker,
                                                 ArgumentQueue& arguments, ParseResult* result,
                                                 std::wstring& message)
{
    constexpr std::wstring_view prefix = L"collectNonparsingArguments: ";
    auto flags = static_cast<std::uint32_t>(m_flags);
    if ((m_flags & flag_any_positional_after_marker) != 0)
    {
        flags &= ~static_cast<std::uint32_t>(flag_no_hyphen_positional);
    }
    PositionalOptionsParser positional(eventReceiver(), m_strings, flags);

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
            if (result != nullptr)
            {
                result->addUnparsed(argument);
            }
            traceLine(prefix, L"stored argument: '", argument, L"'");
            arguments.removeFront();
            continue;
        }
        std::int64_t optionIndex = -1;
        const result_t code =
            resultOf(positional.parse(arguments, result, m_options, optionIndex, message));
        traceLine(prefix, L"parse result: ", code, L", message: ", viewOf(message));
        if (code != result_success)
        {
            return code;
        }
    }
    return result_success;
}

} // namespace kexa_3_3
