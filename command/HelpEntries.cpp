// The entries of the help: how one option is shown.
#include <algorithm>

#include "Help.h"
#include "Inline.h"
#include "text/Encoding.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_LOCAL std::string joined(const std::vector<std::string>& texts)
{
    std::string list;
    for (const std::string& text : texts)
    {
        list += (list.empty() ? "" : ", ") + text;
    }
    return list;
}

// What stands for the value: the declared name, else the type.
KEXA_COMMAND_LOCAL std::string valueNameOf(const Declaration& declaration)
{
    if (!declaration.valueName.empty())
    {
        return declaration.valueName;
    }
    if (declaration.kind == Kind::optionFile)
    {
        return "FILE";
    }
    std::string name = declaration.allowed.empty() ? declaration.member->typeName : "value";
    for (char& letter : name)
    {
        letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    }
    return name;
}

KEXA_COMMAND_INLINE std::string argumentForm(const Declaration& declaration)
{
    const std::string& name =
        declaration.valueName.empty() ? declaration.names.front() : declaration.valueName;
    const std::string form = declaration.maximum > 1 ? name + "..." : name;
    return declaration.minimum > 0 ? form : "[" + form + "]";
}

KEXA_COMMAND_INLINE std::string leadOf(const Definition& definition, const Declaration& declaration)
{
    if (declaration.kind == Kind::subcommand || isPositional(declaration))
    {
        return "  " + joined(declaration.names);
    }
    std::string shortNames;
    std::string longNames;
    const std::vector<std::string> defaults = defaultTexts(definition, declaration);
    const bool isOn = declaration.isFlag() && !defaults.empty() && defaults.front() == "true";
    for (std::size_t i = 0; i < declaration.shownNames; ++i)
    {
        const std::string& name = declaration.names[i];
        if (isOneCodePoint(name))
        {
            shortNames += (shortNames.empty() ? "-" : ", -") + name;
        }
        else
        {
            longNames += (longNames.empty() ? "--" : ", --") + ((isOn ? "[no-]" : "") + name);
        }
    }
    std::string lead = "  ";
    if (declaration.kind == Kind::action && definition.verbs)
    {
        lead += joined(
            {declaration.names.begin(),
             declaration.names.begin() + static_cast<std::ptrdiff_t>(declaration.shownNames)});
        return lead;
    }
    lead += shortNames.empty() ? "    " : shortNames + (longNames.empty() ? "" : ", ");
    lead += longNames;
    if (declaration.takesValue())
    {
        const std::string value = valueNameOf(declaration);
        const std::string joint = longNames.empty() ? " " : "=";
        lead += declaration.isImplicit ? "[=" + value + "]" : joint + value;
    }
    return lead;
}

KEXA_COMMAND_LOCAL void noteActions(const State& state, const Declaration& declaration,
                                    std::vector<std::string>& notes)
{
    std::vector<std::string> actions;
    for (const std::size_t index : declaration.actions)
    {
        const Declaration& action = *state.declarations()[index];
        if (!action.hidden)
        {
            actions.push_back(state.definition().verbs ? action.names.front() : spelled(action));
        }
    }
    if (!actions.empty())
    {
        notes.push_back("with " + joined(actions));
    }
}

KEXA_COMMAND_INLINE std::string textOfEntry(const State& state, const Declaration& declaration)
{
    std::vector<std::string> notes;
    const std::vector<std::string> allowed = allowedTexts(declaration);
    if (!allowed.empty())
    {
        notes.push_back("one of: " + joined(allowed));
    }
    if (!declaration.lowest.empty() || !declaration.highest.empty())
    {
        notes.push_back("from " + declaration.lowest + " to " + declaration.highest);
    }
    if (declaration.takesValue() && declaration.member != nullptr)
    {
        const std::vector<std::string> defaults = defaultTexts(state.definition(), declaration);
        if (!joined(defaults).empty() && !declaration.required)
        {
            notes.push_back("default: " + joined(defaults));
        }
    }
    if (declaration.isImplicit)
    {
        notes.push_back("without a value: " + declaration.implicitText);
    }
    if (declaration.required)
    {
        notes.push_back("required");
    }
    if (!declaration.environment.empty())
    {
        notes.push_back("environment: " + declaration.environment);
    }
    noteActions(state, declaration, notes);
    if (!declaration.deprecation.empty())
    {
        notes.push_back("deprecated: " + declaration.deprecation);
    }
    std::string text = declaration.description;
    for (std::size_t i = 0; i < notes.size(); ++i)
    {
        text += (i == 0 ? (text.empty() ? "[" : " [") : "; ") + notes[i];
    }
    return notes.empty() ? text : text + "]";
}

} // namespace detail
} // namespace v1
} // namespace kexa
