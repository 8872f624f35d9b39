#include "help/OptionListing.h"

#include <algorithm>
#include <map>
#include <numeric>

#include "kexa/option.h"

#include "help/ParagraphLayout.h"
#include "options/OptionDescription.h"
#include "options/ValueText.h"
#include "options/ValueType.h"
#include "support/Text.h"

namespace kexa_3_3
{

namespace
{

constexpr std::size_t description_column = 30;
constexpr std::size_t line_width = 80;

// A paragraph whose lead is written even where there is no text for it.
void appendEntry(std::wstring& out, std::wstring_view lead, std::wstring_view text,
                 std::size_t indent)
{
    if (text.empty() && !lead.empty())
    {
        out.append(lead).push_back(L'\n');
        return;
    }
    appendParagraph(out, lead, text, indent, line_width);
}

[[nodiscard]] bool isTrue(const vexkit2::variant_t& value)
{
    return value.can_get<bool>() ? value.get<bool>()
                                 : value.can_get<double>() && value != vexkit2::variant_t(0);
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
    if (option.allowedValues.empty())
    {
        column += concatenate({L"=<", typeName(option), L">"});
    }
    std::wstring_view before = L"=";
    for (const vexkit2::variant_t& value : option.allowedValues)
    {
        column += concatenate({before, valueText(value)});
        before = L" | ";
    }
    const std::wstring text = option.hasDefault ? valueText(option.defaultValue) : std::wstring();
    if (!text.empty())
    {
        column += concatenate({L" (", text, L")"});
    }
}

// About how long the listing of the entries becomes: most take a line or two.
[[nodiscard]] std::size_t expectedLength(const std::vector<const OptionDescription*>& entries)
{
    return std::accumulate(entries.begin(), entries.end(), std::size_t{0},
                           [](std::size_t length, const OptionDescription* entry)
                           { return length + line_width + 2 * entry->description.size(); });
}

void appendOption(std::wstring& out, const OptionDescription& option)
{
    std::wstring column = formatNames(option);
    if (column.size() >= description_column)
    {
        out.append(column).push_back(L'\n');
        column.clear();
    }
    appendEntry(out, column, option.description, description_column);
}

} // namespace

bool passesHiddenTest(std::wstring_view group, bool hidden) noexcept
{
    return (group == hidden_group) == hidden;
}

std::wstring formatNames(const OptionDescription& option)
{
    // The further names stand before the primary one, the last declared first.
    std::wstring column;
    for (std::size_t position = option.names.size(); position > 1; --position)
    {
        column += concatenate({L"-", option.names[position - 1], L", "});
    }
    column += concatenate({L"-", option.primaryName()});
    if (option.valueType == value_type_boolean)
    {
        appendBooleanForms(column, option);
    }
    else if (option.valueType != value_type_none)
    {
        appendValueForm(column, option);
    }
    return column;
}

std::wstring
formatOptionHelp(const std::vector<std::pair<std::wstring_view, std::wstring_view>>& groups,
                 std::vector<const OptionDescription*> entries, bool hidden)
{
    std::stable_sort(entries.begin(), entries.end(),
                     [](const OptionDescription* left, const OptionDescription* right)
                     { return left->primaryName() < right->primaryName(); });
    std::map<std::wstring_view, std::vector<const OptionDescription*>> byGroup;
    for (const OptionDescription* const entry : entries)
    {
        if (!entry->marked)
        {
            byGroup[entry->group].push_back(entry);
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
            appendEntry(out, {}, groupText, 0);
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
