// Which positional argument gets which arguments of the line.
#include <algorithm>

#include "Characters.h"
#include "Hints.h"
#include "Inline.h"
#include "Scan.h"
#include "text/Encoding.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Whether a positional argument takes part: not where an action is chosen that does not accept it.
KEXA_COMMAND_INLINE bool Scan::isAccepted(const Declaration& positional) const
{
    bool isActionChosen = false;
    for (const Given& given : m_givens)
    {
        if (given.declaration != nullptr && given.declaration->kind == Kind::action)
        {
            const std::vector<std::size_t>& actions = positional.actions;
            if (std::find(actions.begin(), actions.end(), given.declaration->index) !=
                actions.end())
            {
                return true;
            }
            isActionChosen = true;
        }
    }
    return positional.actions.empty() || !isActionChosen;
}

// Gives the positional arguments of the line to those declared: each gets as many as it can while
// enough are left for those behind it.
KEXA_COMMAND_INLINE void Scan::distribute()
{
    std::vector<const Declaration*> accepted;
    std::size_t needed = 0;
    for (const Declaration* declaration : m_state->positionals())
    {
        if (isAccepted(*declaration))
        {
            accepted.push_back(declaration);
            needed += declaration->minimum;
        }
    }
    std::size_t next = 0;
    for (const Declaration* declaration : accepted)
    {
        needed -= declaration->minimum;
        const std::size_t left = m_plain.size() - next;
        const std::size_t spare = left > needed ? left - needed : 0;
        const std::size_t count =
            std::min(declaration->maximum, std::max(spare, std::min(left, declaration->minimum)));
        if (count < declaration->minimum && m_missing == nullptr)
        {
            m_missing = declaration;
        }
        for (const std::size_t end = next + count; next < end; ++next)
        {
            Given& given = m_givens[m_plain[next]];
            given.declaration = declaration;
            given.isEmptyText = given.typed->empty();
            given.raw = rawArgument(*declaration,
                                    given.isEmptyText ? std::wstring_view(&mark, 1) : *given.typed);
        }
    }
    if (next < m_plain.size())
    {
        // What stands behind the argument that is too many, and any mistake there, comes later.
        const Given given = m_givens[m_plain[next]];
        m_givens.resize(m_plain[next]);
        m_fault = Fault();
        m_fault.isFound = true;
        m_fault.typed = *given.typed;
        m_fault.place = given.place;
        if (!m_state->positionals().empty())
        {
            m_fault.message = "too many arguments: '" + narrow(*given.typed) + "'";
        }
        else
        {
            // Not told by the parser: behind the marker the text may name an option.
            m_fault.message = "Unknown option: " + narrow(*given.typed);
            m_fault.hint = hintOfNames(m_state->names(), splitArgument(*given.typed).name, true);
        }
    }
}

} // namespace detail
} // namespace v1
} // namespace kexa
