// The command line of a program, bound to a struct.
#ifndef KEXA_COMMAND_COMMAND_H
#define KEXA_COMMAND_COMMAND_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kexa/command/misuse.h"
#include "kexa/command/parsed.h"
#include "kexa/command/section.h"

namespace kexa
{
inline namespace v1
{

// Settings: a struct that can be default constructed; see Section for declaring its members. All
// texts are UTF-8 and copied. A command is movable, is used by one thread at a time and parses any
// number of times, each time into a new struct.
template <class Settings>
class Command : public Section<Settings>
{
public:
    // name:    of the program, or of the verb where this becomes a subcommand.
    // summary: one sentence for the help.
    explicit Command(std::string_view name, std::string_view summary = {})
        : Section<Settings>(
              detail::Core::make(name, summary,
                                 detail::StructOperations{[]() -> void* { return new Settings(); },
                                                          [](void* object)
                                                          {
                                                              delete static_cast<Settings*>(object);
                                                          }},
                                 detail::raiseMisuse),
              0)
    {
    }
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    Command(Command&&) noexcept = default;
    Command& operator=(Command&&) noexcept = default;

    // These actions may be given together.
    template <class... Actions>
    Command& together(const Action& first, const Actions&... others)
    {
        return relate(detail::Core::Relation::together, first, others...);
    }
    // Where the first is given, each of the others must be.
    template <class... Others>
    Command& needs(const Declared& first, const Others&... others)
    {
        return relate(detail::Core::Relation::needs, first, others...);
    }
    // Where the first is given, none of the others may be.
    template <class... Others>
    Command& excludes(const Declared& first, const Others&... others)
    {
        return relate(detail::Core::Relation::excludes, first, others...);
    }
    // Exactly one of these is given.
    template <class... Others>
    Command& oneOf(const Declared& first, const Others&... others)
    {
        return relate(detail::Core::Relation::oneOf, first, others...);
    }
    // function: takes the filled struct and returns why it is refused, or nothing, as for check().
    template <class Function>
    Command& require(Function function)
    {
        core().addStructRule(
            std::make_unique<detail::FunctionRule<Settings, Function>>(std::move(function)));
        return *this;
    }

    // A command line without an action is an error, also where it is empty.
    Command& actionRequired() { return core().requireAction(), *this; }
    // Actions are given without hyphens: "filesum sum a.txt".
    Command& verbs() { return core().takeVerbs(), *this; }
    // --option-file=NAME reads further arguments from a file, one in each line.
    Command& optionFiles(std::string_view description = "Read further arguments from a file")
    {
        return core().takeOptionFiles(description), *this;
    }
    Command& conventions(Conventions conventions)
    {
        return core().setConventions(conventions), *this;
    }
    // false: names are given in full.
    Command& abbreviations(bool allowed) { return core().allowAbbreviations(allowed), *this; }
    // true: the library's trace keyword is obeyed. For development.
    Command& trace(bool allowed) { return core().allowTrace(allowed), *this; }

    // --version prints this text.
    Command& version(std::string_view text) { return core().setVersion(text), *this; }
    // Other names for --help and --version; an empty text leaves the option out.
    Command& helpOption(std::string_view names) { return core().nameHelp(names), *this; }
    Command& versionOption(std::string_view names) { return core().nameVersion(names), *this; }
    // A line that the help shows below the options, and what it does.
    Command& example(std::string_view line, std::string_view description = {})
    {
        return core().addExample(line, description), *this;
    }
    // A paragraph at the end of the help.
    Command& epilog(std::string_view text) { return core().setEpilog(text), *this; }

    // Arguments as main() has them; the first is the program's name and is not parsed. Argument
    // texts are UTF-8; on Windows those of main() are read anew from the system.
    Parsed<Settings> parse(int argc, const char* const* argv)
    {
        return parsed([&](void* s, detail::Outcome& o) { core().parse(argc, argv, s, o); });
    }
    Parsed<Settings> parse(int argc, const wchar_t* const* argv)
    {
        return parsed([&](void* s, detail::Outcome& o) { core().parse(argc, argv, s, o); });
    }
    // Arguments without the program's name.
    Parsed<Settings> parse(const std::vector<std::string>& arguments)
    {
        return parsed([&](void* s, detail::Outcome& o) { core().parse(arguments, s, o); });
    }
    // One line, split as a shell does: at white space, with single and double quotes and backslash.
    Parsed<Settings> parseLine(std::string_view line)
    {
        return parsed([&](void* s, detail::Outcome& o) { core().parseLine(line, s, o); });
    }

    // The help, or that of the option, action or verb that `topic` names or abbreviates.
    // columns: the width to lay it out for; 0 takes that of the terminal.
    std::string help(std::string_view topic = {}, std::size_t columns = 0)
    {
        return core().help(topic, columns);
    }

    // The parser beneath. Options that are declared there may be given on the lines that this
    // command parses: by their names in full, and with a value behind '=' ("--name=value"). They
    // are read from Parsed::result() or by an event handler, and lie outside the layer's rules,
    // hints, occurrences and help. Call it after the last change to the command's own options.
    kexa_3_3::IParser& parser() { return core().parser(); }

    const std::shared_ptr<detail::Core>& sharedCore() const noexcept { return this->m_core; }

private:
    detail::Core& core() { return *this->m_core; }

    template <class... Others>
    Command& relate(detail::Core::Relation relation, const Others&... others)
    {
        core().relate(relation, {static_cast<const Declared&>(others).reference()...});
        return *this;
    }

    template <class Parse>
    Parsed<Settings> parsed(const Parse& parse)
    {
        Parsed<Settings> result;
        parse(&result.m_settings, result.m_outcome);
        return result;
    }
};

template <class Struct>
template <class Base, class Inner>
Declared Section<Struct>::subcommand(std::optional<Inner> Base::*member,
                                     const Command<Inner>& command)
{
    detail::Declaration& verb =
        m_core->declare(detail::Kind::subcommand, {}, {}, offsetOf(member), nullptr);
    verb.emplace = [](void* object) -> void*
    {
        return &static_cast<std::optional<Inner>*>(object)->emplace();
    };
    m_core->attach(verb, command.sharedCore());
    return Declared(*m_core, verb);
}

} // namespace v1
} // namespace kexa

#endif
