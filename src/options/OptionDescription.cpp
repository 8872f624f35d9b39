#include "options/OptionDescription.h"

#include <algorithm>
#include <memory>

#include "support/Garbage.h"
#include "support/Text.h"

namespace kexa_3_3
{

OptionDescription::OptionDescription(const std::pair<std::wstring_view, std::wstring_view>& group_,
                                     bool isSwitch, Garbage& owner_)
    : names(&owner_.memory()), keywords(&owner_.memory()), group(group_.first),
      groupText(group_.second), valueMode(isSwitch ? 0 : 1), owner(&owner_)
{
}

IOption& OptionDescription::addName(const wchar_t* name)
{
    const HashedText kept(owner->keep(viewOf(name)));
    if (OptionIndex* const index = m_place.held.index; index != nullptr)
    {
        index->reserve(1);
        names.push_back(kept);
        index->add(kept, m_place.held.tableIndex, names.size() - 1,
                   valueType == value_type_boolean);
        return *this;
    }
    names.push_back(kept);
    return *this;
}

IOption& OptionDescription::addAllowedValue(const vexkit2::variant_t& value)
{
    allowedValues.push_back(value);
    if (separator == 0)
    {
        separator = L',';
    }
    m_allowedValueIndex.held.reset();
    return *this;
}

IOption& OptionDescription::addDeprecatedValue(const vexkit2::variant_t& oldValue,
                                               const vexkit2::variant_t& replacement)
{
    deprecatedValues.emplace(oldValue, replacement);
    m_allowedValueIndex.held.reset();
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
    const std::wstring_view pieces = viewOf(list);
    if (pieces.empty())
    {
        return *this;
    }
    // Collected first: the option has all the new keywords or, where memory runs out, none of them.
    std::pmr::set<std::wstring_view> added(keywords.get_allocator());
    forEachPiece(pieces, L',',
                 [this, &added](std::wstring_view piece)
                 {
                     if (keywords.find(piece) == keywords.end() && added.find(piece) == added.end())
                     {
                         added.insert(owner->keep(piece));
                     }
                 });
    keywords.merge(added);
    notePositional();
    return *this;
}

bool OptionDescription::answersTo(std::wstring_view name) const noexcept
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool OptionDescription::hasPositionalKeyword() const
{
    return !keywords.empty() && keywords.find(positional_keyword) != keywords.end();
}

void OptionDescription::setNames(std::span<const OptionIndex::NewName> newNames)
{
    names.reserve(newNames.size());
    for (const OptionIndex::NewName& name : newNames)
    {
        names.push_back(name.text);
    }
}

void OptionDescription::enterInto(OptionIndex& index, std::size_t tableIndex)
{
    index.reserve(names.size());
    m_place.held = {&index, tableIndex};
    for (std::size_t position = 0; position < names.size(); ++position)
    {
        index.add(names[position], tableIndex, position, valueType == value_type_boolean);
    }
    notePositional();
}

void OptionDescription::enterInto(OptionIndex& index, std::size_t tableIndex,
                                  std::span<const OptionIndex::NewName> newNames) noexcept
{
    m_place.held = {&index, tableIndex};
    for (std::size_t position = 0; position < newNames.size(); ++position)
    {
        index.add(newNames[position].text, tableIndex, position, valueType == value_type_boolean,
                  newNames[position].slot);
    }
    notePositional();
}

const AllowedValueIndex& OptionDescription::allowedValueIndex() const
{
    std::unique_ptr<AllowedValueIndex>& index = m_allowedValueIndex.held;
    if (index == nullptr)
    {
        index = std::make_unique<AllowedValueIndex>(valueType, allowedValues, deprecatedValues);
    }
    return *index;
}

// NOLINTNEXTLINE(readability-make-member-function-const): it changes the index.
void OptionDescription::notePositional()
{
    if (m_place.held.index != nullptr && isPositional())
    {
        m_place.held.index->notePositional(m_place.held.tableIndex);
    }
}

bool shareKeyword(const OptionDescription& left, const OptionDescription& right)
{
    auto first = left.keywords.begin();
    auto second = right.keywords.begin();
    while (first != left.keywords.end() && second != right.keywords.end())
    {
        const int order = first->compare(*second);
        if (order == 0)
        {
            return true;
        }
        order < 0 ? ++first : ++second;
    }
    return false;
}

} // namespace kexa_3_3
