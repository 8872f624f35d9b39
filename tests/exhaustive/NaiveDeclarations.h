// The declarations of a host as plain data, which are passed to the library and to the naive
// implementation.
#ifndef NAIVE_DECLARATIONS_H
#define NAIVE_DECLARATIONS_H

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "kexa/option.h"
#include "kexa/variant.h"

namespace naive
{

// One call on an option after its declaration. The members that the call does not use stay unset.
struct BuilderStep
{
    enum class Call
    {
        addName,
        addAllowedValue,
        addDeprecatedValue,
        setDefaultValue,
        setSeparator,
        setMarked,
        addKeywords
    };

    Call call = Call::setMarked;
    std::wstring text;
    vexkit2::variant_t value;
    vexkit2::variant_t replacement;
    wchar_t separator = 0;
};

// One option, with the calls on it in their order. Each operation adds a call and returns the
// declaration, so that calls can be chained as on IOption.
struct Declaration
{
    enum class Form
    {
        option,
        optionWithKeywords,
        action
    };

    Form form = Form::option;
    std::wstring names;
    std::wstring keywords;
    std::int32_t valueType = kexa_3_3::value_type_string;
    std::vector<BuilderStep> steps;

    Declaration& addName(const std::wstring& name);
    Declaration& addAllowedValue(const vexkit2::variant_t& value);
    Declaration& addDeprecatedValue(const vexkit2::variant_t& oldValue,
                                    const vexkit2::variant_t& replacement);
    Declaration& setDefaultValue(const vexkit2::variant_t& value);
    Declaration& setSeparator(wchar_t separator);
    Declaration& setMarked();
    Declaration& addKeywords(const std::wstring& list);
};

// Everything that a host declares before it parses.
struct Declarations
{
    std::vector<Declaration> options;
    std::vector<std::set<std::wstring>> compatibleActions;

    // The returned reference is valid until the next declaration.
    Declaration& addOption(const std::wstring& names, std::int32_t valueType);
    Declaration& addOptionWithKeywords(const std::wstring& names, const std::wstring& keywords,
                                       std::int32_t valueType);
    Declaration& addSwitch(const std::wstring& names, std::int32_t valueType);
};

// The return values of an event handler: false for a listed value, which refuses it, and for a
// listed unknown argument, which takes it; otherwise true.
struct HandlerRule
{
    std::set<std::wstring> refusedValues;
    std::set<std::wstring> takenArguments;
};

} // namespace naive

#endif
