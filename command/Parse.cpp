// From a command line to a filled struct, or the first error.
#include <algorithm>
#include <cassert>
#include <memory>

#include "Binder.h"
#include "Characters.h"
#include "Inline.h"
#include "kexa/command/detail/numbers.h"
#include "kexa/option.h"
#include "Messages.h"
#include "platform/Environment.h"
#include "platform/ProcessArguments.h"
#include "Scan.h"
#include "text/Encoding.h"
#include "text/LineSplitting.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Binds one command's part of a line.
class LineBinding
{
public:
    LineBinding(const Scan& scan, const std::vector<std::string>& files, void* object,
                Outcome& outcome)
        : m_scan(scan), m_state(scan.state()), m_files(files), m_object(object), m_outcome(outcome),
          m_sources(m_state.declarations().size(), Source::defaulted)
    {
    }

    // Each step returns false where it has set the error.
    bool bind()
    {
        m_outcome.program = m_state.definition().path;
        m_outcome.helpName =
            m_state.helpOption() == nullptr ? std::string() : spelled(*m_state.helpOption());
        return parseGiven() && parseEnvironment() && checkMissing() && checkRelations() &&
               bindInner() && checkStruct();
    }

private:
    bool parseGiven();
    bool parseEnvironment();
    bool checkMissing();
    bool checkRelations();
    bool checkRelation(const RelationOfOptions& relation);
    bool bindInner();
    bool checkStruct();
    bool isChosen(const std::vector<std::size_t>& actions) const;
    bool refuse(const std::string& message, const Declaration* declaration,
                const std::string& hint = std::string());
    const Given* firstOf(const Declaration& declaration) const;
    kexa_3_3::result_t runParser(const std::vector<const wchar_t*>& arguments, Binder& binder,
                                 bool checksActions);

    const Scan& m_scan;
    State& m_state;
    const std::vector<std::string>& m_files;
    void* m_object;
    Outcome& m_outcome;
    std::vector<Source> m_sources; // by the index of the declaration
};

KEXA_COMMAND_INLINE const Given* LineBinding::firstOf(const Declaration& declaration) const
{
    for (const Given& given : m_scan.givens())
    {
        if (given.declaration == &declaration)
        {
            return &given;
        }
    }
    return nullptr;
}

KEXA_COMMAND_INLINE bool LineBinding::refuse(const std::string& message,
                                             const Declaration* declaration,
                                             const std::string& hint)
{
    const Given* given = declaration == nullptr ? nullptr : firstOf(*declaration);
    setError(m_outcome, kexa_3_3::result_invalid_arguments, widen(message), declaration,
             given == nullptr ? Place() : given->place, m_files);
    m_outcome.error.hint = hint;
    return false;
}

KEXA_COMMAND_INLINE kexa_3_3::result_t
LineBinding::runParser(const std::vector<const wchar_t*>& arguments, Binder& binder,
                       bool checksActions)
{
    kexa_3_3::IParser& parser = m_state.parser();
    kexa_3_3::IParseResult* made = nullptr;
    if (checksActions)
    {
        parser.createParseResult(&made);
    }
    const std::unique_ptr<kexa_3_3::IParseResult, Releaser> result(made);
    parser.addEventHandler(&binder);
    const kexa_3_3::result_t code =
        parser.parse(static_cast<std::int32_t>(arguments.size()), arguments.data(), made);
    parser.removeEventHandler(&binder);
    if (code != kexa_3_3::result_success)
    {
        m_state.countFailure();
    }
    binder.rethrow();
    return code;
}

KEXA_COMMAND_INLINE bool LineBinding::parseGiven()
{
    const std::vector<Given>& givens = m_scan.givens();
    const Fault& fault = m_scan.fault();
    std::vector<const wchar_t*> arguments = {L""};
    arguments.reserve(givens.size() + fault.raw.size() + 2);
    if (m_scan.isTraced())
    {
        arguments.push_back(L"kexaoption=kexalogenable=1");
    }
    for (const Given& given : givens)
    {
        arguments.push_back(given.raw.c_str());
        m_sources[given.declaration->index] = Source::given;
    }
    for (const std::wstring& raw : fault.raw)
    {
        arguments.push_back(raw.c_str());
    }
    Binder binder(m_state.definition(), givens, m_files, Source::given, m_object, m_outcome);
    const kexa_3_3::result_t code = runParser(arguments, binder, true);
    const std::wstring message =
        code == 0 ? std::wstring() : std::wstring(m_state.parser().getErrorMessage());
    if (code != 0 && isValueMessage(message) && binder.begun() > 0)
    {
        const Given& given = givens[binder.begun() - 1];
        setValueError(m_outcome, code, message, given, binder.reason(), m_files);
        return false;
    }
    if (fault.isFound)
    {
        setFault(m_outcome, code, message, fault, m_files);
        return false;
    }
    if (code != 0)
    {
        setActionError(m_outcome, code, message, m_scan, m_files);
        return false;
    }
    return true;
}

KEXA_COMMAND_INLINE bool LineBinding::parseEnvironment()
{
    std::vector<Given> givens;
    for (const Declaration* declaration : m_state.declarations())
    {
        if (declaration->environment.empty() || m_sources[declaration->index] != Source::defaulted)
        {
            continue;
        }
        const std::optional<std::string> value = environmentVariable(declaration->environment);
        if (!value || value->empty())
        {
            continue;
        }
        const std::wstring wide = widen(*value);
        const std::wstring& name = m_state.rawName(*declaration);
        std::wstring raw = name + L"=" + wide;
        std::string reason;
        if (declaration->isFlag())
        {
            const vexkit2::variant_t flag = convertText(kexa_3_3::value_type_boolean, wide, reason);
            if (flag.kind() == vexkit2::kind_boolean)
            {
                raw = flag.get<bool>() ? name : L"--no-" + name.substr(2);
            }
        }
        m_sources[declaration->index] = Source::environment;
        givens.push_back({declaration, std::move(raw), wide, Place(), false});
    }
    if (givens.empty())
    {
        return true;
    }
    std::vector<const wchar_t*> arguments = {L""};
    for (const Given& given : givens)
    {
        arguments.push_back(given.raw.c_str());
    }
    Binder binder(m_state.definition(), givens, m_files, Source::environment, m_object, m_outcome);
    const kexa_3_3::result_t code = runParser(arguments, binder, false);
    if (code == 0)
    {
        return true;
    }
    // Of a boolean with another value the parser does not tell that it has come to it.
    const std::wstring message = m_state.parser().getErrorMessage();
    const std::size_t begun = binder.begun() - (isValueMessage(message) ? 1 : 0);
    setValueError(m_outcome, code, message, givens[std::min(begun, givens.size() - 1)],
                  binder.reason(), m_files);
    const std::string& variable =
        givens[std::min(begun, givens.size() - 1)].declaration->environment;
    m_outcome.error.environment = variable;
    m_outcome.error.message += " (environment variable '" + variable + "')";
    m_outcome.error.wideMessage = widen(m_outcome.error.message);
    return false;
}

KEXA_COMMAND_INLINE bool LineBinding::isChosen(const std::vector<std::size_t>& actions) const
{
    return std::any_of(actions.begin(), actions.end(),
                       [this](std::size_t action) { return m_sources[action] == Source::given; });
}

KEXA_COMMAND_INLINE bool LineBinding::checkMissing()
{
    const Definition& definition = m_state.definition();
    bool hasAction = false;
    bool isActionGiven = m_scan.inner() != nullptr;
    for (const Declaration* declaration : m_state.declarations())
    {
        const bool isAction = declaration->kind == Kind::action;
        hasAction = hasAction || isAction;
        isActionGiven =
            isActionGiven || (isAction && m_sources[declaration->index] == Source::given);
    }
    if (definition.actionRequired && !isActionGiven)
    {
        return refuse(hasAction ? "No action defined." : "No command given.", nullptr,
                      hintOfActions(m_state));
    }
    for (const Declaration* declaration : m_state.declarations())
    {
        if (isNamedOption(*declaration) && declaration->required &&
            m_sources[declaration->index] == Source::defaulted &&
            (declaration->actions.empty() || isChosen(declaration->actions)))
        {
            refuse("missing option: " + spelled(*declaration), declaration);
            m_outcome.error.option = declaration->names.front();
            return false;
        }
    }
    const Declaration* missing = m_scan.missing();
    if (missing != nullptr && m_sources[missing->index] != Source::environment)
    {
        refuse("missing argument: " + missing->names.front(), nullptr);
        m_outcome.error.option = missing->names.front();
        return false;
    }
    return true;
}

KEXA_COMMAND_INLINE bool LineBinding::checkRelations()
{
    for (const RelationOfOptions& relation : m_state.definition().relations)
    {
        if (!checkRelation(relation))
        {
            return false;
        }
    }
    return true;
}

KEXA_COMMAND_INLINE bool LineBinding::checkRelation(const RelationOfOptions& relation)
{
    if (relation.relation == Core::Relation::together)
    {
        return true; // the parser's
    }
    const std::vector<const Declaration*>& members = relation.members;
    const auto source = [this](const Declaration* each)
    {
        return m_sources[each->index];
    };
    if (relation.relation == Core::Relation::oneOf)
    {
        const auto given = std::count_if(members.begin(), members.end(),
                                         [&](auto* each) { return source(each) == Source::given; });
        const bool isSet =
            std::any_of(members.begin(), members.end(),
                        [&](auto* each) { return source(each) != Source::defaulted; });
        if (given <= 1 && isSet)
        {
            return true;
        }
        std::string list;
        for (const Declaration* member : members)
        {
            list += (list.empty() ? "'" : ", '") + spelled(*member) + "'";
        }
        return refuse(
            (given > 1 ? "only one of these is possible: " : "one of these is required: ") + list,
            nullptr);
    }
    if (source(members.front()) != Source::given)
    {
        return true;
    }
    const bool isNeeds = relation.relation == Core::Relation::needs;
    for (std::size_t i = 1; i < members.size(); ++i)
    {
        const bool isWrong =
            isNeeds ? source(members[i]) == Source::defaulted : source(members[i]) == Source::given;
        if (isWrong)
        {
            return refuse("'" + spelled(*members.front()) +
                              (isNeeds ? "' needs '" : "' cannot be given together with '") +
                              spelled(*members[i]) + "'",
                          members.front());
        }
    }
    return true;
}

KEXA_COMMAND_INLINE bool LineBinding::bindInner()
{
    if (m_scan.inner() == nullptr)
    {
        return true;
    }
    const Declaration& verb = *m_scan.subcommand();
    void* object = verb.emplace(static_cast<char*>(m_object) + verb.offset);
    m_outcome.sources.push_back({verb.offset, Source::given});
    Outcome inner;
    inner.occurrences = std::move(m_outcome.occurrences);
    const bool isBound = LineBinding(*m_scan.inner(), m_files, object, inner).bind();
    m_outcome.occurrences = std::move(inner.occurrences);
    if (!isBound)
    {
        m_outcome.status = inner.status;
        m_outcome.error = std::move(inner.error);
        m_outcome.program = std::move(inner.program);
        m_outcome.helpName = std::move(inner.helpName);
    }
    return isBound;
}

KEXA_COMMAND_INLINE bool LineBinding::checkStruct()
{
    for (const auto& rule : m_state.definition().rules)
    {
        const std::string reason = rule->refuse(m_object);
        if (!reason.empty())
        {
            refuse(reason, nullptr);
            m_outcome.error.code = kexa_3_3::result_nothing;
            return false;
        }
    }
    return true;
}

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
    setError(outcome, kexa_3_3::result_invalid_arguments,
             L"unterminated quote: " + widen(line.substr(*split.unterminatedQuote)), nullptr,
             Place(), {});
}

} // namespace detail
} // namespace v1
} // namespace kexa
