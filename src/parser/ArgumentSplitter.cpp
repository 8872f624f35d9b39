#include "parser/ArgumentSplitter.h"

#include <algorithm>
#include <cstddef>

#include "support/Text.h"

namespace kexa_3_3
{

Arguments splitArguments(std::wstring_view text)
{
    Arguments arguments;
    while (!text.empty())
    {
        const std::size_t end = std::min(text.find(L'\n'), text.size());
        std::wstring_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        while (!line.empty() && isClassicSpace(line.front()))
        {
            line.remove_prefix(1);
        }
        while (!line.empty() && line.back() == L'\r')
        {
            line.remove_suffix(1);
        }
        if (!line.empty() && line.front() != L';' && line.front() != L'#')
        {
            arguments.push_back(line);
        }
    }
    return arguments;
}

} // namespace kexa_3_3
