// What a host declares, as plain data: the same declarations go to the library and to the naive
// implementation that predicts it.
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

// One call on an option after its declaration. Only the members that the call needs are used.
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

// One option, with the calls made on it in their order. The operations add a call and answer the
// declaration, so that tables can be written as a host would write them.
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

// All that a host tells its parser before it parses.
struct Declarations
{
    std::vector<Declaration> options;
    std::vector<std::set<std::wstring>> compatibleActions;

    // The reference is good until the next declaration.
    Declaration& addOption(const std::wstring& names, std::int32_t valueType);
    Declaration& addOptionWithKeywords(const std::wstring& names, const std::wstring& keywords,
                                       std::int32_t valueType);
    Declaration& addSwitch(const std::wstring& names, std::int32_t valueType);
};

// How an event handler answers. A value is refused when its text is listed, an unknown argument is
// taken when it is listed; everything else lets the parse go on as without a handler.
struct HandlerRule
{
    std::set<std::wstring> refusedValues;
    std::set<std::wstring> takenArguments;
};

} // namespace naive

#endif
