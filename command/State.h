// What is made from the declarations of a command before it parses: names, and the parser beneath.
#ifndef KEXA_COMMAND_PRIVATE_STATE_H
#define KEXA_COMMAND_PRIVATE_STATE_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Definition.h"
#include "kexa/parser.h"
#include "NameTable.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

struct Releaser
{
    template <class Object>
    void operator()(Object* object) const
    {
        object->release();
    }
};

class State
{
public:
    State(Core& core, Definition& definition) : m_core(&core), m_definition(&definition) {}

    const Definition& definition() const { return *m_definition; }
    Core& core() const { return *m_core; }

    // The declarations have changed.
    void invalidate() { m_isPrepared = false; }

    // Brings everything up to date with the declarations. Declarations that cannot work are misuse.
    void prepare();

    // The following need prepare() before.

    // All declarations, --help and --version included; at the position of their index.
    const std::vector<const Declaration*>& declarations() const { return m_all; }
    const std::vector<const Declaration*>& positionals() const { return m_positionals; }
    const NameTable& names() const { return m_names; }
    const NameTable& verbs() const { return m_verbs; }
    const Declaration* helpOption() const { return m_help.get(); }
    kexa_3_3::IParser& parser() { return *m_parser; }

    // "--name", as the argument that the parser takes for the option.
    const std::wstring& rawName(const Declaration& declaration) const
    {
        return m_rawNames[declaration.index];
    }

    // The names by the index of the declaration, for outcomes that outlive this.
    const std::shared_ptr<const std::vector<std::string>>& primaryNames() const
    {
        return m_primaryNames;
    }

    // Numbers the members of the struct that declarations bind. Several may bind one.
    std::size_t memberNumber(const Declaration& declaration) const
    {
        return m_memberNumbers[declaration.index];
    }
    std::size_t memberCount() const { return m_memberCount; }

    // The parser keeps each of its messages: after many it is made anew.
    void countFailure();

    // For a program that declares on its own.
    kexa_3_3::IParser& sharedParser();
    bool isShared() const { return m_isShared; }

    // Whether the program has declared an option of this name, or that which a name behind "no-"
    // negates, at the parser.
    bool isDeclaredBeneath(std::wstring_view name) const;

private:
    std::unique_ptr<Declaration> declareBuiltIn(Kind kind, const std::string& names,
                                                const char* description);
    void addNames(const Declaration& declaration);
    void checkDeclarations() const;
    void checkPositionals() const;
    void numberMembers();
    void makeParser();
    bool isRegistered(const Declaration& declaration) const;
    void registerOption(const Declaration& declaration);

    Core* m_core;
    Definition* m_definition;
    bool m_isPrepared = false;
    bool m_isShared = false;
    std::size_t m_failures = 0;
    std::vector<const Declaration*> m_all;
    std::vector<const Declaration*> m_positionals;
    std::vector<std::wstring> m_rawNames;
    std::shared_ptr<const std::vector<std::string>> m_primaryNames;
    std::vector<std::size_t> m_memberNumbers;
    std::size_t m_memberCount = 0;
    std::unique_ptr<Declaration> m_help;
    std::unique_ptr<Declaration> m_version;
    NameTable m_names;
    NameTable m_verbs;
    std::unique_ptr<kexa_3_3::IParser, Releaser> m_parser;
};

// Whether the name has one code point, and so is written behind one hyphen.
bool isOneCodePoint(std::string_view name);

// Tells a mistake in a declaration. Does not return.
void misuseOf(const Core& core, const Definition& definition, const Declaration& declaration,
              const std::string& text);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
