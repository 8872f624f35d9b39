#include "NaiveDeclarations.h"

namespace naive
{

namespace
{

BuilderStep& append(Declaration& declaration, BuilderStep::Call call)
{
    declaration.steps.emplace_back();
    declaration.steps.back().call = call;
    return declaration.steps.back();
}

Declaration& append(Declarations& declarations, Declaration::Form form, const std::wstring& names,
                    std::int32_t valueType)
{
    declarations.options.emplace_back();
    Declaration& declaration = declarations.options.back();
    declaration.form = form;
    declaration.names = names;
    declaration.valueType = valueType;
    return declaration;
}

} // namespace

Declaration& Declaration::addName(const std::wstring& name)
{
    append(*this, BuilderStep::Call::addName).text = name;
    return *this;
}

Declaration& Declaration::addAllowedValue(const vexkit2::variant_t& value)
{
    append(*this, BuilderStep::Call::addAllowedValue).value = value;
    return *this;
}

Declaration& Declaration::addDeprecatedValue(const vexkit2::variant_t& oldValue,
                                             const vexkit2::variant_t& replacement)
{
    BuilderStep& step = append(*this, BuilderStep::Call::addDeprecatedValue);
    step.value = oldValue;
    step.replacement = replacement;
    return *this;
}

Declaration& Declaration::setDefaultValue(const vexkit2::variant_t& value)
{
    append(*this, BuilderStep::Call::setDefaultValue).value = value;
    return *this;
}

Declaration& Declaration::setSeparator(wchar_t separator)
{
    append(*this, BuilderStep::Call::setSeparator).separator = separator;
    return *this;
}

Declaration& Declaration::setMarked()
{
    append(*this, BuilderStep::Call::setMarked);
    return *this;
}

Declaration& Declaration::addKeywords(const std::wstring& list)
{
    append(*this, BuilderStep::Call::addKeywords).text = list;
    return *this;
}

Declaration& Declarations::addOption(const std::wstring& names, std::int32_t valueType)
{
    return append(*this, Declaration::Form::option, names, valueType);
}

Declaration& Declarations::addOptionWithKeywords(const std::wstring& names,
                                                 const std::wstring& keywords,
                                                 std::int32_t valueType)
{
    Declaration& declaration =
        append(*this, Declaration::Form::optionWithKeywords, names, valueType);
    declaration.keywords = keywords;
    return declaration;
}

Declaration& Declarations::addSwitch(const std::wstring& names, std::int32_t valueType)
{
    return append(*this, Declaration::Form::action, names, valueType);
}

} // namespace naive
