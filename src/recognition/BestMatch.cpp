#include "recognition/BestMatch.h"

#include "support/Text.h"

namespace kexa_3_3
{

BestMatch findBestMatch(const OptionIndex& index, std::wstring_view typedName,
                        std::wstring& bestName)
{
    const std::int64_t exact = index.findAnswering(typedName);
    if (exact != OptionIndex::none)
    {
        bestName.assign(typedName);
        return {1, exact};
    }
    const OptionIndex::PrefixMatches matches = index.matchPrefix(typedName);
    if (matches.count == 1)
    {
        bestName.assign(matches.negated ? negation : std::wstring_view());
        bestName.append(matches.name);
    }
    return {matches.count, matches.option};
}

std::wstring listCandidates(const OptionIndex& index, std::wstring_view typedName)
{
    std::wstring list;
    for (const std::wstring& candidate : index.listPrefix(typedName))
    {
        list += concatenate({list.empty() ? L"'" : L", '", candidate, L"'"});
    }
    return list;
}

} // namespace kexa_3_3
