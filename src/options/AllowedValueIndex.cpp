#include "options/AllowedValueIndex.h"

#include <algorithm>
#include <cmath>

#include "kexa/option.h"

#include "options/ValueText.h"

namespace kexa_3_3
{

namespace
{

using vexkit2::variant_t;

[[nodiscard]] bool isInteger(const variant_t& value) noexcept
{
    return value.kind() >= vexkit2::kind_s32 && value.kind() <= vexkit2::kind_u64;
}

[[nodiscard]] bool isFloating(const variant_t& value) noexcept
{
    return value.kind() == vexkit2::kind_float || value.kind() == vexkit2::kind_double;
}

} // namespace

AllowedValueIndex::AllowedValueIndex(std::int32_t valueType,
                                     const std::vector<variant_t>& allowedValues,
                                     const std::map<variant_t, variant_t>& deprecatedValues)
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
    if (valueType == value_type_string)
    {
        indexTexts();
    }
    else if (valueType != value_type_boolean)
    {
        indexNumbers(valueType);
    }
}

void AllowedValueIndex::indexTexts()
{
    m_method = Method::texts;
    m_texts.reserve(m_candidates.size());
    for (std::size_t order = 0; order < m_candidates.size(); ++order)
    {
        const variant_t& candidate = *m_candidates[order];
        const bool wide = candidate.can_get<const wchar_t*>();
        m_texts.push_back({wide ? std::wstring_view(candidate.get<const wchar_t*>())
                                : m_ownTexts.emplace_back(valueText(candidate)),
                           order});
    }
    std::sort(m_texts.begin(), m_texts.end(),
              [](const TextCandidate& left, const TextCandidate& right)
              {
                  const int order = left.text.compare(right.text);
                  return order != 0 ? order < 0 : left.order < right.order;
              });
}

// Sorting finds what equality finds only where both agree: among integers, and among doubles and
// integers that a double holds exactly.
void AllowedValueIndex::indexNumbers(std::int32_t valueType)
{
    constexpr double exact = 9007199254740992.0; // 2 to the 53rd
    const bool doubles = valueType == value_type_double;
    const bool agree = std::all_of(m_candidates.begin(), m_candidates.end(),
                                   [doubles](const variant_t* candidate)
                                   {
                                       if (doubles)
                                       {
                                           return !isInteger(*candidate) ||
                                                  std::abs(candidate->get<double>()) <= exact;
                                       }
                                       return !isFloating(*candidate);
                                   });
    if (!agree)
    {
        return;
    }
    m_method = Method::numbers;
    m_numbers = m_candidates;
    std::stable_sort(m_numbers.begin(), m_numbers.end(),
                     [](const variant_t* left, const variant_t* right) { return *left < *right; });
}

const variant_t* AllowedValueIndex::findEqual(const variant_t& value) const
{
    switch (m_method)
    {
    case Method::texts:
        return findText(value.get<const wchar_t*>());
    case Method::numbers:
        return findNumber(value);
    case Method::walk:
        break;
    }
    const auto found =
        std::find_if(m_candidates.begin(), m_candidates.end(),
                     [&value](const variant_t* candidate) { return value == *candidate; });
    return found == m_candidates.end() ? nullptr : *found;
}

const variant_t* AllowedValueIndex::findText(std::wstring_view text) const
{
    auto found = std::lower_bound(m_texts.begin(), m_texts.end(), text,
                                  [](const TextCandidate& candidate, std::wstring_view wanted)
                                  { return candidate.text < wanted; });
    for (; found != m_texts.end() && found->text == text; ++found)
    {
        // Only a wide text equals a wide text; a number that reads alike does not.
        if (m_candidates[found->order]->can_get<const wchar_t*>())
        {
            return m_candidates[found->order];
        }
    }
    return nullptr;
}

const variant_t* AllowedValueIndex::findNumber(const variant_t& value) const
{
    const auto found = std::lower_bound(m_numbers.begin(), m_numbers.end(), &value,
                                        [](const variant_t* left, const variant_t* right)
                                        { return *left < *right; });
    return found != m_numbers.end() && value == **found ? *found : nullptr;
}

AllowedValueIndex::TextMatches AllowedValueIndex::matchText(std::wstring_view beginning) const
{
    const auto first = std::lower_bound(m_texts.begin(), m_texts.end(), beginning,
                                        [](const TextCandidate& candidate, std::wstring_view text)
                                        { return candidate.text < text; });
    const auto last =
        std::partition_point(first, m_texts.end(),
                             [beginning](const TextCandidate& candidate)
                             { return candidate.text.substr(0, beginning.size()) == beginning; });
    TextMatches matches;
    matches.count = static_cast<std::size_t>(last - first);
    if (matches.count == 1)
    {
        matches.candidate = m_candidates[first->order];
        matches.text = first->text;
    }
    return matches;
}

} // namespace kexa_3_3
