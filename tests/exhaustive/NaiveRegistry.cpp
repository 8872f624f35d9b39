#include "NaiveRegistry.h"

#include <algorithm>

#include "kexa/parser.h"

namespace naive
{

namespace
{

void addKeywords(Option& option, const std::wstring& list)
{
    for (const std::wstring& keyword : splitAtCommas(list))
    {
        option.keywords.insert(keyword);
    }
}

void apply(Option& option, const BuilderStep& step)
{
    switch (step.call)
    {
    case BuilderStep::Call::addName:
        option.names.push_back(step.text);
        break;
    case BuilderStep::Call::addAllowedValue:
        if (option.separator == 0)
        {
            option.separator = L',';
        }
        option.allowedValues.push_back(step.value);
        break;
    case BuilderStep::Call::addDeprecatedValue:
        // insert() does not overwrite: the first replacement of an old value is kept.
        option.deprecatedValues.insert({step.value, step.replacement});
        break;
    case BuilderStep::Call::setDefaultValue:
        option.defaultValue = step.value;
        option.hasDefault = true;
        break;
    case BuilderStep::Call::setSeparator:
        option.separator = step.separator;
        break;
    case BuilderStep::Call::setMarked:
        option.marked = true;
        break;
    case BuilderStep::Call::addKeywords:
        addKeywords(option, step.text);
        break;
    }
}

} // namespace

bool Option::isPositional() const
{
    return !isAction && (marked || keywords.count(L"kexa_positional_option") != 0);
}

bool Option::hasName(const std::wstring& name) const
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

Registry::Registry(const Declarations& declarations, std::int32_t flags)
    : m_compatibleActions(declarations.compatibleActions)
{
    const bool lists = (flags & kexa_3_3::flag_no_value_lists) == 0;
    for (const Declaration& declaration : declarations.options)
    {
        declare(declaration, lists ? L',' : L'\0');
    }
}

void Registry::declare(const Declaration& declaration, wchar_t separator)
{
    const std::vector<std::wstring> names = splitAtCommas(declaration.names);
    if (names.empty() || names.size() > 3 || (names.size() == 3 && names[2].size() > 2))
    {
        return;
    }
    for (const std::wstring& name : names)
    {
        if (find(name) != nullptr)
        {
            return;
        }
    }
    Option option;
    option.names = names;
    option.isAction = declaration.form == Declaration::Form::action;
    option.valueType = declaration.valueType;
    if (declaration.form == Declaration::Form::optionWithKeywords)
    {
        addKeywords(option, declaration.keywords);
    }
    if (option.isAction)
    {
        addKeywords(option, declaration.names);
    }
    option.separator = separator;
    for (const BuilderStep& step : declaration.steps)
    {
        apply(option, step);
    }
    m_options.push_back(option);
}

const Option* Registry::find(const std::wstring& name) const
{
    for (const Option& option : m_options)
    {
        if (option.hasName(name))
        {
            return &option;
        }
    }
    return nullptr;
}

std::vector<std::wstring> splitAtCommas(const std::wstring& text)
{
    std::vector<std::wstring> pieces;
    std::wstring piece;
    for (const wchar_t character : text + L',')
    {
        if (character != L',')
        {
            piece += character;
            continue;
        }
        if (!piece.empty())
        {
            pieces.push_back(piece);
        }
        piece.clear();
    }
    return pieces;
}

} // namespace naive
