#include "NaiveRecognition.h"

#include <locale>

#include "kexa/parser.h"
#include "NaiveValues.h"

namespace naive
{

namespace
{

bool isHyphen(wchar_t character)
{
    return character == 0x002D || character == 0x2012 || character == 0x2013 ||
           character == 0x2014 || character == 0x2015 || character == 0x2053;
}

bool isSpace(wchar_t character)
{
    return std::isspace(character, std::locale());
}

bool startsWith(const std::wstring& text, const std::wstring& start)
{
    return text.substr(0, start.size()) == start;
}

// Returns every name that a command line may use, in the order of declaration.
std::vector<std::wstring> candidateNames(const Registry& registry)
{
    std::vector<std::wstring> candidates;
    for (const Option& option : registry.options())
    {
        for (const std::wstring& name : option.names)
        {
            candidates.push_back(name);
            if (option.isBoolean())
            {
                candidates.push_back(L"no-" + name);
            }
        }
    }
    return candidates;
}

// Returns the candidates that begin with the typed name; only the equal one if there is one.
std::vector<std::wstring> bestMatches(const std::vector<std::wstring>& candidates,
                                      const std::wstring& typedName)
{
    std::vector<std::wstring> matches;
    for (const std::wstring& candidate : candidates)
    {
        if (candidate == typedName)
        {
            return {candidate};
        }
        if (startsWith(candidate, typedName))
        {
            matches.push_back(candidate);
        }
    }
    return matches;
}

const Option* findWithNegations(const Registry& registry, const std::wstring& name)
{
    for (const Option& option : registry.options())
    {
        for (const std::wstring& own : option.names)
        {
            if (own == name || (option.isBoolean() && L"no-" + own == name))
            {
                return &option;
            }
        }
    }
    return nullptr;
}

std::wstring context(const std::wstring& argument)
{
    return L" in argument: '" + argument + L"'";
}

std::int32_t fail(std::wstring& error, const std::wstring& text)
{
    error = text;
    return 2;
}

std::int32_t storeAndConsume(Run& run, const Option& option, const std::wstring& value,
                             std::size_t consumed, Arguments& arguments, std::wstring& error)
{
    notifyOptionParsed(run, option.primaryName());
    const std::int32_t code = storeValues(run, option, arguments[0], value, error);
    for (std::size_t count = 0; code == 0 && count < consumed; ++count)
    {
        arguments.erase(arguments.begin());
    }
    return code;
}

std::int32_t parseWithNextArgument(Run& run, const Option& option, Arguments& arguments,
                                   std::wstring& error)
{
    const std::wstring argument = arguments[0];
    const std::wstring missing =
        L"Option '" + option.primaryName() + L"' requires a value" + context(argument);
    if (arguments.size() < 2)
    {
        return fail(error, missing);
    }
    const std::wstring value = arguments[1];
    if (startsWith(value, L"-"))
    {
        return fail(error, L"Option '" + option.primaryName() +
                               L"' received value from the next argument: '" + value +
                               L"', but it seems to be an option. Use '-option=value' declaration "
                               L"form or make sure that value is not missed");
    }
    if (value.empty())
    {
        return fail(error, missing);
    }
    return storeAndConsume(run, option, value, 2, arguments, error);
}

} // namespace

SplitArgument splitArgument(const std::wstring& argument)
{
    std::wstring rest = argument;
    for (int count = 0; count < 2 && !rest.empty() && isHyphen(rest[0]); ++count)
    {
        rest.erase(0, 1);
    }
    SplitArgument split;
    while (!rest.empty() && rest[0] != L'=' && !isSpace(rest[0]))
    {
        split.name += rest[0];
        rest.erase(0, 1);
    }
    if (!rest.empty() && rest[0] == L'=')
    {
        split.value = rest.substr(1);
        return split;
    }
    while (!rest.empty() && isSpace(rest[0]))
    {
        rest.erase(0, 1);
    }
    split.value = rest;
    return split;
}

Recognised recogniseOption(const Registry& registry, const std::wstring& argument)
{
    Recognised recognised;
    if (argument.size() < 2 || !isHyphen(argument[0]))
    {
        return recognised;
    }
    const std::wstring typedName = splitArgument(argument).name;
    const std::vector<std::wstring> matches = bestMatches(candidateNames(registry), typedName);
    if (matches.size() == 1)
    {
        recognised.bestName = matches[0];
        recognised.option = findWithNegations(registry, matches[0]);
        recognised.claimed = recognised.option != nullptr;
        return recognised;
    }
    for (const std::wstring& match : matches)
    {
        recognised.candidateList += recognised.candidateList.empty() ? L"" : L", ";
        recognised.candidateList += L"'" + match + L"'";
    }
    recognised.claimed = matches.size() > 1;
    return recognised;
}

std::int32_t parseOption(Run& run, const Recognised& recognised, Arguments& arguments,
                         std::wstring& error)
{
    const std::wstring argument = arguments[0];
    const SplitArgument split = splitArgument(argument);
    if (split.name.empty() || startsWith(split.name, L"-"))
    {
        return fail(error, L"Unknown option '" + argument + L"'");
    }
    if (!recognised.candidateList.empty())
    {
        return fail(error, L"Ambiguous option '" + split.name + L"'" + context(argument) +
                               L", could be: " + recognised.candidateList);
    }
    const Option& option = *recognised.option;
    if (option.takesNoValue())
    {
        if (!split.value.empty())
        {
            return fail(error, L"Option '" + option.primaryName() + L"'does not requires a value" +
                                   context(argument));
        }
        return storeAndConsume(run, option, L"", 1, arguments, error);
    }
    if (option.isBoolean())
    {
        if (!split.value.empty())
        {
            return fail(error, L"Option '" + option.primaryName() +
                                   L"' is boolean and should be declared in form '--option' or "
                                   L"'--no-option'" +
                                   context(argument));
        }
        const bool negated = startsWith(recognised.bestName, L"no-");
        return storeAndConsume(run, option, negated ? L"0" : L"1", 1, arguments, error);
    }
    if (!split.value.empty())
    {
        return storeAndConsume(run, option, split.value, 1, arguments, error);
    }
    return parseWithNextArgument(run, option, arguments, error);
}

bool recognisePositional(const Registry& registry, std::int32_t flags, const std::wstring& argument)
{
    if ((flags & kexa_3_3::flag_no_hyphen_positional) != 0 && startsWith(argument, L"-"))
    {
        return false;
    }
    for (const Option& option : registry.options())
    {
        if (option.isPositional())
        {
            return true;
        }
    }
    return false;
}

std::int32_t parsePositional(Run& run, Arguments& arguments, std::wstring& error)
{
    const Option* positional = nullptr;
    for (const Option& option : run.registry.options())
    {
        if (positional == nullptr && option.isPositional())
        {
            positional = &option;
        }
    }
    std::int32_t code = 0;
    do
    {
        const std::wstring value = arguments[0];
        code = storeAndConsume(run, *positional, value, 1, arguments, error);
    } while (code == 0 && !arguments.empty() &&
             (run.flags & kexa_3_3::flag_positional_takes_rest) != 0);
    return code;
}

} // namespace naive
