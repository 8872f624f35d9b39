// Several options behind one hyphen.
#include <cassert>

#include "Characters.h"
#include "Inline.h"
#include "Scan.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// "-vvv", where -v counts.
KEXA_COMMAND_INLINE bool Scan::takeRepeatedLetter(std::wstring_view text)
{
    const std::wstring_view letters = text.substr(countHyphens(text));
    if (text.size() != letters.size() + 1 || letters.size() < 2 ||
        letters.find_first_not_of(letters.front()) != std::wstring_view::npos)
    {
        return false;
    }
    const NameEntry* entry = m_state->names().find(letters.substr(0, 1));
    if (entry == nullptr || entry->declaration->kind != Kind::count)
    {
        return false;
    }
    for (std::size_t i = 0; i < letters.size(); ++i)
    {
        add(*entry->declaration, m_state->rawName(*entry->declaration));
    }
    ++m_next;
    return true;
}

// Whether an argument is a hyphen and letters that all are options, up to the first that takes a
// value: what is behind that is its value.
KEXA_COMMAND_INLINE bool Scan::isBundle(std::wstring_view text) const
{
    if (text.size() < 2 || text[0] != L'-' || isHyphenCharacter(text[1]))
    {
        return false;
    }
    for (std::size_t i = 1; i < text.size(); ++i)
    {
        const NameEntry* entry = m_state->names().find(text.substr(i, 1));
        if (entry == nullptr)
        {
            return false;
        }
        if (entry->declaration->takesValue())
        {
            return true;
        }
    }
    return true;
}

KEXA_COMMAND_INLINE bool Scan::takeBundle(std::wstring_view text)
{
    assert(isBundle(text));
    const std::size_t argument = m_next;
    for (std::size_t i = 1; i < text.size(); ++i)
    {
        m_next = argument; // each letter is taken as if it stood alone
        const NameEntry& entry = *m_state->names().find(text.substr(i, 1));
        if (entry.declaration->takesValue())
        {
            std::wstring_view value = text.substr(i + 1);
            const bool hasEquals = !value.empty() && value.front() == L'=';
            takeMatched(entry, value.substr(hasEquals ? 1 : 0), hasEquals);
            return true;
        }
        takeMatched(entry, std::wstring_view(), false);
    }
    return true;
}

} // namespace detail
} // namespace v1
} // namespace kexa
