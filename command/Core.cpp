#include "kexa/command/detail/core.h"

#include <algorithm>
#include <cstdlib>

#include "Definition.h"
#include "Inline.h"
#include "kexa/command/detail/numbers.h"
#include "State.h"
#include "text/Encoding.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE Core::Core(std::string_view name, std::string_view summary,
                               StructOperations operations, void (*raise)(const std::string&))
    : m_definition(std::make_unique<Definition>())
{
    m_definition->name = name;
    m_definition->path = name;
    m_definition->summary = summary;
    m_definition->operations = operations;
    m_definition->misuse = raise;
    m_definition->prototype = operations.create();
    m_state = std::make_unique<State>(*this, *m_definition);
}

KEXA_COMMAND_INLINE std::shared_ptr<Core> Core::make(std::string_view name,
                                                     std::string_view summary,
                                                     StructOperations operations,
                                                     void (*raise)(const std::string&))
{
    return std::make_shared<Core>(name, summary, operations, raise);
}

KEXA_COMMAND_INLINE Core::~Core()
{
    m_definition->operations.destroy(m_definition->prototype);
}

KEXA_COMMAND_INLINE const void* Core::prototype() const noexcept
{
    return m_definition->prototype;
}

KEXA_COMMAND_INLINE void Core::misuse(const std::string& text) const
{
    m_definition->misuse(text);
    std::abort(); // a handler that returns
}

KEXA_COMMAND_INLINE std::vector<std::string> allowedTexts(const Declaration& declaration)
{
    std::vector<std::string> texts;
    for (const vexkit2::variant_t& value : declaration.allowed)
    {
        texts.push_back(textOfValue(value));
    }
    return texts;
}

KEXA_COMMAND_INLINE std::vector<std::string> defaultTexts(const Definition& definition,
                                                          const Declaration& declaration)
{
    std::vector<std::string> texts;
    if (declaration.member != nullptr)
    {
        const char* settings = static_cast<const char*>(definition.prototype);
        declaration.member->texts(settings + declaration.offset, declaration, texts);
    }
    return texts;
}

KEXA_COMMAND_INLINE void Core::checkDefault(const Declaration& declaration) const
{
    const char* settings = static_cast<const char*>(m_definition->prototype);
    const std::string reason =
        declaration.member->refuseDefault(settings + declaration.offset, declaration);
    if (!reason.empty())
    {
        misuseOf(*this, *m_definition, declaration, "its default is not allowed: " + reason);
    }
    const std::vector<std::string> allowed = allowedTexts(declaration);
    for (const std::string& text : defaultTexts(*m_definition, declaration))
    {
        // An empty text stands for no value; a value without a name is none that was declared.
        const bool isAbsent = text.empty() && declaration.table == nullptr;
        if (!allowed.empty() && !isAbsent &&
            std::find(allowed.begin(), allowed.end(), text) == allowed.end())
        {
            misuseOf(*this, *m_definition, declaration,
                     "its default '" + text + "' is not among its values");
        }
    }
}

KEXA_COMMAND_INLINE void Core::allow(Declaration& declaration, vexkit2::variant_t value) const
{
    if (declaration.kind == Kind::count)
    {
        misuseOf(*this, *m_definition, declaration, "counts, and so has no values to check");
    }
    declaration.allowed.push_back(std::move(value));
    m_state->invalidate();
}

KEXA_COMMAND_INLINE void Core::allowName(Declaration& declaration, ValueTable& table,
                                         std::string_view name) const
{
    if (name.empty() ||
        std::find(table.names.begin(), table.names.end(), name) != table.names.end())
    {
        misuseOf(*this, *m_definition, declaration,
                 "the name '" + std::string(name) + "' of a value is empty or given twice");
    }
    table.names.emplace_back(name);
    allow(declaration, vexkit2::variant_t(widen(name)));
}

KEXA_COMMAND_INLINE void Core::addRule(Declaration& declaration, std::unique_ptr<Rule> rule) const
{
    if (declaration.kind == Kind::count)
    {
        misuseOf(*this, *m_definition, declaration, "counts, and so has no values to check");
    }
    declaration.rules.push_back(std::move(rule));
}

KEXA_COMMAND_INLINE void Core::replaceValue(Declaration& declaration, vexkit2::variant_t old,
                                            vexkit2::variant_t replacement) const
{
    if (std::find(declaration.allowed.begin(), declaration.allowed.end(), replacement) ==
        declaration.allowed.end())
    {
        misuseOf(*this, *m_definition, declaration,
                 "the replacement '" + textOfValue(replacement) +
                     "' of a deprecated value is not among its values");
    }
    declaration.deprecated.emplace_back(std::move(old), std::move(replacement));
    m_state->invalidate();
}

KEXA_COMMAND_INLINE void Core::replaceValue(Declaration& declaration, std::string_view old,
                                            std::string_view replacement) const
{
    replaceValue(declaration, vexkit2::variant_t(widen(old)),
                 vexkit2::variant_t(widen(replacement)));
}

KEXA_COMMAND_INLINE void Core::relate(Relation relation,
                                      std::initializer_list<Reference> declarations)
{
    RelationOfOptions related{relation, {}};
    for (const Reference& reference : declarations)
    {
        if (reference.core != this)
        {
            misuseOf(*this, *m_definition, *reference.declaration, "belongs to another command");
        }
        related.members.push_back(reference.declaration);
    }
    m_definition->relations.push_back(std::move(related));
    m_state->invalidate();
}

KEXA_COMMAND_INLINE void Core::addStructRule(std::unique_ptr<Rule> rule)
{
    m_definition->rules.push_back(std::move(rule));
}

KEXA_COMMAND_INLINE void Core::attach(Declaration& verb, const std::shared_ptr<Core>& inner)
{
    Definition& innerDefinition = *inner->m_definition;
    if (inner.get() == this || innerDefinition.attached)
    {
        misuse("kexa: command '" + m_definition->name + "': the subcommand '" +
               innerDefinition.name + "' belongs to a command already");
    }
    const std::vector<std::string>& taken = m_definition->subcommands;
    if (std::find(taken.begin(), taken.end(), innerDefinition.name) != taken.end())
    {
        misuse("kexa: command '" + m_definition->name + "': the subcommand '" +
               innerDefinition.name + "' is taken already");
    }
    if (m_definition->verbs)
    {
        checkSubcommand(innerDefinition.name);
    }
    m_definition->subcommands.push_back(innerDefinition.name);
    verb.names = {innerDefinition.name};
    verb.shownNames = 1;
    verb.description = innerDefinition.summary;
    verb.command = inner;
    innerDefinition.attached = true;
    inner->lead(m_definition->path);
    m_state->invalidate();
}

KEXA_COMMAND_INLINE void Core::checkVerb(const Declaration& action, const std::string& name) const
{
    const std::vector<std::string>& taken = m_definition->subcommands;
    if (action.kind == Kind::action && std::find(taken.begin(), taken.end(), name) != taken.end())
    {
        misuseOf(*this, *m_definition, action,
                 "cannot be a verb: a subcommand has the name '" + name + "'");
    }
}

KEXA_COMMAND_INLINE void Core::checkSubcommand(const std::string& name) const
{
    const auto found = m_definition->options.find(name);
    if (found != m_definition->options.end() && found->second->kind == Kind::action)
    {
        misuseOf(*this, *m_definition, *found->second,
                 "cannot be a verb: a subcommand has the name '" + name + "'");
    }
}

KEXA_COMMAND_INLINE void Core::lead(const std::string& path)
{
    m_definition->path = path + " " + m_definition->name;
    for (const auto& declaration : m_definition->declarations)
    {
        if (declaration->command != nullptr)
        {
            declaration->command->lead(m_definition->path);
        }
    }
}

KEXA_COMMAND_INLINE void Core::setConventions(Conventions conventions)
{
    m_definition->conventions = conventions;
}
KEXA_COMMAND_INLINE void Core::allowAbbreviations(bool allowed)
{
    m_definition->abbreviations = allowed;
}
KEXA_COMMAND_INLINE void Core::allowTrace(bool allowed)
{
    m_definition->trace = allowed;
}
KEXA_COMMAND_INLINE void Core::takeVerbs()
{
    for (const std::string& name : m_definition->subcommands)
    {
        checkSubcommand(name);
    }
    m_definition->verbs = true;
    m_state->invalidate();
}
KEXA_COMMAND_INLINE void Core::requireAction()
{
    m_definition->actionRequired = true;
}
KEXA_COMMAND_INLINE void Core::takeOptionFiles(std::string_view description)
{
    declare(Kind::optionFile, "option-file", description, 0, nullptr);
}
KEXA_COMMAND_INLINE void Core::setVersion(std::string_view text)
{
    m_definition->version = text;
    m_state->invalidate();
}
KEXA_COMMAND_INLINE void Core::nameHelp(std::string_view names)
{
    m_definition->helpNames = names;
    m_state->invalidate();
}
KEXA_COMMAND_INLINE void Core::nameVersion(std::string_view names)
{
    m_definition->versionNames = names;
    m_state->invalidate();
}
KEXA_COMMAND_INLINE void Core::addExample(std::string_view line, std::string_view description)
{
    m_definition->examples.emplace_back(line, description);
}
KEXA_COMMAND_INLINE void Core::setEpilog(std::string_view text)
{
    m_definition->epilog = text;
}
KEXA_COMMAND_INLINE kexa_3_3::IParser& Core::parser()
{
    return m_state->sharedParser();
}

} // namespace detail
} // namespace v1
} // namespace kexa
