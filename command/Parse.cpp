// From a command line to a filled struct, or the first error.
#include <optional>

#include "Inline.h"
#include "LineBinding.h"
#include "Messages.h"
#include "platform/ProcessArguments.h"
#include "text/Encoding.h"
#include "text/LineSplitting.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_LOCAL void parseArguments(State& state, std::vector<Argument> arguments, void* object,
                                       Outcome& outcome)
{
    std::vector<std::string> files;
    Scan scan(state, files);
    scan.take(std::move(arguments));
    for (const Scan* part = &scan; part != nullptr; part = part->inner())
    {
        if (part->wanted() != nullptr)
        {
            const bool isHelp = part->wanted()->kind == Kind::help;
            const Definition& definition = part->state().definition();
            outcome.status = isHelp ? Status::help : Status::version;
            outcome.program = definition.path;
            outcome.text = isHelp ? part->state().core().help(narrow(part->topic()), 0)
                                  : definition.version + "\n";
            return;
        }
    }
    LineBinding(scan, files, object, outcome).bind();
    outcome.files = std::move(files);
}

// Makes `count` arguments; text(i) returns that with the index i, from 0.
template <class Text>
std::vector<Argument> makeArguments(std::size_t count, const Text& text)
{
    std::vector<Argument> arguments;
    arguments.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
    {
        Place place;
        place.index = static_cast<int>(i) + 1;
        arguments.push_back({text(i), place});
    }
    return arguments;
}

// How many arguments there are behind the program's name.
KEXA_COMMAND_LOCAL std::size_t argumentCount(int argc)
{
    return argc > 1 ? static_cast<std::size_t>(argc) - 1 : 0;
}

KEXA_COMMAND_INLINE void Core::parse(int argc, const char* const* argv, void* object,
                                     Outcome& outcome)
{
    if (std::optional<std::vector<std::wstring>> reread = rereadArguments(argc, argv))
    {
        return parseArguments(
            *m_state,
            makeArguments(reread->size(), [&](std::size_t i) { return std::move((*reread)[i]); }),
            object, outcome);
    }
    const auto text = [argv](std::size_t i)
    {
        return argv[i + 1] == nullptr ? std::wstring() : widen(argv[i + 1]);
    };
    parseArguments(*m_state, makeArguments(argumentCount(argc), text), object, outcome);
}

KEXA_COMMAND_INLINE void Core::parse(int argc, const wchar_t* const* argv, void* object,
                                     Outcome& outcome)
{
    const auto text = [argv](std::size_t i)
    {
        return std::wstring(argv[i + 1] == nullptr ? L"" : argv[i + 1]);
    };
    parseArguments(*m_state, makeArguments(argumentCount(argc), text), object, outcome);
}

KEXA_COMMAND_INLINE void Core::parse(const std::vector<std::string>& arguments, void* object,
                                     Outcome& outcome)
{
    const auto text = [&arguments](std::size_t i)
    {
        return widen(arguments[i]);
    };
    parseArguments(*m_state, makeArguments(arguments.size(), text), object, outcome);
}

KEXA_COMMAND_INLINE void Core::parseLine(std::string_view line, void* object, Outcome& outcome)
{
    const SplitLine split = splitLine(line);
    if (!split.unterminatedQuote)
    {
        return parse(split.arguments, object, outcome);
    }
    m_state->prepare();
    outcome.program = m_definition->path;
    outcome.helpName = m_state->helpOption() == nullptr ? "" : spelled(*m_state->helpOption());
    setError(outcome, kexa_3_3::result_invalid_arguments,
             L"unterminated quote: " + widen(line.substr(*split.unterminatedQuote)), nullptr,
             Place(), {});
}

} // namespace detail
} // namespace v1
} // namespace kexa
