#include "NaiveValues.h"

#include <vector>

#include "NaiveConversion.h"

namespace naive
{

namespace
{

std::wstring possibleValues(const Option& option)
{
    std::wstring list = L"Possible values follows: ";
    for (std::size_t index = 0; index < option.allowedValues.size(); ++index)
    {
        list += index == 0 ? L"" : L", ";
        list += L"'" + textOfValue(option.allowedValues[index]) + L"'";
    }
    return list;
}

void replaceDeprecated(const Option& option, const vexkit2::variant_t& match, CheckedValue& checked)
{
    const auto found = option.deprecatedValues.find(match);
    if (found != option.deprecatedValues.end())
    {
        checked.value = found->second;
        checked.text = textOfValue(found->second);
    }
}

std::vector<vexkit2::variant_t> candidatesOf(const Option& option)
{
    std::vector<vexkit2::variant_t> candidates = option.allowedValues;
    for (const auto& [oldValue, replacement] : option.deprecatedValues)
    {
        candidates.push_back(oldValue);
    }
    return candidates;
}

// Returns the candidates that the text abbreviates.
std::vector<vexkit2::variant_t> abbreviated(const std::vector<vexkit2::variant_t>& candidates,
                                            const std::wstring& text)
{
    std::vector<vexkit2::variant_t> matches;
    for (const vexkit2::variant_t& candidate : candidates)
    {
        if (textOfValue(candidate).substr(0, text.size()) == text)
        {
            matches.push_back(candidate);
        }
    }
    return matches;
}

std::vector<std::wstring> cut(const std::wstring& text, wchar_t separator)
{
    if (separator == 0)
    {
        return {text};
    }
    std::vector<std::wstring> pieces;
    std::size_t position = 0;
    while (position < text.size())
    {
        std::size_t end = text.find(separator, position);
        end = end == std::wstring::npos ? text.size() : end;
        if (end > position)
        {
            pieces.push_back(text.substr(position, end - position));
            position = end;
        }
        else
        {
            ++position;
        }
    }
    return pieces;
}

} // namespace

CheckedValue checkValue(const Option& option, const std::wstring& text)
{
    CheckedValue checked;
    checked.text = text;
    checked.value = convertText(option.valueType, text);
    if (checked.value.kind() == vexkit2::kind_null)
    {
        checked.error = L"Option '" + option.primaryName() + L"' can not parse '" + text +
                        L"' value, requires a type '" + nameOfValueType(option.valueType) +
                        L"' here.";
        return checked;
    }
    if (option.allowedValues.empty())
    {
        checked.accepted = true;
        return checked;
    }
    const std::vector<vexkit2::variant_t> candidates = candidatesOf(option);
    for (const vexkit2::variant_t& candidate : candidates)
    {
        if (checked.value == candidate)
        {
            replaceDeprecated(option, candidate, checked);
            checked.accepted = true;
            return checked;
        }
    }
    std::vector<vexkit2::variant_t> matches;
    if (option.valueType == kexa_3_3::value_type_string)
    {
        matches = abbreviated(candidates, text);
    }
    if (matches.size() == 1)
    {
        checked.text = textOfValue(matches[0]);
        checked.value = vexkit2::variant_t(checked.text);
        replaceDeprecated(option, matches[0], checked);
        checked.accepted = true;
        return checked;
    }
    checked.error =
        matches.empty()
            ? L"Option '" + option.primaryName() + L"' does not allow value '" + text + L"'. "
            : L"Ambiguous value for option '" + option.primaryName() + L"'. ";
    checked.error += possibleValues(option);
    return checked;
}

std::int32_t storeValues(Run& run, const Option& option, const std::wstring& argument,
                         const std::wstring& valueText, std::wstring& error)
{
    Record record;
    if (valueText.empty())
    {
        record.positions.push_back(run.nextPosition);
    }
    else
    {
        const std::vector<std::wstring> pieces = cut(valueText, option.separator);
        if (pieces.empty())
        {
            error = L"No value parsed in argument '" + valueText + L"' for option '" +
                    option.primaryName() + L"'";
            return 2;
        }
        for (const std::wstring& piece : pieces)
        {
            const CheckedValue checked = checkValue(option, piece);
            if (!checked.accepted)
            {
                error =
                    L"Value validation problem in argument '" + argument + L"': " + checked.error;
                return 2;
            }
            const std::int32_t position = run.nextPosition;
            run.nextPosition = positionAfter(position);
            if (!notifyValueParsed(run, option.primaryName(), checked.value, position))
            {
                error = L"Value '" + valueText + L"' is not valid for option '" +
                        option.primaryName() + L"' in argument '" + argument + L"'";
                return 1;
            }
            record.positions.push_back(position);
            record.values.push_back({checked.text, checked.value, position});
        }
    }
    if (run.result != nullptr)
    {
        run.result->store(option, record);
    }
    return 0;
}

} // namespace naive
