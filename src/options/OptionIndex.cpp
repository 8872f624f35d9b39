#include "options/OptionIndex.h"

#include <algorithm>
#include <atomic>
#include <cassert>
#include <tuple>

#include "support/memory/Garbage.h"

namespace kexa_3_3
{

namespace
{

constexpr std::size_t expected_texts = 64; // of a program of usual size

std::uint64_t newIdentity() noexcept
{
    static std::atomic<std::uint64_t> last = 0;
    return last.fetch_add(1, std::memory_order_relaxed) + 1;
}

} // namespace

OptionIndex::OptionIndex(Garbage& pool)
    : m_pool(pool), m_identity(newIdentity()), m_texts(pool.memory(), expected_texts),
      m_repeated(&pool.memory()), m_sorted(&pool.memory())
{
}

HashedText OptionIndex::keep(HashedText name, bool boolean)
{
    return name.movedTo(boolean ? m_pool.keepJoined(negation, name.text()).substr(negation.size())
                                : m_pool.keep(name.text()));
}

void OptionIndex::add(HashedText name, std::size_t option, bool boolean) noexcept
{
    const auto number = static_cast<std::uint32_t>(option);
    addCandidate(name, number, true);
    if (boolean)
    {
        const std::wstring_view text = name.text();
        const std::wstring_view negated(text.data() - negation.size(),
                                        negation.size() + text.size());
        assert(negated.starts_with(negation));
        addCandidate(HashedText(negated), number, false);
    }
}

void OptionIndex::addCandidate(HashedText text, std::uint32_t option, bool isName) noexcept
{
    KnownText& known = m_texts.findOrAdd(text);
    if (known.option == no_option)
    {
        known.option = option;
        known.number = m_candidateCount;
    }
    else
    {
        assert(m_repeated.size() < m_repeated.capacity());
        m_repeated.push_back({known.name.text(), option, m_candidateCount});
    }
    ++m_candidateCount;
    // An earlier option may get a name that a later one has.
    known.firstOption = std::min(known.firstOption, option);
    if (isName)
    {
        known.firstNamed = std::min(known.firstNamed, option);
    }
}

std::optional<std::size_t> OptionIndex::findNamed(HashedText name) const noexcept
{
    const KnownText* const known = m_texts.find(name);
    return known == nullptr || known->firstNamed == no_option
               ? std::nullopt
               : std::optional<std::size_t>(known->firstNamed);
}

std::optional<std::size_t> OptionIndex::findCandidate(HashedText text) const noexcept
{
    const KnownText* const known = m_texts.find(text);
    return known == nullptr ? std::nullopt : std::optional<std::size_t>(known->firstOption);
}

// Inserts the candidates added since the last search into the sorted list.
void OptionIndex::sortCandidates() const
{
    if (m_sorted.size() == m_candidateCount)
    {
        return;
    }
    if (m_sorted.capacity() < m_candidateCount)
    {
        // Doubled, since a former array stays in the arena.
        m_sorted.reserve(std::max<std::size_t>(m_candidateCount, 2 * m_sorted.capacity()));
    }
    const auto known = static_cast<std::ptrdiff_t>(m_sorted.size());
    for (; m_sortedTexts < m_texts.size(); ++m_sortedTexts)
    {
        const KnownText& text = m_texts[m_sortedTexts];
        m_sorted.push_back({text.name.text(), text.option, text.number});
    }
    for (; m_sortedRepeated < m_repeated.size(); ++m_sortedRepeated)
    {
        m_sorted.push_back(m_repeated[m_sortedRepeated]);
    }
    const auto before = [](const Candidate& left, const Candidate& right)
    {
        return left.text < right.text;
    };
    std::sort(m_sorted.begin() + known, m_sorted.end(), before);
    std::inplace_merge(m_sorted.begin(), m_sorted.begin() + known, m_sorted.end(), before);
}

// The candidates that begin with a text are neighbours in the sorted list.
std::pair<OptionIndex::Candidates::const_iterator, OptionIndex::Candidates::const_iterator>
OptionIndex::prefixRange(std::wstring_view beginning) const
{
    sortCandidates();
    const auto first = std::lower_bound(m_sorted.cbegin(), m_sorted.cend(), beginning,
                                        [](const Candidate& candidate, std::wstring_view text)
                                        { return candidate.text < text; });
    const auto last = std::partition_point(first, m_sorted.cend(),
                                           [beginning](const Candidate& candidate)
                                           { return candidate.text.starts_with(beginning); });
    return {first, last};
}

OptionIndex::PrefixMatches OptionIndex::matchPrefix(std::wstring_view beginning) const
{
    const auto [first, last] = prefixRange(beginning);
    PrefixMatches matches;
    matches.count = static_cast<std::size_t>(last - first);
    if (matches.count == 1)
    {
        matches.option = first->option;
        matches.candidate = first->text;
    }
    return matches;
}

std::vector<std::wstring_view> OptionIndex::listPrefix(std::wstring_view beginning) const
{
    const auto [first, last] = prefixRange(beginning);
    std::vector<Candidate> matches(first, last);
    std::sort(matches.begin(), matches.end(),
              [](const Candidate& left, const Candidate& right) {
                  return std::tie(left.option, left.number) < std::tie(right.option, right.number);
              });
    std::vector<std::wstring_view> texts;
    texts.reserve(matches.size());
    for (const Candidate& match : matches)
    {
        texts.push_back(match.text);
    }
    return texts;
}

void OptionIndex::notePositional(std::size_t option) noexcept
{
    m_firstPositional = std::min(m_firstPositional.value_or(option), option);
}

} // namespace kexa_3_3
