// The names of options, and what may be wrong with one.
#include <algorithm>

#include "Characters.h"
#include "Definition.h"
#include "Inline.h"
#include "State.h"
#include "text/CodePoints.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE std::vector<std::string> splitNames(std::string_view names)
{
    std::vector<std::string> pieces;
    std::size_t begin = 0;
    while (begin <= names.size())
    {
        const std::size_t end = std::min(names.find(',', begin), names.size());
        pieces.emplace_back(names.substr(begin, end - begin));
        begin = end + 1;
    }
    return pieces;
}

KEXA_COMMAND_INLINE std::string spelledName(std::string_view name)
{
    return (isOneCodePoint(name) ? "-" : "--") + std::string(name);
}

KEXA_COMMAND_INLINE bool isOneCodePoint(std::string_view name)
{
    return !name.empty() && decodeCodePoint(name).length == name.size();
}

KEXA_COMMAND_INLINE std::string spelled(const Declaration& declaration)
{
    const std::string& name = declaration.names.front();
    return isNamedOption(declaration) ? spelledName(name) : name;
}

// Returns what is wrong with a name as such; null where nothing is.
KEXA_COMMAND_LOCAL const char* faultOf(std::string_view name)
{
    if (name.empty())
    {
        return "is empty";
    }
    if (isHyphenCharacter(static_cast<wchar_t>(decodeCodePoint(name).value)))
    {
        return "begins with a hyphen; names are declared without";
    }
    while (!name.empty())
    {
        const DecodedCodePoint decoded = decodeCodePoint(name);
        name.remove_prefix(decoded.length);
        const auto character = static_cast<wchar_t>(decoded.value);
        if (character == L'=')
        {
            return "holds '='";
        }
        if (isBlank(character))
        {
            return "holds white space";
        }
    }
    return nullptr;
}

KEXA_COMMAND_LOCAL bool isNegatable(const Definition& definition, const std::string& name)
{
    const auto found = definition.options.find(name);
    return found != definition.options.end() && hasNegation(*found->second);
}

// Returns the reason why a name of the given declaration cannot be had besides the others; empty
// where it can.
KEXA_COMMAND_LOCAL std::string collision(const Definition& definition,
                                         const Declaration& declaration, const std::string& name)
{
    const auto& taken = isPositional(declaration) ? definition.positionals : definition.options;
    if (taken.count(name) != 0)
    {
        return "is taken already";
    }
    if (isPositional(declaration))
    {
        return std::string();
    }
    if (name.compare(0, 3, "no-") == 0 && isNegatable(definition, name.substr(3)))
    {
        return "is the 'no-' form of '" + name.substr(3) + "'";
    }
    return hasNegation(declaration) && taken.count("no-" + name) != 0
               ? "has a 'no-' form that is taken already"
               : std::string();
}

KEXA_COMMAND_INLINE void checkName(const Core& core, const Definition& definition,
                                   const Declaration& declaration, const std::string& name,
                                   std::string_view names)
{
    const char* fault = faultOf(name);
    const std::string reason = fault != nullptr ? fault : collision(definition, declaration, name);
    if (!reason.empty())
    {
        core.misuse("kexa: command '" + definition.name + "', declaration '" + std::string(names) +
                    "': the name '" + name + "' " + reason);
    }
}

} // namespace detail
} // namespace v1
} // namespace kexa
