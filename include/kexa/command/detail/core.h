// A command without the type of its struct: what Command<Settings> is made of. Compiled once.
#ifndef KEXA_COMMAND_DETAIL_CORE_H
#define KEXA_COMMAND_DETAIL_CORE_H

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kexa/command/detail/declaration.h"
#include "kexa/command/detail/outcome.h"
#include "kexa/parser.h"

namespace kexa
{
inline namespace v1
{

// What a program takes from its users besides what the library takes.
enum class Conventions : unsigned char
{
    library, // names in full or abbreviated, behind one hyphen or two
    posix    // bundled letters, values glued to letters, negative numbers as positional arguments
};

namespace detail
{

// Makes and destroys an object of the struct's type.
struct StructOperations
{
    void* (*create)();
    void (*destroy)(void* object);
};

struct Definition;
class State;

class Core
{
public:
    // raise: called with the text that names the wrong declaration; does not return.
    Core(std::string_view name, std::string_view summary, StructOperations operations,
         void (*raise)(const std::string& text));
    static std::shared_ptr<Core> make(std::string_view name, std::string_view summary,
                                      StructOperations operations,
                                      void (*raise)(const std::string& text));
    Core(const Core&) = delete;
    Core& operator=(const Core&) = delete;
    ~Core();

    // An object of the struct's type, as its initialisers leave it.
    const void* prototype() const noexcept;

    Declaration& declare(Kind kind, std::string_view names, std::string_view description,
                         std::size_t offset, const MemberOperations* member);

    // Checks what depends on several parts of a declaration; called after each change of one.
    void checkDefault(const Declaration& declaration) const;
    void allow(Declaration& declaration, vexkit2::variant_t value) const;
    void allowName(Declaration& declaration, ValueTable& table, std::string_view name) const;
    void addRule(Declaration& declaration, std::unique_ptr<Rule> rule) const;
    void replaceValue(Declaration& declaration, vexkit2::variant_t old,
                      vexkit2::variant_t replacement) const;
    void replaceValue(Declaration& declaration, std::string_view old,
                      std::string_view replacement) const;
    void addAlias(Declaration& declaration, std::string_view names);
    void setImplicit(Declaration& declaration, std::string_view text) const;
    void setSeparator(Declaration& declaration, char separator) const;
    void setEnvironment(Declaration& declaration, std::string_view name) const;
    void setCounting(Declaration& declaration, void (*increment)(void*)) const;
    void setTimes(Declaration& declaration, std::size_t minimum, std::size_t maximum) const;
    void setRequired(Declaration& declaration) const;
    void acceptWith(Declaration& declaration, const Core* core, const Declaration& action) const;

    enum class Relation : unsigned char
    {
        together,
        needs,
        excludes,
        oneOf
    };
    struct Reference
    {
        const Core* core;
        const Declaration* declaration;
    };
    void relate(Relation relation, std::initializer_list<Reference> declarations);
    void addStructRule(std::unique_ptr<Rule> rule);
    void attach(Declaration& verb, const std::shared_ptr<Core>& inner);

    void setConventions(Conventions conventions);
    void allowAbbreviations(bool allowed);
    void allowTrace(bool allowed);
    void takeVerbs();
    void requireAction();
    void takeOptionFiles(std::string_view description);
    void setVersion(std::string_view text);
    void nameHelp(std::string_view names);
    void nameVersion(std::string_view names);
    void addExample(std::string_view line, std::string_view description);
    void setEpilog(std::string_view text);
    kexa_3_3::IParser& parser();

    // Parse into an object of the struct's type that is as its initialisers leave it.
    void parse(int argc, const char* const* argv, void* object, Outcome& outcome);
    void parse(int argc, const wchar_t* const* argv, void* object, Outcome& outcome);
    void parse(const std::vector<std::string>& arguments, void* object, Outcome& outcome);
    void parseLine(std::string_view line, void* object, Outcome& outcome);

    // columns: the width to lay the help out for; 0 for that of the terminal.
    std::string help(std::string_view topic, std::size_t columns);

    [[noreturn]] void misuse(const std::string& text) const;

    State& state() noexcept { return *m_state; }

private:
    // Verbs share their names with subcommands.
    void checkVerb(const Declaration& action, const std::string& name) const;
    void checkSubcommand(const std::string& name) const;
    void lead(const std::string& path); // sets the names that lead to the command

    std::unique_ptr<Definition> m_definition;
    std::unique_ptr<State> m_state;
};

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
