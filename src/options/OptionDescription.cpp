#include "options/OptionDescription.h"

#include <algorithm>
#include <memory>

#include "support/Garbage.h"
#include "support/Text.h"

namespace kexa_3_3
{

IOption& OptionDescription::addName(const wchar_t* name)
{
    const HashedText kept(owner->keep(viewOf(name)));
    OptionIndex* const index = m_place.held.index;
    if (index != nullptr)
    {
        index->reserve(1);
    }
    names.append(kept, owner->memory());
    namesAreJoined = false;
    if (index != nullptr)
    {
        index->add(names.back(), m_place.held.tableIndex, valueType == value_type_boolean);
    }
    return *this;
}

IOption& OptionDescription::addAllowedValue(const vexkit2::variant_t& value)
{
    noteValues();
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
    noteValues();
    ValueRestriction& restriction = m_restriction.make();
    restriction.deprecatedValues.emplace(oldValue, replacement);
    restriction.index.held.reset();
    return *this;
}

IOption& OptionDescription::setDefaultValue(const vexkit2::variant_t& value)
{
    noteValues();
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
    if (list != nullptr)
    {
        keywords.add(list, *owner);
        notePositional();
    }
    return *this;
}

bool OptionDescription::answersTo(std::wstring_view name) const noexcept
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

const AllowedValueIndex& OptionDescription::allowedValueIndex() const
{
    std::unique_ptr<AllowedValueIndex>& index = restriction()->index.held;
    if (index == nullptr)
    {
        index = std::make_unique<AllowedValueIndex>(valueType, restriction()->allowedValues,
                                                    restriction()->deprecatedValues);
    }
    return *index;
}

} // namespace kexa_3_3
