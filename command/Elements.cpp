// Named values and the rules of the program, for single values.
#include <algorithm>

#include "Inline.h"
#include "kexa/command/detail/declaration.h"
#include "kexa/command/detail/numbers.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE bool isNamed(const Input& input) noexcept
{
    return input.declaration->table != nullptr;
}

KEXA_COMMAND_INLINE void readNamed(const Input& input, void* element)
{
    input.declaration->table->read(readText(input), element);
}

KEXA_COMMAND_INLINE bool passesRules(Input& input, const void* element)
{
    input.reason = refuseElement(*input.declaration, element);
    return input.reason.empty();
}

KEXA_COMMAND_INLINE std::string refuseElement(const Declaration& declaration, const void* element)
{
    std::string reason;
    for (const auto& rule : declaration.rules)
    {
        if (reason.empty())
        {
            reason = rule->refuse(element);
        }
    }
    return reason;
}

KEXA_COMMAND_INLINE void appendElement(std::vector<std::string>& texts,
                                       const Declaration& declaration, const void* element,
                                       std::string text)
{
    texts.push_back(declaration.table ? declaration.table->nameOf(element) : std::move(text));
}

KEXA_COMMAND_INLINE void ValueTable::read(std::string_view name, void* element) const
{
    const auto found = std::find(names.begin(), names.end(), name);
    if (found != names.end())
    {
        copyTo(static_cast<std::size_t>(found - names.begin()), element);
    }
}

KEXA_COMMAND_INLINE std::string ValueTable::nameOf(const void* element) const
{
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        if (equals(i, element))
        {
            return names[i];
        }
    }
    return std::string();
}

} // namespace detail
} // namespace v1
} // namespace kexa
