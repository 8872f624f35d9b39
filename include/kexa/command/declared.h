// Declarations of a command as the program names them, and actions.
#ifndef KEXA_COMMAND_DECLARED_H
#define KEXA_COMMAND_DECLARED_H

#include <string_view>

#include "kexa/command/detail/core.h"

namespace kexa
{
inline namespace v1
{

// Names one declaration of a command. Cheap to copy; not to be used after the Command is gone.
class Declared
{
public:
    Declared(detail::Core& core, detail::Declaration& declaration) noexcept
        : m_core(&core), m_declaration(&declaration)
    {
    }

    detail::Core::Reference reference() const noexcept { return {m_core, m_declaration}; }

protected:
    detail::Core* m_core;
    detail::Declaration* m_declaration;
};

// An action of a command, to be named in of() and together().
class Action : public Declared
{
public:
    using Declared::Declared;

    Action& group(std::string_view name) { return m_declaration->group = name, *this; }
    Action& hidden() { return m_declaration->hidden = true, *this; }
    Action& alias(std::string_view names) { return m_core->addAlias(*m_declaration, names), *this; }
    Action& deprecated(std::string_view instead)
    {
        return m_declaration->deprecation = instead, *this;
    }
};

} // namespace v1
} // namespace kexa

#endif
