#include "options/OptionIndex.h"

#include <algorithm>
#include <atomic>
#include <iterator>
#include <tuple>
#include <utility>

#include "support/Text.h"

namespace kexa_3_3
{

namespace
{

// The smaller index of the two, where `none` counts as larger than any.
std::int64_t firstOf(std::int64_t left, std::int64_t right) noexcept
{
    if (left == OptionIndex::none || right == OptionIndex::none)
    {
        return left == OptionIndex::none ? right : left;
    }
    return std::min(left, right);
}

std::uint64_t newIdentity() noexcept
{
    static std::atomic<std::uint64_t> last = 0;
    return last.fetch_add(1, std::memory_order_relaxed) + 1;
}

} // namespace

OptionIndex::OptionIndex(std::pmr::memory_resource& memory) noexcept
    : m_identity(newIdentity()), m_names(memory, m_firstNames.bytes()),
      m_slots(memory, m_firstSlots.bytes())
{
}

// Each name has a slot, so there is room for a name where the table of names has it.
void OptionIndex::grow(std::size_t count)
{
    const std::size_t room = m_names.nextRoom(count);
    m_slots.reserve(room);
    m_names.grow(room);
}

// By itself, for this is seldom run.
std::size_t OptionIndex::slotFrom(std::size_t slot, const HashedText& name) const noexcept
{
    return m_slots.slotFrom(slot, name, textOf());
}

// Enters a name whose slot was taken after it was found, by a name of the same option, or that has
// the text of a known one.
void OptionIndex::addBehind(std::size_t slot, std::uint32_t number) noexcept
{
    Name& name = m_names[number];
    slot = slotFrom(slot, *name.text);
    if (isTaken(slot))
    {
        m_sharesNames = true;
        Name& known = m_names[m_slots.numberAt(slot)];
        const std::uint32_t firstBoolean = std::min(known.firstBoolean, name.firstBoolean);
        if (known.option <= name.option)
        {
            known.firstBoolean = firstBoolean;
            return;
        }
        // It is an earlier option's, so it takes the place over.
        known.firstBoolean = known.isBoolean() ? known.option : no_option;
        name.firstBoolean = firstBoolean;
    }
    m_slots.put(slot, number, *name.text);
}

// The first option, in table order, that answers to a text that begins as negations do.
std::int64_t OptionIndex::findAlsoNegated(const HashedText& text) const noexcept
{
    const Name* const negated = find(HashedText(text.substr(negation.size())));
    return firstOf(findNamed(text), negated == nullptr ? none : indexOf(negated->firstBoolean));
}

void OptionIndex::sortNames() const
{
    if (m_sorted.size() == m_names.size())
    {
        return;
    }
    // New lists first: where memory runs out, the next search tries again.
    const auto before = [](const SortedName& left, const SortedName& right)
    {
        return left.text < right.text;
    };
    const auto known = static_cast<std::ptrdiff_t>(m_sorted.size());
    std::vector<SortedName> sorted(m_sorted);
    sorted.reserve(m_names.size());
    for (auto number = static_cast<std::uint32_t>(m_sorted.size()); number < m_names.size();
         ++number)
    {
        const Name& name = m_names[number];
        sorted.push_back(
            {*name.text, name.option, number & 0x7FFFFFFF, name.isBoolean() ? 1U : 0U});
    }
    std::sort(sorted.begin() + known, sorted.end(), before);
    std::inplace_merge(sorted.begin(), sorted.begin() + known, sorted.end(), before);
    std::vector<SortedName> booleans;
    std::copy_if(sorted.begin(), sorted.end(), std::back_inserter(booleans),
                 [](const SortedName& name) { return name.boolean != 0; });
    m_sorted = std::move(sorted);
    m_sortedBooleans = std::move(booleans);
}

OptionIndex::Range OptionIndex::rangeOf(const std::vector<SortedName>& sorted,
                                        std::wstring_view beginning)
{
    const SortedName* const begin = sorted.data();
    const SortedName* const end = begin + sorted.size();
    const SortedName* const first = std::lower_bound(
        begin, end, beginning,
        [](const SortedName& name, std::wstring_view text) { return name.text < text; });
    const SortedName* const last =
        std::partition_point(first, end,
                             [beginning](const SortedName& name)
                             { return name.text.substr(0, beginning.size()) == beginning; });
    return {first, last};
}

OptionIndex::Range OptionIndex::plainRange(std::wstring_view beginning) const
{
    return rangeOf(m_sorted, beginning);
}

OptionIndex::Range OptionIndex::negatedRange(std::wstring_view beginning) const
{
    const std::size_t shared = std::min(beginning.size(), negation.size());
    const bool negated = beginning.substr(0, shared) == negation.substr(0, shared);
    return negated ? rangeOf(m_sortedBooleans, beginning.substr(shared)) : Range();
}

OptionIndex::PrefixMatches OptionIndex::matchPrefix(std::wstring_view beginning) const
{
    sortNames();
    const Range plain = plainRange(beginning);
    const Range negated = negatedRange(beginning);
    PrefixMatches matches;
    matches.count = plain.size() + negated.size();
    if (matches.count == 1)
    {
        matches.negated = plain.size() == 0;
        const SortedName& name = matches.negated ? *negated.begin : *plain.begin;
        matches.option = name.option;
        matches.name = name.text;
    }
    return matches;
}

std::vector<std::wstring> OptionIndex::listPrefix(std::wstring_view beginning) const
{
    using Match = std::tuple<std::uint32_t, std::uint32_t, bool, std::wstring_view>;
    std::vector<Match> matches;
    const auto collect = [&matches](const Range& range, bool negated)
    {
        for (const SortedName* name = range.begin; name != range.end; ++name)
        {
            matches.emplace_back(name->option, name->number, negated, name->text);
        }
    };
    sortNames();
    collect(plainRange(beginning), false);
    collect(negatedRange(beginning), true);
    std::sort(matches.begin(), matches.end());

    std::vector<std::wstring> texts;
    texts.reserve(matches.size());
    for (const auto& [option, number, negated, text] : matches)
    {
        texts.push_back(concatenate({negated ? negation : std::wstring_view(), text}));
    }
    return texts;
}

void OptionIndex::notePositional(std::size_t option) noexcept
{
    m_firstPositional = firstOf(m_firstPositional, static_cast<std::int64_t>(option));
}

} // namespace kexa_3_3
