#include "help/HelpOutput.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <vector>

#include "help/OptionListing.h"
#include "options/OptionDescription.h"
#include "options/RegisteredOptionStorage.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

std::wstring notAvailable(const RegisteredOptionStorage& options, std::wstring_view topic,
                          bool hidden)
{
    return concatenate({L"Help for ", topic, L" not available.",
                        L"Please use one of the following topics:\n",
                        formatTopicList(options, hidden)});
}

// Returns the listing of the options that take a value and pass the test; empty if there are none.
template <class Test>
std::wstring listMatching(const RegisteredOptionStorage& options, bool hidden, Test passes)
{
    std::vector<const OptionDescription*> entries;
    for (std::size_t index = 0; index < options.size(); ++index)
    {
        const OptionDescription& option = options[index];
        if (option.takesValue() && passes(option))
        {
            entries.push_back(&option);
        }
    }
    return entries.empty() ? std::wstring()
                           : formatOptionHelp(options.groups(), std::move(entries), hidden);
}

} // namespace

std::wstring formatTopicList(const RegisteredOptionStorage& options, bool hidden)
{
    constexpr std::wstring_view margin = L"    ";
    constexpr std::size_t gap = 3;
    std::map<std::wstring_view, std::wstring_view> topics;
    std::size_t longest = 0;
    for (std::size_t index = 0; index < options.size(); ++index)
    {
        const OptionDescription& option = options[index];
        if (!option.takesValue() && passesHiddenTest(option.group.name, hidden))
        {
            topics[option.primaryName()] = option.description;
            longest = std::max(longest, option.primaryName().size());
        }
    }
    std::wstring text;
    for (const auto& [name, description] : topics)
    {
        text.append(margin).append(name).append(longest + gap - name.size(), L' ');
        text.append(description).push_back(L'\n');
    }
    return text;
}

std::wstring formatTopicHelp(const RegisteredOptionStorage& options, const wchar_t* topic,
                             bool hidden)
{
    if (topic == nullptr)
    {
        return formatTopicList(options, hidden);
    }
    const OptionDescription* const option = options.find(std::wstring_view(topic));
    return option == nullptr ? notAvailable(options, topic, hidden)
                             : formatOptionHelp(options.groups(), {option}, hidden);
}

std::wstring formatRelatedHelp(const RegisteredOptionStorage& options, const wchar_t* topic,
                               bool hidden)
{
    if (topic == nullptr)
    {
        return formatTopicList(options, hidden);
    }
    const OptionDescription* const found = options.find(std::wstring_view(topic));
    if (found == nullptr)
    {
        return notAvailable(options, topic, hidden);
    }
    return listMatching(options, hidden,
                        [found](const OptionDescription& option)
                        { return &option != found && shareKeyword(option, *found); });
}

std::wstring formatFullHelp(const RegisteredOptionStorage& options, bool hidden)
{
    return listMatching(options, hidden,
                        [](const OptionDescription& option) { return option.keywords.empty(); });
}

} // namespace kexa_3_3
