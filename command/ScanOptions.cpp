#include <cassert>

#include "Characters.h"
#include "Hints.h"
#include "Inline.h"
#include "kexa/command/detail/numbers.h"
#include "kexa/option.h"
#include "Scan.h"
#include "text/Encoding.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE NameMatch Scan::match(std::wstring_view name) const
{
    NameMatch found;
    if (m_state->definition().abbreviations && !name.empty())
    {
        return m_state->names().match(name);
    }
    found.entry = m_state->names().find(name);
    return found;
}

// Whether an argument that begins with a hyphen means an option, or several.
KEXA_COMMAND_INLINE bool Scan::resolves(std::wstring_view argument) const
{
    const std::wstring_view name = splitArgument(argument).name;
    const NameMatch found = match(name);
    return found.entry != nullptr || !found.candidates.empty() ||
           m_state->isDeclaredBeneath(name) ||
           (m_state->definition().isPosix() && isBundle(argument));
}

KEXA_COMMAND_INLINE void Scan::takeOption(const Argument& argument)
{
    const Definition& definition = m_state->definition();
    const SplitArgument split = splitArgument(argument.text);
    const NameEntry* exact = m_state->names().find(split.name);
    if (exact != nullptr)
    {
        return takeMatched(*exact, split.value, split.hasEquals);
    }
    if (m_state->isDeclaredBeneath(split.name))
    {
        return takeOptionBeneath();
    }
    if (definition.isPosix() && isBundle(argument.text))
    {
        takeBundle(argument.text);
        return;
    }
    const NameMatch found = match(split.name);
    if (found.entry != nullptr)
    {
        return takeMatched(*found.entry, split.value, split.hasEquals);
    }
    if (!found.candidates.empty())
    {
        fail(nullptr, {argument.text});
        ++m_next;
        return;
    }
    if (takeRepeatedLetter(argument.text))
    {
        return;
    }
    // The parser takes what begins with a dash of word processors and names nothing for a text.
    const bool isText = argument.text.front() != L'-' && !split.name.empty();
    const bool isNumber = definition.isPosix() && looksNegative(argument.text);
    if ((isText || isNumber) && !m_state->positionals().empty())
    {
        return takePlain(false);
    }
    failUnknown(argument);
    ++m_next;
}

// The parser gets the argument as it is. Whether the option takes a value is not known here, so the
// next argument is none.
KEXA_COMMAND_INLINE void Scan::takeOptionBeneath()
{
    if (!m_fault.isFound)
    {
        m_givens.push_back({nullptr, std::wstring(), &current().text, current().place, false});
    }
    ++m_next;
}

KEXA_COMMAND_INLINE void Scan::failUnknown(const Argument& argument)
{
    const std::wstring_view text = argument.text;
    const SplitArgument split = splitArgument(text);
    std::wstring raw(text);
    const NameMatch inFull = m_state->names().match(split.name);
    if (!split.name.empty() && (inFull.entry != nullptr || !inFull.candidates.empty()))
    {
        // The parser would take the abbreviation.
        raw.insert(countHyphens(text), 2, mark);
    }
    if (Fault* fault = fail(nullptr, {raw}))
    {
        fault->hint = hintOfNames(m_state->names(), split.name, true);
        if (fault->hint.empty() && m_state->definition().isPosix() && countHyphens(text) == 1)
        {
            fault->hint = hintOfBundle(m_state->names(), text);
        }
    }
}

KEXA_COMMAND_INLINE void Scan::takeMatched(const NameEntry& entry, std::wstring_view value,
                                           bool hasEquals)
{
    const Declaration& declaration = *entry.declaration;
    const std::wstring& raw = m_state->rawName(declaration);
    switch (declaration.kind)
    {
    case Kind::help:
    case Kind::version:
        if (declaration.kind == Kind::version && !value.empty())
        {
            fail(&declaration, {raw + L"=" + std::wstring(value)});
        }
        else if (m_wanted == nullptr)
        {
            m_wanted = &declaration;
            m_topic = value;
        }
        if (declaration.kind == Kind::help && !hasEquals && value.empty() && isTopicNext())
        {
            ++m_next;
            m_topic = current().text;
        }
        ++m_next;
        break;
    case Kind::action:
    case Kind::count:
        if (value.empty())
        {
            add(declaration, raw);
        }
        else
        {
            fail(&declaration, {raw + L"=" + std::wstring(value)});
        }
        ++m_next;
        break;
    default:
        if (declaration.isFlag())
        {
            takeFlag(entry, value);
        }
        else
        {
            takeValue(declaration, value, hasEquals);
        }
        break;
    }
}

// Whether the next argument names something that has help of its own: "--help output".
KEXA_COMMAND_INLINE bool Scan::isTopicNext() const
{
    if (m_next + 1 == m_arguments.size())
    {
        return false;
    }
    const std::wstring& next = m_arguments[m_next + 1].text;
    return !next.empty() && !looksLikeOption(next) &&
           (m_state->verbs().match(next).entry != nullptr ||
            m_state->names().match(next).entry != nullptr);
}

KEXA_COMMAND_INLINE void Scan::takeFlag(const NameEntry& entry, std::wstring_view value)
{
    const Declaration& declaration = *entry.declaration;
    const std::wstring& raw = m_state->rawName(declaration);
    bool isOn = !entry.negated;
    if (!value.empty())
    {
        std::string reason;
        const vexkit2::variant_t converted =
            convertText(kexa_3_3::value_type_boolean, value, reason);
        if (converted.kind() != vexkit2::kind_boolean)
        {
            if (Fault* fault = fail(&declaration, {raw + L"=" + std::wstring(value)}))
            {
                fault->hint = "allowed are 'true' and 'false'";
            }
            ++m_next;
            return;
        }
        isOn = isOn == converted.get<bool>();
    }
    add(declaration, isOn ? raw : L"--no-" + raw.substr(2));
    ++m_next;
}

// Whether the option takes numbers and nothing else.
KEXA_COMMAND_LOCAL bool isNumeric(const Declaration& declaration)
{
    return declaration.member != nullptr && declaration.table == nullptr &&
           declaration.member->rawType >= kexa_3_3::value_type_integer &&
           declaration.member->rawType <= kexa_3_3::value_type_double;
}

// Whether an empty text can be a value of the option.
KEXA_COMMAND_LOCAL bool takesEmptyText(const Declaration& declaration)
{
    return declaration.takesValue() && declaration.allowed.empty() &&
           declaration.kind != Kind::optionFile &&
           declaration.member->rawType == kexa_3_3::value_type_string;
}

KEXA_COMMAND_INLINE void Scan::takeValue(const Declaration& declaration, std::wstring_view value,
                                         bool hasEquals)
{
    const std::wstring& raw = m_state->rawName(declaration);
    if (!value.empty())
    {
        // Most users type just what the parser takes.
        const std::wstring& typed = current().text;
        const bool isRaw = hasEquals && typed.size() == raw.size() + 1 + value.size() &&
                           typed.compare(0, raw.size(), raw) == 0;
        add(declaration, isRaw ? std::wstring() : rawArgument(declaration, value));
    }
    else if (hasEquals && m_state->definition().isPosix() && takesEmptyText(declaration))
    {
        addEmptyText(declaration);
    }
    else if (hasEquals)
    {
        fail(&declaration, {raw + L"="});
    }
    else if (declaration.isImplicit)
    {
        add(declaration, rawArgument(declaration, widen(declaration.implicitText)));
    }
    else
    {
        return takeNextValue(declaration);
    }
    ++m_next;
}

KEXA_COMMAND_INLINE void Scan::takeNextValue(const Declaration& declaration)
{
    const std::wstring& raw = m_state->rawName(declaration);
    if (m_next + 1 == m_arguments.size())
    {
        fail(&declaration, {raw});
        ++m_next;
        return;
    }
    const std::wstring& next = m_arguments[m_next + 1].text;
    const bool isNegative = isNumeric(declaration) && looksNegative(next) && !resolves(next);
    if (next.size() >= 2 && next.front() == L'-' && !isNegative)
    {
        // The next argument is looked at by itself: it may be --help.
        fail(&declaration, {raw, next});
        ++m_next;
        return;
    }
    if (!next.empty())
    {
        add(declaration, rawArgument(declaration, next));
    }
    else if (m_state->definition().isPosix() && takesEmptyText(declaration))
    {
        addEmptyText(declaration);
    }
    else
    {
        fail(&declaration, {raw, std::wstring()});
    }
    m_next += 2;
}

} // namespace detail
} // namespace v1
} // namespace kexa
