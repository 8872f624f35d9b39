// Declaring the members of a struct: of the settings themselves, or of a struct within them.
#ifndef KEXA_COMMAND_SECTION_H
#define KEXA_COMMAND_SECTION_H

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

#include "kexa/command/detail/erased.h"
#include "kexa/command/option.h"

namespace kexa
{
inline namespace v1
{

template <class Settings>
class Command;

template <class Struct>
class Section
{
public:
    Section(std::shared_ptr<detail::Core> core, std::size_t offset)
        : m_core(std::move(core)), m_offset(offset)
    {
    }

    // Declares an option.
    //
    // member:      receives the value. Its initialiser is the default.
    // names:       split at ','; the first is the one that messages show. Without hyphens.
    // description: the text for the help.
    template <class Base, class Member>
    Option<Member> option(Member Base::*member, std::string_view names,
                          std::string_view description)
    {
        return declare<Option<Member>, Member>(detail::Kind::option, member, names, description);
    }

    // Declares an action: a bool that is given without a value, and of which a command line has one
    // (or several, see together()).
    template <class Base>
    Action action(bool Base::*member, std::string_view names, std::string_view description)
    {
        return declare<Action, bool>(detail::Kind::action, member, names, description);
    }

    // Declares a positional argument. name: what the help and messages call it.
    template <class Base, class Member>
    Option<Member> positional(Member Base::*member, std::string_view name,
                              std::string_view description)
    {
        return declare<Option<Member>, Member>(detail::Kind::positional, member, name, description);
    }

    // Declares what takes everything that is left over, hyphens or not: from the first plain argument
    // that no positional member takes, or from "--". Options before that are the program's own.
    template <class Base, class Member>
    Option<Member> rest(Member Base::*member, std::string_view name, std::string_view description)
    {
        return declare<Option<Member>, Member>(detail::Kind::rest, member, name, description);
    }

    // Declares a verb, the name of the given command: the words behind it are that command's. The
    // two objects share its declarations from then on.
    template <class Base, class Inner>
    Declared subcommand(std::optional<Inner> Base::*member, const Command<Inner>& command);

    // The members of a struct that is itself a member.
    template <class Base, class Inner>
    Section<Inner> in(Inner Base::*member)
    {
        return Section<Inner>(m_core, offsetOf(member));
    }

protected:
    template <class Handle, class Member, class Pointer>
    Handle declare(detail::Kind kind, Pointer member, std::string_view names,
                   std::string_view description)
    {
        return Handle(*m_core, m_core->declare(kind, names, description, offsetOf(member),
                                               &detail::Erased<Member>::operations));
    }

    // The distance of a member from the beginning of the settings.
    template <class Pointer>
    std::size_t offsetOf(Pointer member) const
    {
        const char* settings = static_cast<const char*>(m_core->prototype());
        const auto* object = reinterpret_cast<const Struct*>(settings + m_offset);
        return static_cast<std::size_t>(reinterpret_cast<const char*>(&(object->*member)) -
                                        settings);
    }

    std::shared_ptr<detail::Core> m_core;
    std::size_t m_offset;
};

} // namespace v1
} // namespace kexa

#endif
