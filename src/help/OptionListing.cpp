#include "help/OptionListing.h"

#include <algorithm>
#include <cassert>
#include <map>
#include <numeric>

#include "kexa/option.h"

#include "help/ParagraphLayout.h"
#include "options/OptionDescription.h"
#include "options/ValueText.h"
#include "options/ValueType.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

constexpr std::size_t description_column = 30;
constexpr std::size_t line_width = 80;

[[nodiscard]] bool isTrue(const vexkit2::variant_t& value)
{
    if (value.can_get<bool>())
    {
        return value.get<bool>();
    }
    return value.can_get<double>() && value != vexkit2::variant_t(0);
}

void appendBooleanForms(std::wstring& column, const OptionDescription& option)
{
    constexpr std::wstring_view mark = L" (default)";
    const bool defaultIsTrue = option.hasDefault && isTrue(option.defaultValue);
    column.append(defaultIsTrue ? mark : std::wstring_view());
    column.append(L" | -no-").append(option.primaryName());
    column.append(option.hasDefault && !defaultIsTrue ? mark : std::wstring_view());
}

void appendValueForm(std::wstring& column, const OptionDescription& option)
{
    if (option.allowedValues().empty())
    {
        column.append(L"=<").append(typeName(option)).push_back(L'>');
    }
    std::wstring_view before = L"=";
    for (const vexkit2::variant_t& value : option.allowedValues())
    {
        column.append(before).append(valueText(value));
        before = L" | ";
    }
    const std::wstring text = option.hasDefault ? valueText(option.defaultValue) : std::wstring();
    if (!text.empty())
    {
        column.append(L" (").append(text).push_back(L')');
    }
}

// Estimates the length of the listing, to reserve memory: a line and the description of each entry,
// with room for indentation.
[[nodiscard]] std::size_t expectedLength(const std::vector<const OptionDescription*>& entries)
{
    return std::accumulate(entries.begin(), entries.end(), std::size_t{0},
                           [](std::size_t length, const OptionDescription* entry)
                           { return length + line_width + 2 * entry->description.size(); });
}

void appendNames(std::wstring& out, const OptionDescription& option)
{
    // The primary name comes last, after the further names in reverse order of declaration.
    for (std::size_t position = option.names.size(); position > 1; --position)
    {
        out.append(L"-").append(option.names[position - 1].text()).append(L", ");
    }
    out.append(L"-").append(option.primaryName());
    if (option.valueType == value_type_boolean)
    {
        appendBooleanForms(out, option);
    }
    else if (option.valueType != value_type_none)
    {
        appendValueForm(out, option);
    }
}

void appendOption(std::wstring& out, const OptionDescription& option)
{
    const std::size_t begin = out.size();
    appendNames(out, option);
    std::size_t column = out.size() - begin;
    if (column >= description_column)
    {
        out.push_back(L'\n');
        column = 0;
    }
    if (!option.description.empty())
    {
        continueParagraph(out, column, option.description, description_column, line_width);
    }
    else if (column != 0)
    {
        out.push_back(L'\n');
    }
}

// The sort is stable: entries with the same primary name keep their order.
void sortByName(std::vector<const OptionDescription*>& entries)
{
    std::stable_sort(entries.begin(), entries.end(),
                     [](const OptionDescription* left, const OptionDescription* right)
                     { return left->primaryName() < right->primaryName(); });
}

} // namespace

bool passesHiddenTest(std::wstring_view group, bool hidden) noexcept
{
    return (group == hidden_group) == hidden;
}

std::wstring formatNames(const OptionDescription& option)
{
    std::wstring column;
    appendNames(column, option);
    return column;
}

std::wstring formatOptionHelp(const std::vector<OptionGroup>& groups,
                              std::vector<const OptionDescription*> entries, bool hidden)
{
    assert(std::find(entries.begin(), entries.end(), nullptr) == entries.end());
    sortByName(entries);
    std::map<std::wstring_view, std::vector<const OptionDescription*>> byGroup;
    for (const OptionDescription* const entry : entries)
    {
        if (!entry->marked)
        {
            byGroup[entry->group.name].push_back(entry);
        }
    }
    std::wstring out;
    out.reserve(expectedLength(entries));
    for (const auto& [group, groupText] : groups)
    {
        if (!passesHiddenTest(group, hidden))
        {
            continue;
        }
        if (!group.empty())
        {
            out.append(group).push_back(L'\n');
        }
        if (!groupText.empty())
        {
            appendParagraph(out, {}, groupText, 0, line_width);
            out.push_back(L'\n');
        }
        for (const OptionDescription* const entry : byGroup[group])
        {
            appendOption(out, *entry);
        }
        out.push_back(L'\n');
    }
    return out;
}

} // namespace kexa_3_3
