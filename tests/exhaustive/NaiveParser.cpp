#include "NaiveParser.h"

#include <algorithm>
#include <sstream>

#include "kexa/parser.h"
#include "NaiveActionCheck.h"
#include "NaiveConversion.h"
#include "NaiveRecognition.h"

namespace naive
{

namespace
{

const std::wstring endMarker = L"--";

void eraseFront(Arguments& arguments)
{
    arguments.erase(arguments.begin());
}

std::int32_t parseUpToMarker(Run& run, Arguments& arguments, std::wstring& error)
{
    if (!arguments.empty() && arguments[0] == L"kexaoption=kexalogenable=1")
    {
        eraseFront(arguments);
    }
    std::int32_t code = 0;
    while (code == 0 && !arguments.empty() && arguments[0] != endMarker)
    {
        const std::wstring argument = arguments[0];
        const Recognised recognised = recogniseOption(run.registry, argument);
        if (recognised.claimed)
        {
            code = parseOption(run, recognised, arguments, error);
        }
        else if (recognisePositional(run.registry, run.flags, argument))
        {
            code = parsePositional(run, arguments, error);
        }
        else if (notifyUnknownArgument(run, argument) &&
                 (run.flags & kexa_3_3::flag_unknown_is_error) != 0)
        {
            error = L"Unknown option: " + argument;
            code = 2;
        }
        else
        {
            eraseFront(arguments);
        }
    }
    return code;
}

std::int32_t collectLeftOver(Run& run, Arguments& arguments, std::wstring& error)
{
    std::int32_t flags = run.flags;
    if ((flags & kexa_3_3::flag_any_positional_after_marker) != 0)
    {
        flags &= ~kexa_3_3::flag_no_hyphen_positional;
    }
    if (!arguments.empty() && arguments[0] == endMarker)
    {
        eraseFront(arguments);
    }
    std::int32_t code = 0;
    while (code == 0 && !arguments.empty())
    {
        if (recognisePositional(run.registry, flags, arguments[0]))
        {
            code = parsePositional(run, arguments, error);
            continue;
        }
        if (run.result != nullptr)
        {
            run.result->storeUnparsed(arguments[0]);
        }
        eraseFront(arguments);
    }
    return code;
}

void storeDefaults(const Registry& registry, Result& result)
{
    for (const Option& option : registry.options())
    {
        if (option.hasDefault)
        {
            Record record;
            record.defaultText = textOfValue(option.defaultValue);
            record.defaultValue = option.defaultValue;
            result.store(option, record);
        }
    }
}

} // namespace

Parser::Parser(const Declarations& declarations, std::int32_t flags)
    : m_registry(declarations, flags), m_flags(flags)
{
}

void Parser::parseInto(Parsed& parsed, const Arguments& arguments,
                       const std::vector<HandlerRule>& handlers, bool storing) const
{
    Result* result = storing ? &parsed.result : nullptr;
    Run run{m_registry, handlers, m_flags, result, parsed.nextPosition, {}};
    Arguments remaining = arguments;
    parsed.code = parseUpToMarker(run, remaining, parsed.message);
    if (parsed.code == 0)
    {
        parsed.code = collectLeftOver(run, remaining, parsed.message);
    }
    if (parsed.code == 0 && storing)
    {
        parsed.code = checkActions(m_registry, parsed.result, parsed.message);
    }
    parsed.events = run.events;
    parsed.nextPosition = run.nextPosition;
}

Parsed Parser::parse(const Arguments& arguments, const std::vector<HandlerRule>& handlers,
                     std::int32_t firstPosition, bool storing) const
{
    Parsed parsed;
    parsed.nextPosition = firstPosition;
    if (storing)
    {
        storeDefaults(m_registry, parsed.result);
    }
    parseInto(parsed, arguments, handlers, storing);
    return parsed;
}

Parsed Parser::parseCommandLine(const std::wstring& commandLine,
                                const std::vector<HandlerRule>& handlers,
                                std::int32_t firstPosition, bool storing) const
{
    Parsed parsed;
    parsed.nextPosition = firstPosition;
    parseInto(parsed, splitLines(commandLine), handlers, storing);
    return parsed;
}

Arguments splitLines(const std::wstring& text)
{
    Arguments arguments;
    std::wistringstream stream(text);
    std::wstring line;
    while (std::getline(stream, line))
    {
        // A fixed list of characters, because iswspace() depends on the locale and the system.
        line.erase(0, std::min(line.find_first_not_of(L" \t\v\f\r"), line.size()));
        while (!line.empty() && (line.back() == L'\r' || line.back() == L'\n'))
        {
            line.pop_back();
        }
        if (!line.empty() && line.front() != L';' && line.front() != L'#')
        {
            arguments.push_back(line);
        }
    }
    return arguments;
}

} // namespace naive
