#include "NameTable.h"

#include <algorithm>

#include "Inline.h"
#include "text/Encoding.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE void NameTable::add(std::string_view name, const Declaration& declaration,
                                        bool negated, bool hidden)
{
    m_entries.push_back({widen(name), &declaration, negated, hidden});
}

KEXA_COMMAND_INLINE void NameTable::sort()
{
    std::sort(m_entries.begin(), m_entries.end(),
              [](const NameEntry& left, const NameEntry& right) { return left.name < right.name; });
}

KEXA_COMMAND_LOCAL std::vector<NameEntry>::const_iterator
firstNotBelow(const std::vector<NameEntry>& entries, std::wstring_view name)
{
    return std::lower_bound(entries.begin(), entries.end(), name,
                            [](const NameEntry& entry, std::wstring_view sought)
                            { return std::wstring_view(entry.name) < sought; });
}

KEXA_COMMAND_INLINE const NameEntry* NameTable::find(std::wstring_view name) const
{
    const auto found = firstNotBelow(m_entries, name);
    return found != m_entries.end() && found->name == name ? &*found : nullptr;
}

KEXA_COMMAND_INLINE const NameEntry* NameTable::findUnsorted(std::wstring_view name) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [name](const NameEntry& entry) { return entry.name == name; });
    return found == m_entries.end() ? nullptr : &*found;
}

KEXA_COMMAND_LOCAL bool beginsWith(std::wstring_view text, std::wstring_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

// Returns what all candidates mean, null where they mean different things. Without a typed "no-"
// the "no-" forms do not count.
KEXA_COMMAND_LOCAL const NameEntry* sharedMeaning(const std::vector<const NameEntry*>& candidates,
                                                  bool isNegationTyped)
{
    const NameEntry* shared = nullptr;
    for (const NameEntry* candidate : candidates)
    {
        if (candidate->negated && !isNegationTyped)
        {
            continue;
        }
        if (shared != nullptr && (shared->declaration != candidate->declaration ||
                                  shared->negated != candidate->negated))
        {
            return nullptr;
        }
        shared = candidate;
    }
    return shared;
}

KEXA_COMMAND_INLINE NameMatch NameTable::match(std::wstring_view name) const
{
    NameMatch match;
    const auto begin = firstNotBelow(m_entries, name);
    if (begin != m_entries.end() && begin->name == name)
    {
        match.entry = &*begin;
        return match;
    }
    for (auto entry = begin; entry != m_entries.end() && beginsWith(entry->name, name); ++entry)
    {
        match.candidates.push_back(&*entry);
    }
    if (match.candidates.size() == 1)
    {
        match.entry = match.candidates.front();
    }
    else
    {
        match.entry = sharedMeaning(match.candidates, beginsWith(name, L"no-"));
    }
    if (match.entry != nullptr)
    {
        match.candidates.clear();
    }
    return match;
}

} // namespace detail
} // namespace v1
} // namespace kexa
