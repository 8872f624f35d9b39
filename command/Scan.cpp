#include "Scan.h"

#include <algorithm>
#include <cassert>

#include "Characters.h"
#include "Hints.h"
#include "Inline.h"
#include "text/Encoding.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

inline constexpr std::wstring_view end_of_options = L"--";
inline constexpr std::wstring_view trace_keyword = L"kexaoption=kexalogenable=1";

KEXA_COMMAND_INLINE SplitArgument splitArgument(std::wstring_view argument)
{
    SplitArgument split;
    const std::wstring_view rest = argument.substr(countHyphens(argument));
    std::size_t end = 0;
    while (end < rest.size() && rest[end] != L'=' && !isBlank(rest[end]))
    {
        ++end;
    }
    split.name = rest.substr(0, end);
    split.hasEquals = end < rest.size() && rest[end] == L'=';
    std::size_t begin = end + (split.hasEquals ? 1 : 0);
    while (!split.hasEquals && begin < rest.size() && isBlank(rest[begin]))
    {
        ++begin;
    }
    split.value = rest.substr(std::min(begin, rest.size()));
    return split;
}

KEXA_COMMAND_INLINE Scan::Scan(State& state, std::vector<std::string>& files)
    : m_state(&state), m_files(&files)
{
    state.prepare();
    const auto& positionals = state.positionals();
    if (!positionals.empty() && positionals.back()->kind == Kind::rest)
    {
        m_plainBeforeRest = positionals.size() - 1;
    }
}

KEXA_COMMAND_INLINE bool Scan::takesRest() const
{
    return m_plainCount > m_plainBeforeRest;
}

KEXA_COMMAND_INLINE void Scan::take(std::vector<Argument> arguments)
{
    m_arguments = std::move(arguments);
    m_givens.reserve(m_arguments.size());
    walk();
    readOptionFiles();
    distribute();
}

KEXA_COMMAND_INLINE void Scan::walk()
{
    m_next = 0;
    if (!m_arguments.empty() && m_state->definition().trace &&
        m_arguments.front().text == trace_keyword)
    {
        m_isTraced = true;
        ++m_next;
    }
    bool isBehindMarker = false;
    while (m_next < m_arguments.size())
    {
        const bool mayBeOption = !isBehindMarker && !takesRest();
        if (mayBeOption && current().text == end_of_options)
        {
            isBehindMarker = true;
            ++m_next;
        }
        else if (mayBeOption && looksLikeOption(current().text))
        {
            takeOption(current());
        }
        else
        {
            takePlain(isBehindMarker);
        }
    }
}

KEXA_COMMAND_INLINE void Scan::add(const Declaration& declaration, std::wstring raw)
{
    m_isActionGiven = m_isActionGiven || declaration.kind == Kind::action;
    if (!m_fault.isFound)
    {
        m_givens.push_back({&declaration, std::move(raw), &current().text, current().place, false});
    }
}

KEXA_COMMAND_INLINE std::wstring Scan::rawArgument(const Declaration& declaration,
                                                   std::wstring_view value) const
{
    const std::wstring& name = m_state->rawName(declaration);
    std::wstring raw;
    raw.reserve(name.size() + 1 + value.size());
    return raw.append(name).append(1, L'=').append(value);
}

KEXA_COMMAND_INLINE void Scan::addEmptyText(const Declaration& declaration)
{
    add(declaration, rawArgument(declaration, std::wstring_view(&mark, 1)));
    if (!m_fault.isFound)
    {
        m_givens.back().isEmptyText = true;
    }
}

KEXA_COMMAND_INLINE Fault* Scan::fail(const Declaration* declaration, std::vector<std::wstring> raw)
{
    if (m_fault.isFound)
    {
        return nullptr;
    }
    m_fault.isFound = true;
    m_fault.raw = std::move(raw);
    m_fault.typed = current().text;
    m_fault.place = current().place;
    m_fault.declaration = declaration;
    return &m_fault;
}

KEXA_COMMAND_INLINE void Scan::takePlain(bool isBehindMarker)
{
    if (!m_isVerbSought && !isBehindMarker)
    {
        m_isVerbSought = true;
        if (takeVerb())
        {
            return;
        }
    }
    ++m_plainCount;
    if (!m_fault.isFound)
    {
        m_plain.push_back(m_givens.size());
        m_givens.push_back({nullptr, std::wstring(), &current().text, current().place, false});
    }
    ++m_next;
}

KEXA_COMMAND_LOCAL std::string listOfNames(const std::vector<const NameEntry*>& entries)
{
    std::string list;
    for (const NameEntry* entry : entries)
    {
        list += (list.empty() ? "'" : ", '") + narrow(entry->name) + "'";
    }
    return list;
}

// Returns whether the argument is used up, or is a mistake.
KEXA_COMMAND_INLINE bool Scan::takeVerb()
{
    const NameTable& verbs = m_state->verbs();
    if (verbs.entries().empty())
    {
        return false;
    }
    const Definition& definition = m_state->definition();
    const std::wstring& text = current().text;
    NameMatch found;
    if (definition.abbreviations && !text.empty())
    {
        found = verbs.match(text);
    }
    else
    {
        found.entry = verbs.find(text);
    }
    if (found.entry != nullptr && found.entry->declaration->kind == Kind::subcommand)
    {
        beginSubcommand(*found.entry->declaration);
        return true;
    }
    if (m_isActionGiven)
    {
        return false;
    }
    if (found.entry != nullptr)
    {
        add(*found.entry->declaration, m_state->rawName(*found.entry->declaration));
        ++m_next;
        return true;
    }
    if (found.candidates.empty() && !m_state->positionals().empty())
    {
        return false;
    }
    if (Fault* fault = fail(nullptr, {}))
    {
        const std::string typed = narrow(text);
        fault->message =
            found.candidates.empty()
                ? "Unknown command: " + typed
                : "Ambiguous command '" + typed + "', could be: " + listOfNames(found.candidates);
        fault->hint = found.candidates.empty() ? hintOfNames(verbs, text, false) : std::string();
    }
    ++m_next;
    return true;
}

KEXA_COMMAND_INLINE void Scan::beginSubcommand(const Declaration& verb)
{
    m_subcommand = &verb;
    m_inner = std::make_unique<Scan>(verb.command->state(), *m_files);
    m_inner->take(
        {m_arguments.begin() + static_cast<std::ptrdiff_t>(m_next) + 1, m_arguments.end()});
    m_next = m_arguments.size();
}

} // namespace detail
} // namespace v1
} // namespace kexa
