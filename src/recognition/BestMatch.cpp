#include "recognition/BestMatch.h"

#include "support/Text.h"

namespace kexa_3_3
{

BestMatch findBestMatch(const OptionIndex& index, const HashedText& typedName)
{
    const std::int64_t exact = index.findAnswering(typedName);
    if (exact != OptionIndex::none)
    {
        return {1, exact, typedName, false};
    }
    const OptionIndex::PrefixMatches matches = index.matchPrefix(typedName);
    return {matches.count, matches.option, matches.name, matches.negated};
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
