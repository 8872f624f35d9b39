#include "Hints.h"

#include <algorithm>

#include "Characters.h"
#include "Definition.h"
#include "Inline.h"
#include "text/CodePoints.h"
#include "text/EditDistance.h"
#include "text/Encoding.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

inline constexpr std::size_t most_suggestions = 3;

// Letters are code points, however many bytes each takes.
KEXA_COMMAND_LOCAL std::size_t countLetters(std::string_view text)
{
    return codePointsOf(text).size();
}

// How many edits a typing error of a word may take: a third of its letters, three at most.
KEXA_COMMAND_LOCAL std::size_t editLimit(std::size_t length)
{
    return std::min<std::size_t>(std::max<std::size_t>(length / 3, length < 2 ? 0 : 1), 3);
}

// Collects the words nearest to a typed one, all at the same distance.
class Nearest
{
public:
    explicit Nearest(std::string_view typed)
        : m_typed(typed), m_limit(editLimit(countLetters(typed)))
    {
    }

    void offer(std::string_view word, const std::string& shown)
    {
        const bool isAbbreviated = !m_typed.empty() && word.substr(0, m_typed.size()) == m_typed;
        const std::size_t distance = isAbbreviated ? 0 : editDistance(m_typed, word, m_limit);
        if (distance > m_limit || (!isAbbreviated && distance >= countLetters(word)))
        {
            return;
        }
        if (distance < m_limit)
        {
            m_limit = distance;
            m_words.clear();
        }
        if (std::find(m_words.begin(), m_words.end(), shown) == m_words.end())
        {
            m_words.push_back(shown);
        }
    }

    std::string hint() const
    {
        std::string hint;
        const std::size_t count = std::min(m_words.size(), most_suggestions);
        for (std::size_t i = 0; i < count; ++i)
        {
            hint += i == 0 ? "did you mean '" : i + 1 < count ? "', '" : "' or '";
            hint += m_words[i];
        }
        return hint.empty() ? hint : hint + "'?";
    }

private:
    std::string_view m_typed;
    std::size_t m_limit;
    std::vector<std::string> m_words;
};

KEXA_COMMAND_INLINE std::string hintOfNames(const NameTable& names, std::wstring_view typed,
                                            bool isOption)
{
    const std::string narrowed = narrow(typed);
    Nearest nearest(narrowed);
    for (const NameEntry& entry : names.entries())
    {
        if (!entry.hidden)
        {
            const std::string name = narrow(entry.name);
            nearest.offer(name, isOption ? spelledName(name) : name);
        }
    }
    return nearest.hint();
}

KEXA_COMMAND_INLINE std::string hintOfBundle(const NameTable& names, std::wstring_view bundle)
{
    const std::wstring_view letters = bundle.substr(countHyphens(bundle));
    for (std::size_t i = 0; i < letters.size(); ++i)
    {
        const NameEntry* entry = names.find(letters.substr(i, 1));
        if (entry == nullptr)
        {
            return i == 0 ? std::string()
                          : "there is no option '-" + narrow(letters.substr(i, 1)) + "'";
        }
    }
    return std::string();
}

KEXA_COMMAND_INLINE std::string hintOfValues(const std::vector<std::string>& allowed,
                                             std::string_view typed)
{
    Nearest nearest(typed);
    for (const std::string& value : allowed)
    {
        nearest.offer(value, value);
    }
    return nearest.hint();
}

KEXA_COMMAND_INLINE std::string hintOfLimits(const Declaration& declaration)
{
    if (declaration.member == nullptr || declaration.table != nullptr)
    {
        return std::string();
    }
    const bool hasRange = !declaration.lowest.empty() || !declaration.highest.empty();
    const std::string lowest = hasRange ? declaration.lowest : declaration.member->lowest();
    const std::string highest = hasRange ? declaration.highest : declaration.member->highest();
    return lowest.empty() ? std::string() : "allowed are " + lowest + " to " + highest;
}

} // namespace detail
} // namespace v1
} // namespace kexa
