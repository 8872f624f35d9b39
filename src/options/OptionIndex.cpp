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

constexpr std::size_t expected_texts = 32; // of a program of usual size

std::uint64_t newIdentity() noexcept
{
    static std::atomic<std::uint64_t> last = 0;
    return last.fetch_add(1, std::memory_order_relaxed) + 1;
}

template <class Vector>
void reserveMore(Vector& elements, std::size_t count)
{
    const std::size_t needed = elements.size() + count;
    if (needed > elements.capacity())
    {
        elements.reserve(std::max(needed, 2 * elements.capacity()));
    }
}

} // namespace

OptionIndex::OptionIndex(Garbage& pool)
    : m_pool(pool), m_identity(newIdentity()), m_texts(pool.memory(), expected_texts),
      m_candidates(&pool.memory())
{
    m_candidates.reserve(expected_texts);
}

OptionIndex::NewName OptionIndex::prepare(const HashedText& name, bool boolean)
{
    if (!boolean)
    {
        return {name.movedTo(m_pool.keep(name.text())), HashedText()};
    }
    // One copy for both: the name is the end of its negation.
    const std::wstring_view negated = m_pool.keepJoined(negation, name.text());
    return {name.movedTo(negated.substr(negation.size())), HashedText(negated)};
}

void OptionIndex::reserveMore(std::size_t names)
{
    constexpr std::size_t texts_of_name = 2; // with the negation
    m_texts.reserveMore(texts_of_name * names);
    kexa_3_3::reserveMore(m_candidates, texts_of_name * names);
}

void OptionIndex::add(const NewName& name, std::size_t option) noexcept
{
    const auto number = static_cast<std::uint32_t>(option);
    addCandidate(name.name, number, true);
    if (!name.negated.text().empty())
    {
        addCandidate(name.negated, number, false);
    }
}

void OptionIndex::addCandidate(const HashedText& text, std::uint32_t option, bool isName) noexcept
{
    KnownText* known = m_texts.find(text);
    if (known == nullptr)
    {
        known = &m_texts.add({text});
    }
    // An earlier option may get a name that a later one has.
    known->candidate = std::min(known->candidate, option);
    if (isName)
    {
        known->named = std::min(known->named, option);
    }
    assert(m_candidates.size() < m_candidates.capacity());
    const auto number = static_cast<std::uint32_t>(m_candidates.size());
    m_candidates.push_back({text.text(), option, number});
}

std::optional<std::size_t> OptionIndex::findNamed(const HashedText& name) const noexcept
{
    const KnownText* const known = m_texts.find(name);
    return known == nullptr || known->named == no_option ? std::nullopt
                                                         : std::optional<std::size_t>(known->named);
}

std::optional<std::size_t> OptionIndex::findCandidate(const HashedText& text) const noexcept
{
    const KnownText* const known = m_texts.find(text);
    return known == nullptr ? std::nullopt : std::optional<std::size_t>(known->candidate);
}

void OptionIndex::sortCandidates() const noexcept
{
    if (m_sortedCandidates == m_candidates.size())
    {
        return;
    }
    const auto before = [](const Candidate& left, const Candidate& right)
    {
        return left.text < right.text;
    };
    const auto middle = m_candidates.begin() + static_cast<std::ptrdiff_t>(m_sortedCandidates);
    std::sort(middle, m_candidates.end(), before);
    std::inplace_merge(m_candidates.begin(), middle, m_candidates.end(), before);
    m_sortedCandidates = m_candidates.size();
}

// The candidates that begin with a text are neighbours in the sorted list.
std::pair<OptionIndex::Candidates::const_iterator, OptionIndex::Candidates::const_iterator>
OptionIndex::prefixRange(std::wstring_view beginning) const noexcept
{
    sortCandidates();
    const auto first = std::lower_bound(
        m_candidates.cbegin(), m_candidates.cend(), beginning,
        [](const Candidate& candidate, std::wstring_view text) { return candidate.text < text; });
    const auto last = std::partition_point(first, m_candidates.cend(),
                                           [beginning](const Candidate& candidate)
                                           { return candidate.text.starts_with(beginning); });
    return {first, last};
}

OptionIndex::PrefixMatches OptionIndex::matchPrefix(std::wstring_view beginning) const noexcept
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
