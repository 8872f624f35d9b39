#include "CommandComparison.h"

#include <algorithm>

using namespace kexa_3_3;

namespace toolbox
{

namespace
{

Rule ruleOfArgument(const std::string& argument)
{
    if (argument.empty())
    {
        return Rule::emptyArgument;
    }
    if (argument == "-")
    {
        return Rule::singleHyphen;
    }
    if (argument == "kexaoption=kexalogenable=1")
    {
        return Rule::traceKeyword;
    }
    if (argument.back() == '=' && argument.find('=') == argument.size() - 1)
    {
        return Rule::nothingAsValue;
    }
    const std::size_t begin = std::min(argument.find_first_not_of('-'), argument.size());
    const bool isRepeated = begin == 1 && argument.size() > 2 &&
                            argument.find_first_not_of(argument[begin], begin) == std::string::npos;
    return isRepeated ? Rule::repeatedLetter : Rule::none;
}

// Bytes that are no UTF-8 are widened to low surrogates that follow no high one.
bool isWellFormed(const std::string& text)
{
    wchar_t before = 0;
    for (const wchar_t unit : kexa::detail::wideText(text))
    {
        const bool isSecond = before >= 0xD800 && before < 0xDC00;
        if (unit >= 0xDC00 && unit < 0xE000 && !isSecond)
        {
            return false;
        }
        before = unit;
    }
    return true;
}

Rule ruleOfMessage(const std::string& message)
{
    if (message.find("Ambiguous option") == 0)
    {
        return Rule::ambiguousName;
    }
    if (message.find("but it seems to be an option") != std::string::npos)
    {
        return Rule::negativeNumber;
    }
    if (message.find("is boolean and should be declared") != std::string::npos)
    {
        return Rule::valueOfBoolean;
    }
    return Rule::none;
}

template <class Type>
std::string textOf(const Type& value)
{
    std::string text;
    if constexpr (kexa::detail::Member<Type>::list)
    {
        for (const auto& element : value)
        {
            text += "[" + textOf(element) + "]";
        }
        return text;
    }
    else if constexpr (std::is_same_v<Type, std::optional<std::string>>)
    {
        return value.value_or("absent");
    }
    else if constexpr (std::is_same_v<Type, bool>)
    {
        return value ? "true" : "false";
    }
    else
    {
        return std::string(kexa::detail::Element<Type>::text(value));
    }
}

} // namespace

CommandComparison::CommandComparison(const DrawnDeclarations& declarations)
    : m_declarations(declarations)
{
    declare(m_command, declarations);
    m_command.sharedCore()->help({}, 80); // tells what only the first use can tell
    declare(m_raw, declarations);
}

std::string CommandComparison::valuesOf(const DrawnSettings& settings) const
{
    std::string text;
    for (std::size_t i = 0; i < m_declarations.actions.size(); ++i)
    {
        text += settings.*action_members[i] ? "!" : ".";
    }
    for (const DrawnOption& option : m_declarations.options)
    {
        text += "|" + (option.member == member_count
                           ? std::string(settings.count > 0 ? "given" : "")
                           : withMember(option.member,
                                        [&](auto member) { return textOf(settings.*member); }));
    }
    if (m_declarations.words != Words::none)
    {
        text += "|" + (settings.first.empty() ? "" : "[" + settings.first + "]") +
                textOf(settings.words);
    }
    return text;
}

std::string CommandComparison::valuesOfRaw() const
{
    std::string text;
    for (const std::string& action : m_declarations.actions)
    {
        text += m_raw.isPresent(action) ? "!" : ".";
    }
    for (const DrawnOption& option : m_declarations.options)
    {
        const std::string name = option.primaryName();
        text += "|";
        if (option.member == member_count)
        {
            text += m_raw.isPresent(name) ? "given" : "";
        }
        else if (option.member >= member_numbers)
        {
            text += m_raw.values(name);
        }
        else
        {
            const std::string values = m_raw.values(name);
            text +=
                values.empty() && option.member == member_output ? "absent" : m_raw.lastValue(name);
        }
    }
    return m_declarations.words == Words::none ? text
                                               : text + "|" + m_raw.values("words of the line");
}

std::string findContradiction(const kexa::Error& error, std::size_t argumentCount)
{
    if (error.code == 0 || error.message.empty())
    {
        return "an error without code or message";
    }
    if (error.wideMessage != kexa::detail::wideText(error.message))
    {
        return "two messages: " + error.message;
    }
    if (error.index < 0 || error.index > static_cast<int>(argumentCount))
    {
        return "an index that no argument has: " + std::to_string(error.index);
    }
    if ((error.line == 0) != error.file.empty())
    {
        return "a file without a line, or a line without a file";
    }
    return std::string();
}

// source() and the occurrences agree on where a value comes from, and a member that was
// not given is as its initialiser leaves it.
std::string CommandComparison::findContradiction(const kexa::Parsed<DrawnSettings>& parsed) const
{
    const DrawnSettings initial;
    for (const DrawnOption& option : m_declarations.options)
    {
        const std::string name = option.primaryName();
        const auto& occurrences = parsed.occurrences();
        const bool isListed = std::any_of(occurrences.begin(), occurrences.end(),
                                          [&](const kexa::Occurrence& occurrence)
                                          { return occurrence.option == name; });
        const bool isAsInitially = withMember(option.member, [&](auto member)
                                              { return (*parsed).*member == initial.*member; });
        const kexa::Source source =
            withMember(option.member, [&](auto member) { return parsed.source(member); });
        if (isListed != (source == kexa::Source::given))
        {
            return "the source of '" + name + "' is not that of its occurrences";
        }
        if (!isListed && !isAsInitially)
        {
            return "'" + name + "' was not given, but has a value";
        }
    }
    return std::string();
}

Verdict CommandComparison::compare(const std::vector<std::string>& arguments,
                                   const std::vector<std::string>& optionFileLines)
{
    Verdict verdict;
    const kexa::Parsed<DrawnSettings> parsed = m_command.parse(arguments);
    verdict.difference = parsed ? findContradiction(parsed)
                                : toolbox::findContradiction(parsed.error(), arguments.size());
    verdict.isAccepted = static_cast<bool>(parsed);
    for (const std::vector<std::string>* texts : {&arguments, &optionFileLines})
    {
        for (const std::string& argument : *texts)
        {
            verdict.rule = verdict.rule == Rule::none ? ruleOfArgument(argument) : verdict.rule;
            if (argument == "--" && m_declarations.words == Words::none)
            {
                verdict.rule = Rule::takenByNobody;
            }
        }
    }
    for (const std::string& line : optionFileLines)
    {
        verdict.rule = isWellFormed(line) ? verdict.rule : Rule::bytesOfFile;
    }
    if (verdict.rule != Rule::none || !verdict.difference.empty())
    {
        return verdict;
    }
    const result_t code = m_raw.parse(arguments);
    const std::string message = code == result_success ? std::string() : m_raw.message();
    verdict.rule = ruleOfMessage(message);
    if (message.find("doesn't accept option") != std::string::npos && hasSeveralActions())
    {
        verdict.rule = Rule::severalActions;
    }
    if (verdict.rule != Rule::none)
    {
        return verdict;
    }
    const std::string raw =
        code == result_success ? valuesOfRaw() : std::to_string(code) + " " + message;
    const std::string bound =
        parsed ? valuesOf(*parsed)
               : std::to_string(parsed.error().code) + " " + parsed.error().message;
    if (raw != bound)
    {
        verdict.difference = "parser: " + raw + "\ncommand: " + bound;
    }
    return verdict;
}

bool CommandComparison::hasSeveralActions() const
{
    return std::count_if(m_declarations.actions.begin(), m_declarations.actions.end(),
                         [this](const std::string& action) { return m_raw.isPresent(action); }) > 1;
}

std::string lineOf(const std::vector<std::string>& arguments)
{
    std::string line;
    for (const std::string& argument : arguments)
    {
        line += (line.empty() ? "'" : " '") + argument + "'";
    }
    return line;
}

} // namespace toolbox
