#include "DrawnArguments.h"

#include <algorithm>

namespace toolbox
{

namespace
{

constexpr const char* values[] = {
    "1",           "-1",    "0x10", "2.5",  "abc", "a,b", ",",    "fast",        "f",
    "sl",          "st",    " 7",   "7 ",   "1e3", "10",  "100",  "99999999999", "4294967295",
    "true",        "false", "1,2",  "2,x",  "-",   "a=b", "slow", "inf",         "\u00FC",
    "-2147483648", "s",     "nan",  "0.5,", "a b", "=",   "+5",   "-x",          "1,,2"};
constexpr const char* letters[] = {"a", "b", "n", "o", "-", "=", ",", " ", "1", "\u00F6", "\xFF"};

std::string drawName(Choices& choices, const DrawnDeclarations& declarations)
{
    std::string name;
    const std::size_t count = declarations.actions.size() + declarations.options.size();
    if (count == 0 || choices.chance(12))
    {
        for (std::size_t length = choices.below(6); length > 0; --length)
        {
            name += choices.oneOf(letters);
        }
        return name;
    }
    const std::size_t index = choices.below(count);
    if (index < declarations.actions.size())
    {
        name = declarations.actions[index];
    }
    else
    {
        const std::string& names = declarations.options[index - declarations.actions.size()].names;
        const std::size_t comma = names.find(',');
        name = comma != std::string::npos && choices.chance(2) ? names.substr(comma + 1)
                                                               : names.substr(0, comma);
    }
    if (choices.chance(4) && !name.empty())
    {
        name.resize(1 + choices.below(name.size()));
    }
    return name;
}

} // namespace

std::vector<std::string> drawArguments(Choices& choices, const DrawnDeclarations& declarations)
{
    std::vector<std::string> arguments;
    // Most lines need an action.
    if (!declarations.actions.empty() && !choices.chance(6))
    {
        arguments.push_back("--" +
                            declarations.actions[choices.below(declarations.actions.size())]);
    }
    for (std::size_t count = choices.below(5); count > 0; --count)
    {
        const std::string name = drawName(choices, declarations);
        const std::string hyphens = choices.chance(3) ? "-" : choices.chance(9) ? "\u2014" : "--";
        const std::string negation = choices.chance(8) ? "no-" : "";
        switch (choices.below(6))
        {
        case 0:
            arguments.push_back(choices.oneOf(values));
            break;
        case 1:
        case 2:
            arguments.push_back(hyphens + negation + name + "=" + choices.oneOf(values));
            break;
        case 3:
            arguments.push_back(hyphens + negation + name);
            break;
        case 4:
            arguments.push_back(hyphens + name + " " + choices.oneOf(values));
            break;
        default:
            arguments.push_back(hyphens + name);
            arguments.push_back(choices.chance(9) ? "--" : choices.oneOf(values));
            break;
        }
    }
    return arguments;
}

} // namespace toolbox
