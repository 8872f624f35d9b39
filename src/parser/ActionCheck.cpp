#include "parser/ActionCheck.h"

#include <algorithm>
#include <cassert>
#include <optional>
#include <string_view>

#include "options/OptionDescription.h"
#include "options/RegisteredOptionStorage.h"
#include "result/OptionResultTable.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

// A name under which the result holds an occurrence, and the option that has the name.
struct Given
{
    std::wstring_view name;
    const OptionDescription* option;
};

struct Overview
{
    std::vector<Given> actions;    // by name
    std::vector<Given> restricted; // options that take a value and have keywords, in any order
    std::optional<std::wstring_view> firstUnknown; // the first name that is not declared
    bool valueOptionSeen = false;
};

Overview survey(const OptionResultTable& result, const RegisteredOptionStorage& options)
{
    Overview overview;
    for (const OptionResultTable::NamedRecord& stored : result.names())
    {
        if (!stored.record->occurrences.hasPositions())
        {
            continue;
        }
        const std::wstring_view name = stored.name.text();
        const OptionDescription* const option = options.find(stored.name);
        if (option == nullptr)
        {
            overview.firstUnknown = std::min(overview.firstUnknown.value_or(name), name);
        }
        else if (!option->takesValue())
        {
            overview.actions.push_back({name, option});
        }
        else
        {
            overview.valueOptionSeen = true;
            if (!option->keywords().empty())
            {
                overview.restricted.push_back({name, option});
            }
        }
    }
    std::sort(overview.actions.begin(), overview.actions.end(),
              [](const Given& left, const Given& right) { return left.name < right.name; });
    return overview;
}

// Returns the first action, by name, that may not be combined with those before it, or null.
const Given* findConflict(const std::vector<Given>& actions, const ActionGroups& groups)
{
    // The groups that contain all actions so far.
    std::vector<const std::set<std::wstring>*> fitting;
    for (const std::set<std::wstring>& group : groups)
    {
        fitting.push_back(&group);
    }
    std::set<const OptionDescription*> known; // an action is given under each of its names
    for (const Given& action : actions)
    {
        if (!known.insert(action.option).second)
        {
            continue;
        }
        const std::wstring name(action.option->primaryName());
        std::erase_if(fitting, [&name](const std::set<std::wstring>* group)
                      { return group->find(name) == group->end(); });
        if (known.size() > 1 && fitting.empty())
        {
            return &action;
        }
    }
    return nullptr;
}

// Returns the first option, by name, that the action does not accept, or null.
const Given* findUnaccepted(const std::vector<Given>& restricted, const OptionDescription& action)
{
    const Given* first = nullptr;
    for (const Given& given : restricted)
    {
        if ((first == nullptr || given.name < first->name) && !shareKeyword(*given.option, action))
        {
            first = &given;
        }
    }
    return first;
}

std::wstring conflictMessage(const OptionDescription& action, const OptionDescription& chosen)
{
    return concatenate({L"Action '-", action.primaryName(), L"' and action '-",
                        chosen.primaryName(), L"' were defined, but only one action possible."});
}

std::wstring unacceptedMessage(const OptionDescription& action, const OptionDescription& option)
{
    return concatenate({L"Action '-", action.primaryName(), L"' doesn't accept option '-",
                        option.primaryName(), L"'"});
}

} // namespace

result_t checkActions(const OptionResultTable& result, const RegisteredOptionStorage& options,
                      const ActionGroups& compatible, std::wstring& message)
{
    if (!options.hasActions() && result.isFilledFrom(options.index().identity()))
    {
        return result_success; // there is nothing to combine, and no unknown name
    }
    const Overview overview = survey(result, options);
    const Given* const conflict = findConflict(overview.actions, compatible);
    if (overview.firstUnknown && (conflict == nullptr || *overview.firstUnknown < conflict->name))
    {
        return result_nothing;
    }
    if (conflict != nullptr)
    {
        assert(overview.actions.front().option != conflict->option);
        message = conflictMessage(*conflict->option, *overview.actions.front().option);
        return result_invalid_arguments;
    }
    if (overview.actions.empty())
    {
        if (options.hasActions() && overview.valueOptionSeen)
        {
            message = L"No action defined.";
            return result_invalid_arguments;
        }
        return result_success;
    }
    const OptionDescription& chosen = *overview.actions.front().option;
    const Given* const unaccepted = findUnaccepted(overview.restricted, chosen);
    if (unaccepted != nullptr)
    {
        message = unacceptedMessage(chosen, *unaccepted->option);
        return result_invalid_arguments;
    }
    return result_success;
}

} // namespace kexa_3_3
