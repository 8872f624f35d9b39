#include "State.h"

#include <algorithm>
#include <cassert>
#include <set>
#include <unordered_map>

#include "Characters.h"
#include "Inline.h"
#include "text/Encoding.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// After so many messages the parser is made anew. One message has some hundred characters, and
// making a parser of 20 options costs as much as some ten failed lines.
constexpr std::size_t failures_per_parser = 256;

KEXA_COMMAND_INLINE void State::countFailure()
{
    if (++m_failures >= failures_per_parser && !m_isShared)
    {
        invalidate();
    }
}

KEXA_COMMAND_INLINE kexa_3_3::IParser& State::sharedParser()
{
    prepare();
    m_isShared = true;
    return *m_parser;
}

KEXA_COMMAND_INLINE bool State::isDeclaredBeneath(std::wstring_view name) const
{
    if (!m_isShared)
    {
        return false;
    }
    const std::wstring whole(name);
    return m_parser->hasOption(whole.c_str(), true, nullptr) ||
           m_parser->hasOption(whole.c_str(), false, nullptr) ||
           (whole.compare(0, 3, L"no-") == 0 &&
            m_parser->hasOption(whole.c_str() + 3, false, nullptr));
}

// --help and --version take those of their names that are free.
KEXA_COMMAND_INLINE std::unique_ptr<Declaration>
State::declareBuiltIn(Kind kind, const std::string& names, const char* description)
{
    if (names.empty())
    {
        return nullptr;
    }
    auto declaration = std::make_unique<Declaration>();
    declaration->kind = kind;
    declaration->description = description;
    for (const std::string& name : splitNames(names))
    {
        if (m_names.findUnsorted(widen(name)) == nullptr)
        {
            declaration->names.push_back(name);
        }
    }
    declaration->shownNames = declaration->names.size();
    declaration->index = m_all.size();
    if (declaration->names.empty())
    {
        return nullptr;
    }
    m_all.push_back(declaration.get());
    addNames(*declaration);
    return declaration;
}

KEXA_COMMAND_INLINE void State::addNames(const Declaration& declaration)
{
    for (std::size_t i = 0; i < declaration.names.size(); ++i)
    {
        const bool hidden = declaration.hidden || i >= declaration.shownNames;
        const std::string& name = declaration.names[i];
        if (declaration.kind == Kind::subcommand ||
            (declaration.kind == Kind::action && m_definition->verbs))
        {
            m_verbs.add(name, declaration, false, hidden);
        }
        if (isNamedOption(declaration))
        {
            m_names.add(name, declaration, false, hidden);
        }
        if (hasNegation(declaration))
        {
            m_names.add("no-" + name, declaration, true, hidden);
        }
    }
}

// Whether some line may have both.
KEXA_COMMAND_LOCAL bool meet(const Declaration& left, const Declaration& right)
{
    return left.actions.empty() || right.actions.empty() ||
           std::find_first_of(left.actions.begin(), left.actions.end(), right.actions.begin(),
                              right.actions.end()) != left.actions.end();
}

KEXA_COMMAND_INLINE void State::checkPositionals() const
{
    for (const Declaration* left : m_positionals)
    {
        for (const Declaration* right : m_positionals)
        {
            if (left->index < right->index && isUnlimited(*left) && isUnlimited(*right) &&
                meet(*left, *right))
            {
                misuseOf(*m_core, *m_definition, *right,
                         "never gets what '" + left->names.front() +
                             "' can take: limit one of them with times()");
            }
        }
    }
}

KEXA_COMMAND_INLINE void State::checkDeclarations() const
{
    for (const auto& declaration : m_definition->declarations)
    {
        if (declaration->member != nullptr && declaration->member->named &&
            declaration->table == nullptr)
        {
            misuseOf(*m_core, *m_definition, *declaration,
                     "an option of an enumeration needs values()");
        }
    }
}

KEXA_COMMAND_INLINE void State::prepare()
{
    if (m_isPrepared)
    {
        return;
    }
    checkDeclarations();
    m_all.clear();
    m_positionals.clear();
    m_names = NameTable();
    m_verbs = NameTable();
    for (const auto& declaration : m_definition->declarations)
    {
        m_all.push_back(declaration.get());
        addNames(*declaration);
        if (isPositional(*declaration))
        {
            m_positionals.push_back(declaration.get());
        }
    }
    checkPositionals();
    m_help = declareBuiltIn(Kind::help, m_definition->helpNames, "Show this help");
    m_version = m_definition->version.empty()
                    ? nullptr
                    : declareBuiltIn(Kind::version, m_definition->versionNames, "Show the version");
    m_names.sort();
    m_verbs.sort();
    m_rawNames.clear();
    m_rawNames.reserve(m_all.size());
    std::vector<std::string> primaryNames;
    primaryNames.reserve(m_all.size());
    for (const Declaration* declaration : m_all)
    {
        primaryNames.push_back(declaration->names.front());
        m_rawNames.push_back(L"--");
        if (isPositional(*declaration))
        {
            m_rawNames.back() += mark;
        }
        m_rawNames.back() += widen(declaration->names.front());
    }
    m_primaryNames = std::make_shared<const std::vector<std::string>>(std::move(primaryNames));
    numberMembers();
    makeParser();
    m_isPrepared = true;
}

KEXA_COMMAND_INLINE void State::numberMembers()
{
    std::unordered_map<std::size_t, std::size_t> numbers;
    m_memberNumbers.clear();
    for (const Declaration* declaration : m_all)
    {
        m_memberNumbers.push_back(
            numbers.emplace(declaration->offset, numbers.size()).first->second);
    }
    m_memberCount = numbers.size();
}

// A parser that the program has declared options at is kept, and gets only what is new.
KEXA_COMMAND_INLINE bool State::isRegistered(const Declaration& declaration) const
{
    const wchar_t* name = m_rawNames[declaration.index].c_str() + 2;
    return m_parser->hasOption(name, true, nullptr) || m_parser->hasOption(name, false, nullptr);
}

KEXA_COMMAND_INLINE void State::makeParser()
{
    using namespace kexa_3_3;
    if (!m_isShared)
    {
        m_parser.reset();
        IParser* parser = nullptr;
        createParser(&parser, flag_unknown_is_error | flag_any_positional_after_marker |
                                  flag_no_hyphen_positional | flag_no_value_lists);
        assert(parser != nullptr);
        m_parser.reset(parser);
    }
    m_failures = 0;
    for (const Declaration* declaration : m_all)
    {
        if (declaration->kind != Kind::subcommand && !(m_isShared && isRegistered(*declaration)))
        {
            registerOption(*declaration);
        }
    }
    for (const RelationOfOptions& relation : m_definition->relations)
    {
        if (relation.relation == Core::Relation::together)
        {
            std::set<std::wstring> actions;
            for (const Declaration* action : relation.members)
            {
                actions.insert(widen(action->names.front()));
            }
            m_parser->addCompatibleActions(actions);
        }
    }
}

// Returns the value type under which the parser knows an option.
KEXA_COMMAND_LOCAL std::int32_t rawTypeOf(const Declaration& declaration)
{
    switch (declaration.kind)
    {
    case Kind::option:
    case Kind::positional:
    case Kind::rest:
        if (declaration.table != nullptr ||
            (isPositional(declaration) && declaration.member->rawType == 0))
        {
            return kexa_3_3::value_type_string;
        }
        return declaration.member->rawType;
    case Kind::optionFile:
        return kexa_3_3::value_type_string;
    default:
        return kexa_3_3::value_type_none;
    }
}

KEXA_COMMAND_INLINE void State::registerOption(const Declaration& declaration)
{
    // The help is the layer's: the parser needs no descriptions.
    const wchar_t* name = m_rawNames[declaration.index].c_str() + 2;
    const std::int32_t type = rawTypeOf(declaration);
    const kexa_3_3::Registration& registration = declaration.kind == Kind::action
                                                     ? m_parser->addSwitch(name, L"", type, L"")
                                                     : m_parser->addOption(name, L"", type, L"");
    assert(registration.option != nullptr);
    kexa_3_3::IOption& option = *registration.option;
    for (std::size_t i = 1; i < declaration.names.size(); ++i)
    {
        option.addName(widen(declaration.names[i]).c_str());
    }
    for (const vexkit2::variant_t& value : declaration.allowed)
    {
        option.addAllowedValue(value);
    }
    for (const auto& [old, replacement] : declaration.deprecated)
    {
        option.addDeprecatedValue(old, replacement);
    }
    option.setSeparator(static_cast<wchar_t>(declaration.separator));
}

} // namespace detail
} // namespace v1
} // namespace kexa
