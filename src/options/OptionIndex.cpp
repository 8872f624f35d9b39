#include "options/OptionIndex.h"

#include <algorithm>
#include <tuple>

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

template <class T>
void reserveMore(std::vector<T>& elements, std::size_t count)
{
    const std::size_t needed = elements.size() + count;
    if (needed > elements.capacity())
    {
        constexpr std::size_t smallest = 16;
        elements.reserve(std::max({needed, 2 * elements.size(), smallest}));
    }
}

} // namespace

void OptionIndex::reserve(std::size_t count)
{
    m_texts.reserve(count);
    reserveMore(m_owners, count);
    reserveMore(m_all.names, count);
    reserveMore(m_booleans.names, count);
}

void OptionIndex::add(std::wstring_view name, std::size_t option, std::size_t position,
                      bool boolean)
{
    reserve(1);
    const std::uint32_t number = m_texts.insert(name);
    m_owners.resize(m_texts.size());
    Owners& owners = m_owners[number];
    const auto index = static_cast<std::int64_t>(option);
    const Name entry = {name, static_cast<std::uint32_t>(option),
                        static_cast<std::uint32_t>(position)};
    owners.first = firstOf(owners.first, index);
    m_all.names.push_back(entry);
    if (boolean)
    {
        owners.firstBoolean = firstOf(owners.firstBoolean, index);
        m_booleans.names.push_back(entry);
    }
}

std::int64_t OptionIndex::findNamed(std::wstring_view name) const noexcept
{
    const std::uint32_t number = m_texts.find(name);
    return number == TextTable::absent ? none : m_owners[number].first;
}

std::int64_t OptionIndex::findAnswering(std::wstring_view text) const noexcept
{
    std::int64_t found = findNamed(text);
    if (text.substr(0, negation.size()) == negation)
    {
        const std::uint32_t number = m_texts.find(text.substr(negation.size()));
        if (number != TextTable::absent)
        {
            found = firstOf(found, m_owners[number].firstBoolean);
        }
    }
    return found;
}

void OptionIndex::SortedNames::sort()
{
    if (sorted == names.size())
    {
        return;
    }
    const auto before = [](const Name& left, const Name& right)
    {
        return left.text < right.text;
    };
    const auto middle = names.begin() + static_cast<std::ptrdiff_t>(sorted);
    std::sort(middle, names.end(), before);
    if (sorted != 0)
    {
        std::inplace_merge(names.begin(), middle, names.end(), before);
    }
    sorted = names.size();
}

OptionIndex::Range OptionIndex::rangeOf(SortedNames& names, std::wstring_view beginning)
{
    names.sort();
    const Name* const begin = names.names.data();
    const Name* const end = begin + names.names.size();
    const Name* const first =
        std::lower_bound(begin, end, beginning,
                         [](const Name& name, std::wstring_view text) { return name.text < text; });
    const Name* const last =
        std::partition_point(first, end,
                             [beginning](const Name& name)
                             { return name.text.substr(0, beginning.size()) == beginning; });
    return {first, last};
}

OptionIndex::Range OptionIndex::negatedRangeOf(std::wstring_view beginning) const
{
    if (beginning.size() <= negation.size())
    {
        const bool all = negation.substr(0, beginning.size()) == beginning;
        return all ? rangeOf(m_booleans, {}) : Range();
    }
    const bool negated = beginning.substr(0, negation.size()) == negation;
    return negated ? rangeOf(m_booleans, beginning.substr(negation.size())) : Range();
}

OptionIndex::PrefixMatches OptionIndex::matchPrefix(std::wstring_view beginning) const
{
    const Range plain = rangeOf(m_all, beginning);
    const Range negated = negatedRangeOf(beginning);
    PrefixMatches matches;
    matches.count = plain.size() + negated.size();
    if (matches.count == 1)
    {
        matches.negated = plain.size() == 0;
        const Name& name = matches.negated ? *negated.begin : *plain.begin;
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
        for (const Name* name = range.begin; name != range.end; ++name)
        {
            matches.emplace_back(name->option, name->position, negated, name->text);
        }
    };
    collect(rangeOf(m_all, beginning), false);
    collect(negatedRangeOf(beginning), true);
    std::sort(matches.begin(), matches.end());

    std::vector<std::wstring> texts;
    texts.reserve(matches.size());
    for (const auto& [option, position, negated, text] : matches)
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
