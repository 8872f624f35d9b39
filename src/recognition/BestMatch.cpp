#include "recognition/BestMatch.h"

#include "support/text/Text.h"

namespace kexa_3_3
{

std::wstring listCandidates(const OptionIndex& index, std::wstring_view typedName)
{
    std::wstring list;
    for (const std::wstring_view candidate : index.listPrefix(typedName))
    {
        list += concatenate({list.empty() ? L"'" : L", '", candidate, L"'"});
    }
    return list;
}

} // namespace kexa_3_3
