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

KEXA_COMMAND_LOCAL std::vector<Argument> numbered(std::vector<std::wstring> texts)
{
    std::vector<Argument> arguments;
    arguments.reserve(texts.size());
    for (std::wstring& text : texts)
    {
        Place place;
        place.index = static_cast<int>(arguments.size()) + 1;
        arguments.push_back({std::move(text), place});
    }
    return arguments;
}

KEXA_COMMAND_INLINE void Core::parse(int argc, const char* const* argv, void* object,
                                     Outcome& outcome)
{
    std::vector<std::wstring> texts;
    if (std::optional<std::vector<std::wstring>> reread = rereadArguments(argc, argv))
    {
        texts = std::move(*reread);
    }
    else
    {
        for (int i = 1; i < argc; ++i)
        {
            texts.push_back(argv[i] == nullptr ? std::wstring() : widen(argv[i]));
        }
    }
    parseArguments(*m_state, numbered(std::move(texts)), object, outcome);
}

KEXA_COMMAND_INLINE void Core::parse(int argc, const wchar_t* const* argv, void* object,
                                     Outcome& outcome)
{
    std::vector<std::wstring> texts;
    for (int i = 1; i < argc; ++i)
    {
        texts.emplace_back(argv[i] == nullptr ? L"" : argv[i]);
    }
    parseArguments(*m_state, numbered(std::move(texts)), object, outcome);
}

KEXA_COMMAND_INLINE void Core::parse(const std::vector<std::string>& arguments, void* object,
                                     Outcome& outcome)
{
    std::vector<std::wstring> texts;
    for (const std::string& argument : arguments)
    {
        texts.push_back(widen(argument));
    }
    parseArguments(*m_state, numbered(std::move(texts)), object, outcome);
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
