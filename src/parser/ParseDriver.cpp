// The steps of a parse by BasicParser.

#include <exception>
#include <optional>
#include <span>

#include "options/ValueText.h"
#include "parser/ArgumentLines.h"
#include "parser/BasicParser.h"
#include "parser/CopiedArguments.h"
#include "parser/OptionFiles.h"
#include "parser/OwnResult.h"
#include "recognition/ArgumentQueue.h"
#include "result/ParseResult.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

constexpr std::wstring_view end_marker = L"--";

// Returns a host's argument vector without the program's name.
std::span<const wchar_t* const> withoutProgramName(std::int32_t argc, const wchar_t* const* argv)
{
    if (argv == nullptr || argc < 2)
    {
        return {};
    }
    return std::span(argv, static_cast<std::size_t>(argc)).subspan(1);
}

} // namespace

// Copies the arguments only if a handler is registered: handlers are the only code of the host that
// runs during a parse and could change them.
result_t BasicParser::parse(std::int32_t argc, const wchar_t* const* argv, IParseResult* result)
{
    try
    {
        ParseResult* const filled = ownResult(result);
        if (filled != nullptr)
        {
            storeDefaults(*filled);
        }
        const std::span<const wchar_t* const> given = withoutProgramName(argc, argv);
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

// Copies the text only if a handler is registered, which could change it.
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
        return runSteps(arguments, filledBy(result));
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

// Each step ends the parse with its code when that is not success.
result_t BasicParser::runSteps(ArgumentQueue& arguments, ParseResult* result)
{
    std::optional<OptionFiles> files;
    if (result != nullptr)
    {
        files.emplace(*result);
    }
    result_t code = parseAndCollect(arguments, result);
    // Read only now: a handler may have enabled option files meanwhile.
    if (code == result_success && m_optionFilesEnabled && files.has_value())
    {
        const auto parseFile = [this, result](ArgumentSource& lines)
        {
            ArgumentQueue fileArguments(lines);
            return parseAndCollect(fileArguments, result);
        };
        code = files->readAll(parseFile, m_errorMessage);
    }
    return code == result_success ? checkActions(arguments, result, m_errorMessage) : code;
}

// Parses the arguments of the command line or of one option file, those behind the end marker too.
result_t BasicParser::parseAndCollect(ArgumentQueue& arguments, ParseResult* result)
{
    const result_t code = parseVector(end_marker, arguments, result, m_errorMessage);
    if (code != result_success || arguments.empty())
    {
        return code;
    }
    return collectNonparsingArguments(end_marker, arguments, result, m_errorMessage);
}

result_t BasicParser::checkActions(const ArgumentQueue& /*arguments*/, IParseResult* result,
                                   std::wstring& message)
{
    ParseResult* const filled = filledBy(result);
    return filled == nullptr
               ? result_success
               : kexa_3_3::checkActions(filled->options(), m_options, m_compatibleActions, message);
}

// Stores the default of every option that has one.
void BasicParser::storeDefaults(ParseResult& result) const
{
    for (const OptionDescription& option : m_options)
    {
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
