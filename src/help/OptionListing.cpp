#include "help/OptionListing.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <numeric>
#include <type_traits>

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
        column.append(L"=<").append(typeName(option)).push_back(L'>');
    }
    std::wstring_view before = L"=";
    for (const vexkit2::variant_t& value : option.allowedValues)
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

// About how long the listing of the entries becomes: most take a line or two.
[[nodiscard]] std::size_t expectedLength(const std::vector<const OptionDescription*>& entries)
{
    return std::accumulate(entries.begin(), entries.end(), std::size_t{0},
                           [](std::size_t length, const OptionDescription* entry)
                           { return length + line_width + 2 * entry->description.size(); });
}

void appendNames(std::wstring& out, const OptionDescription& option)
{
    // The further names stand before the primary one, the last declared first.
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

// Sorts by primary name; what has one name stays in its order. The first characters decide nearly
// always and are compared as one number.
void sortByName(std::vector<const OptionDescription*>& entries)
{
    constexpr std::size_t leading = sizeof(std::uint64_t) / sizeof(wchar_t);
    struct Key
    {
        std::uint64_t beginning;
        const OptionDescription* entry;
    };
    const auto keyOf = [](const OptionDescription* entry) -> Key
    {
        // A text that ends early has zeros there, which are not larger than any character.
        constexpr std::int64_t lowest =
            std::is_signed_v<wchar_t> ? -(std::int64_t{1} << (8 * sizeof(wchar_t) - 1)) : 0;
        const std::wstring_view name = entry->primaryName();
        std::uint64_t beginning = 0;
        for (std::size_t position = 0; position < leading; ++position)
        {
            const std::int64_t above = position < name.size() ? name[position] - lowest : 0;
            beginning = beginning << (8 * sizeof(wchar_t)) | static_cast<std::uint64_t>(above);
        }
        return {beginning, entry};
    };
    std::vector<Key> keys;
    keys.reserve(entries.size());
    std::transform(entries.begin(), entries.end(), std::back_inserter(keys), keyOf);
    std::stable_sort(keys.begin(), keys.end(),
                     [](const Key& left, const Key& right)
                     {
                         return left.beginning != right.beginning
                                    ? left.beginning < right.beginning
                                    : left.entry->primaryName() < right.entry->primaryName();
                     });
    std::transform(keys.begin(), keys.end(), entries.begin(),
                   [](const Key& key) { return key.entry; });
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

std::wstring
formatOptionHelp(const std::vector<OptionGroup>& groups,
                 std::vector<const OptionDescription*> entries, bool hidden)
{
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
