#include "NaiveActionCheck.h"

#include <algorithm>
#include <set>

namespace naive
{

namespace
{

bool compatible(const Registry& registry, const std::set<std::wstring>& actions)
{
    for (const std::set<std::wstring>& group : registry.compatibleActions())
    {
        if (std::includes(group.begin(), group.end(), actions.begin(), actions.end()))
        {
            return true;
        }
    }
    return false;
}

bool shareKeyword(const Option& left, const Option& right)
{
    for (const std::wstring& keyword : left.keywords)
    {
        if (right.keywords.count(keyword) != 0)
        {
            return true;
        }
    }
    return false;
}

bool hasActions(const Registry& registry)
{
    for (const Option& option : registry.options())
    {
        if (option.isAction)
        {
            return true;
        }
    }
    return false;
}

} // namespace

std::int32_t checkActions(const Registry& registry, const Result& result, std::wstring& message)
{
    const Option* chosen = nullptr;
    std::set<std::wstring> actions;
    bool valueOptionSeen = false;
    for (const auto& [name, record] : result.records())
    {
        if (record.positions.empty())
        {
            continue; // has only a default
        }
        const Option* option = registry.find(name);
        if (option == nullptr)
        {
            return 1;
        }
        if (!option->isAction)
        {
            valueOptionSeen = true;
            continue;
        }
        actions.insert(option->primaryName());
        if (chosen == nullptr)
        {
            chosen = option;
        }
        else if (option != chosen && !compatible(registry, actions))
        {
            message = L"Action '-" + option->primaryName() + L"' and action '-" +
                      chosen->primaryName() + L"' were defined, but only one action possible.";
            return 2;
        }
    }
    if (chosen == nullptr)
    {
        if (valueOptionSeen && hasActions(registry))
        {
            message = L"No action defined.";
            return 2;
        }
        return 0;
    }
    for (const auto& [name, record] : result.records())
    {
        const Option* option = registry.find(name);
        if (option != nullptr && !option->isAction && !option->keywords.empty() &&
            !record.positions.empty() && !shareKeyword(*option, *chosen))
        {
            message = L"Action '-" + chosen->primaryName() + L"' doesn't accept option '-" +
                      option->primaryName() + L"'";
            return 2;
        }
    }
    return 0;
}

} // namespace naive
