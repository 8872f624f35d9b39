#include "options/OptionDescription.h"

#include <algorithm>
#include <cassert>
#include <tuple>

#include "options/OptionIndex.h"
#include "support/memory/Garbage.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

OptionDescription::OptionDescription(const OptionGroup& group_, bool isSwitch,
                                     Garbage& pool) noexcept
    : names(&pool.memory()), group(group_), valueMode(isSwitch ? 0 : 1), owner(&pool)
{
}

IOption& OptionDescription::addName(const wchar_t* name)
{
    const HashedText text(viewOf(name));
    OptionIndex* const index = m_place.held.index;
    if (index == nullptr)
    {
        names.push_back(text.movedTo(owner->keep(text.text())));
        return *this;
    }
    const bool boolean = valueType == value_type_boolean;
    const HashedText kept = index->keep(text, boolean);
    index->reserveMore(1);
    names.push_back(kept);
    index->add(kept, m_place.held.number, boolean);
    return *this;
}

IOption& OptionDescription::addAllowedValue(const vexkit2::variant_t& value)
{
    ValueRestriction& restriction = m_restriction.make();
    restriction.allowedValues.push_back(value);
    if (separator == 0)
    {
        separator = L',';
    }
    restriction.index.held.reset();
    return *this;
}

IOption& OptionDescription::addDeprecatedValue(const vexkit2::variant_t& oldValue,
                                               const vexkit2::variant_t& replacement)
{
    ValueRestriction& restriction = m_restriction.make();
    restriction.deprecatedValues.emplace(oldValue, replacement);
    restriction.index.held.reset();
    return *this;
}

IOption& OptionDescription::setDefaultValue(const vexkit2::variant_t& value)
{
    defaultValue = value;
    hasDefault = true;
    return *this;
}

IOption& OptionDescription::setSeparator(wchar_t newSeparator)
{
    separator = newSeparator;
    return *this;
}

IOption& OptionDescription::setMarked()
{
    marked = true;
    notePositional();
    return *this;
}

IOption& OptionDescription::addKeywords(const wchar_t* list)
{
    if (list == nullptr)
    {
        return *this;
    }
    // Collected first: the option gets all of them or, if memory runs out, none.
    Keywords added;
    forEachPiece(viewOf(list), L',',
                 [this, &added](std::wstring_view piece)
                 {
                     if (!keywords().contains(piece) && !added.contains(piece))
                     {
                         added.insert(owner->keep(piece));
                     }
                 });
    m_keywords.make().merge(added);
    notePositional();
    return *this;
}

bool OptionDescription::hasName(std::wstring_view name) const noexcept
{
    return std::any_of(names.begin(), names.end(),
                       [name](HashedText own) { return own.text() == name; });
}

void OptionDescription::enterInto(OptionIndex& index, std::size_t number) noexcept
{
    m_place.held = {&index, number};
    notePositional();
}

OptionIdentity OptionDescription::identity() const noexcept
{
    const Place& place = m_place.held;
    return place.index == nullptr ? OptionIdentity()
                                  : OptionIdentity{place.index->identity(), place.number};
}

// NOLINTNEXTLINE(readability-make-member-function-const): it changes the index.
void OptionDescription::notePositional() noexcept
{
    if (m_place.held.index != nullptr && isPositional())
    {
        m_place.held.index->notePositional(m_place.held.number);
    }
}

const AllowedValueIndex& OptionDescription::allowedValueIndex() const
{
    assert(restriction() != nullptr);
    std::unique_ptr<AllowedValueIndex>& index = restriction()->index.held;
    if (index == nullptr)
    {
        index = std::make_unique<AllowedValueIndex>(valueType, restriction()->allowedValues,
                                                    restriction()->deprecatedValues);
    }
    return *index;
}

bool shareKeyword(const OptionDescription& left, const OptionDescription& right)
{
    const auto& [fewer, more] = left.keywords().size() < right.keywords().size()
                                    ? std::tie(left.keywords(), right.keywords())
                                    : std::tie(right.keywords(), left.keywords());
    return std::any_of(fewer.begin(), fewer.end(),
                       [&more = more](std::wstring_view keyword)
                       { return more.contains(keyword); });
}

} // namespace kexa_3_3
