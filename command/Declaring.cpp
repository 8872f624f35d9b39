// What a program declares about one option, and the mistakes that are told at once.
#include <algorithm>

#include "Definition.h"
#include "Inline.h"
#include "State.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_LOCAL bool holdsName(const Declaration& declaration, std::string_view name)
{
    return std::find(declaration.names.begin(), declaration.names.end(), name) !=
           declaration.names.end();
}

KEXA_COMMAND_INLINE void misuseOf(const Core& core, const Definition& definition,
                                  const Declaration& declaration, const std::string& text)
{
    core.misuse("kexa: command '" + definition.name + "', '" +
                (declaration.names.empty() ? std::string() : spelled(declaration)) + "': " + text);
}

KEXA_COMMAND_INLINE Declaration& Core::declare(Kind kind, std::string_view names,
                                               std::string_view description, std::size_t offset,
                                               const MemberOperations* member)
{
    auto declaration = std::make_unique<Declaration>();
    declaration->kind = kind;
    declaration->description = description;
    declaration->offset = offset;
    declaration->member = member;
    declaration->index = m_definition->declarations.size();
    const bool isList = member != nullptr && member->list;
    declaration->maximum = isList ? static_cast<std::size_t>(-1) : 1; // see isUnlimited()
    if (kind != Kind::subcommand) // which has the name of its command
    {
        for (std::string& name : splitNames(names))
        {
            checkName(*this, *m_definition, *declaration, name, names);
            if (holdsName(*declaration, name))
            {
                misuse("kexa: command '" + m_definition->name + "', declaration '" +
                       std::string(names) + "': the name '" + name + "' is given twice");
            }
            declaration->names.push_back(std::move(name));
        }
        declaration->shownNames = declaration->names.size();
    }
    if (isPositional(*declaration))
    {
        if (declaration->names.size() > 1)
        {
            misuseOf(*this, *m_definition, *declaration, "a positional argument has one name");
        }
        for (const auto& other : m_definition->declarations)
        {
            if (other->kind == Kind::rest ||
                (kind == Kind::rest && isPositional(*other) && isUnlimited(*other)))
            {
                misuseOf(*this, *m_definition, *declaration,
                         "never gets an argument: '" + other->names.front() + "' takes all");
            }
        }
    }
    for (const std::string& name : declaration->names)
    {
        if (m_definition->verbs)
        {
            checkVerb(*declaration, name);
        }
    }
    for (const std::string& name : declaration->names)
    {
        (isPositional(*declaration) ? m_definition->positionals : m_definition->options)
            .emplace(name, declaration.get());
    }
    m_state->invalidate();
    m_definition->declarations.push_back(std::move(declaration));
    return *m_definition->declarations.back();
}

KEXA_COMMAND_INLINE void Core::addAlias(Declaration& declaration, std::string_view names)
{
    if (!isNamedOption(declaration))
    {
        misuseOf(*this, *m_definition, declaration, "a positional argument has no alias");
    }
    for (std::string& name : splitNames(names))
    {
        checkName(*this, *m_definition, declaration, name, names);
        if (m_definition->verbs)
        {
            checkVerb(declaration, name);
        }
        m_definition->options.emplace(name, &declaration);
        declaration.names.push_back(std::move(name));
    }
    m_state->invalidate();
}

KEXA_COMMAND_INLINE void Core::setImplicit(Declaration& declaration, std::string_view text) const
{
    if (declaration.kind != Kind::option || declaration.isFlag() || text.empty())
    {
        misuseOf(*this, *m_definition, declaration,
                 "an implicit value is a text that is not empty, of an option that takes a value");
    }
    declaration.isImplicit = true;
    declaration.implicitText = text;
}

KEXA_COMMAND_INLINE void Core::setSeparator(Declaration& declaration, char separator) const
{
    if (!declaration.member->list)
    {
        misuseOf(*this, *m_definition, declaration, "only a list has a separator");
    }
    if (separator <= 0)
    {
        misuseOf(*this, *m_definition, declaration, "a separator is an ASCII character");
    }
    declaration.separator = separator;
}

KEXA_COMMAND_INLINE void Core::setEnvironment(Declaration& declaration, std::string_view name) const
{
    if (declaration.kind != Kind::option && declaration.kind != Kind::positional)
    {
        misuseOf(*this, *m_definition, declaration, "takes no value from the environment");
    }
    if (name.empty() || name.find('=') != std::string_view::npos)
    {
        misuseOf(*this, *m_definition, declaration,
                 "'" + std::string(name) + "' names no environment variable");
    }
    declaration.environment = name;
}

KEXA_COMMAND_INLINE void Core::setCounting(Declaration& declaration, void (*increment)(void*)) const
{
    if (declaration.kind != Kind::option || declaration.member->list)
    {
        misuseOf(*this, *m_definition, declaration, "only an option with an integer can count");
    }
    if (!declaration.environment.empty() || declaration.isImplicit || !declaration.rules.empty() ||
        !declaration.allowed.empty())
    {
        misuseOf(*this, *m_definition, declaration,
                 "counts, and so has no values, rules, implicit value or environment variable");
    }
    declaration.kind = Kind::count;
    declaration.increment = increment;
}

KEXA_COMMAND_INLINE void Core::setTimes(Declaration& declaration, std::size_t minimum,
                                        std::size_t maximum) const
{
    if (!isPositional(declaration) || minimum > maximum || maximum == 0 ||
        (maximum > 1 && !declaration.member->list))
    {
        misuseOf(*this, *m_definition, declaration,
                 "only a positional list takes from so many to so many arguments");
    }
    declaration.minimum = minimum;
    declaration.maximum = maximum;
}

KEXA_COMMAND_INLINE void Core::setRequired(Declaration& declaration) const
{
    declaration.required = true;
    if (isPositional(declaration))
    {
        declaration.minimum = std::max<std::size_t>(declaration.minimum, 1);
    }
}

KEXA_COMMAND_INLINE void Core::acceptWith(Declaration& declaration, const Core* core,
                                          const Declaration& action) const
{
    if (core != this)
    {
        misuseOf(*this, *m_definition, declaration,
                 "the action '" + spelled(action) + "' belongs to another command");
    }
    if (std::find(declaration.actions.begin(), declaration.actions.end(), action.index) !=
        declaration.actions.end())
    {
        misuseOf(*this, *m_definition, declaration,
                 "the action '" + spelled(action) + "' is named twice");
    }
    declaration.actions.push_back(action.index);
}

} // namespace detail
} // namespace v1
} // namespace kexa
