#include "options/AllowedValueIndex.h"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "kexa/option.h"

#include "options/ValueText.h"

namespace kexa_3_3
{

namespace
{

constexpr std::size_t none = ~std::size_t{0}; // above the index of every candidate

[[nodiscard]] bool isInteger(const vexkit2::variant_t& value) noexcept
{
    return value.kind() >= vexkit2::kind_s32 && value.kind() <= vexkit2::kind_u64;
}

[[nodiscard]] bool isFloating(const vexkit2::variant_t& value) noexcept
{
    return value.kind() == vexkit2::kind_float || value.kind() == vexkit2::kind_double;
}

} // namespace

AllowedValueIndex::AllowedValueIndex(std::int32_t valueType,
                                     const std::vector<variant_t>& allowedValues,
                                     const std::map<variant_t, variant_t>& deprecatedValues)
    : m_valueType(valueType)
{
    m_candidates.reserve(allowedValues.size() + deprecatedValues.size());
    for (const variant_t& value : allowedValues)
    {
        m_candidates.push_back(&value);
    }
    for (const auto& [oldValue, replacement] : deprecatedValues)
    {
        m_candidates.push_back(&oldValue);
    }
    for (std::size_t number = 0; number < m_candidates.size(); ++number)
    {
        valueType == value_type_string ? indexText(number) : indexNumber(number);
    }
    std::sort(m_texts.begin(), m_texts.end());
    std::sort(m_integers.begin(), m_integers.end());
    std::sort(m_doubles.begin(), m_doubles.end());
}

void AllowedValueIndex::indexText(std::size_t number)
{
    const variant_t& candidate = *m_candidates[number];
    const bool isWide = candidate.can_get<const wchar_t*>();
    m_texts.emplace_back(isWide ? std::wstring_view(candidate.get<const wchar_t*>())
                                : m_ownTexts.emplace_back(valueText(candidate)),
                         number);
}

// Two integers are equal when their values are; any other two numbers when they are as doubles, to
// which large integers are rounded. So a candidate is sorted by the kind of number as which the
// option's values are compared with it. A NaN equals nothing and would break the order.
void AllowedValueIndex::indexNumber(std::size_t number)
{
    const variant_t& candidate = *m_candidates[number];
    if (isInteger(candidate) && m_valueType != value_type_double)
    {
        m_integers.emplace_back(integerKey(candidate), number);
    }
    else if (isInteger(candidate) ||
             (isFloating(candidate) && !std::isnan(candidate.get<double>())))
    {
        m_doubles.emplace_back(candidate.get<double>(), number);
    }
}

AllowedValueIndex::IntegerKey AllowedValueIndex::integerKey(const variant_t& value)
{
    if (!value.can_get<vexkit2::s64_t>())
    {
        return {true, value.get<vexkit2::u64_t>()};
    }
    const auto number = value.get<vexkit2::s64_t>();
    return {number >= 0, static_cast<std::uint64_t>(number)};
}

// Returns the index of the first candidate under the key that equals the value. A candidate whose
// text is the key need not equal a string value: it may be a number that is written so.
template <class Key>
std::size_t AllowedValueIndex::findIn(const Sorted<Key>& sorted, const Key& key,
                                      const variant_t& value) const
{
    auto found = std::lower_bound(sorted.begin(), sorted.end(), std::pair(key, std::size_t{0}));
    for (; found != sorted.end() && !(key < found->first); ++found)
    {
        if (value == *m_candidates[found->second])
        {
            return found->second;
        }
    }
    return none;
}

std::size_t AllowedValueIndex::findByWalk(const variant_t& value) const
{
    const auto found =
        std::find_if(m_candidates.begin(), m_candidates.end(),
                     [&value](const variant_t* candidate) { return value == *candidate; });
    return found == m_candidates.end() ? none
                                       : static_cast<std::size_t>(found - m_candidates.begin());
}

const vexkit2::variant_t* AllowedValueIndex::findEqual(const variant_t& value) const
{
    const std::size_t number = numberOf(value);
    return number == none ? nullptr : m_candidates[number];
}

// Returns the number of the first candidate that equals the value, or none.
std::size_t AllowedValueIndex::numberOf(const variant_t& value) const
{
    if (m_valueType == value_type_string)
    {
        return findIn(m_texts, std::wstring_view(value.get<const wchar_t*>()), value);
    }
    if (isInteger(value))
    {
        return std::min(findIn(m_integers, integerKey(value), value),
                        findIn(m_doubles, value.get<double>(), value));
    }
    if (isFloating(value))
    {
        return findIn(m_doubles, value.get<double>(), value);
    }
    return findByWalk(value);
}

AllowedValueIndex::TextMatches AllowedValueIndex::matchText(std::wstring_view beginning) const
{
    assert(m_valueType == value_type_string);
    const auto first =
        std::lower_bound(m_texts.begin(), m_texts.end(), std::pair(beginning, std::size_t{0}));
    const auto last =
        std::partition_point(first, m_texts.end(),
                             [beginning](const auto& entry)
                             { return entry.first.substr(0, beginning.size()) == beginning; });
    TextMatches matches;
    matches.count = static_cast<std::size_t>(last - first);
    if (matches.count == 1)
    {
        matches.text = first->first;
        matches.candidate = m_candidates[first->second];
    }
    return matches;
}

} // namespace kexa_3_3
