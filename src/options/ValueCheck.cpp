#include "options/ValueCheck.h"

#include <cassert>

#include "kexa/option.h"

#include "options/ValueConversion.h"
#include "options/ValueText.h"
#include "options/ValueType.h"
#include "support/memory/SharedTexts.h"
#include "support/platform/ConsoleStreams.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

using vexkit2::variant_t;

std::wstring conversionMessage(const OptionDescription& option, std::wstring_view text)
{
    return concatenate({L"Option '", option.primaryName(), L"' can not parse '", text,
                        L"' value, requires a type '", typeName(option), L"' here."});
}

std::wstring possibleValues(const OptionDescription& option)
{
    std::wstring list;
    for (const variant_t& value : option.allowedValues())
    {
        list += concatenate({list.empty() ? L"'" : L", '", valueText(value), L"'"});
    }
    return L"Possible values follows: " + list;
}

std::wstring ambiguityMessage(const OptionDescription& option)
{
    return concatenate(
        {L"Ambiguous value for option '", option.primaryName(), L"'. ", possibleValues(option)});
}

std::wstring refusalMessage(const OptionDescription& option, std::wstring_view text)
{
    return concatenate({L"Option '", option.primaryName(), L"' does not allow value '", text,
                        L"'. ", possibleValues(option)});
}

// Not written through the stream: parsers in several threads may warn at the same time.
void warnOfDeprecation(const OptionDescription& option, const variant_t& oldValue,
                       const variant_t& replacement)
{
    const std::wstring warning = concatenate(
        {L"Warning: '", valueText(oldValue), L"' argument is deprecated for the option '-",
         option.primaryName(), L"'. Use the '", valueText(replacement), L"' argument instead.\n"});
    static_cast<void>(internal::writeConsole(internal::ConsoleTarget::error, warning));
}

} // namespace

ValueVerdict checkAllowedValue(const OptionDescription& option, std::wstring_view text,
                               variant_t& value, SharedTexts* texts)
{
    assert(!option.allowedValues().empty());
    assert(value.kind() != vexkit2::kind_null);
    const AllowedValueIndex& candidates = option.allowedValueIndex();
    ValueVerdict verdict = ValueVerdict::accepted;
    const variant_t* match = candidates.findEqual(value);
    if (match == nullptr && option.valueType == value_type_string)
    {
        const AllowedValueIndex::TextMatches matches = candidates.matchText(text);
        if (matches.count > 1)
        {
            return ValueVerdict::ambiguous;
        }
        if (matches.count == 1)
        {
            match = matches.candidate;
            value = makeText(matches.text, texts);
            verdict = ValueVerdict::changed;
        }
    }
    if (match == nullptr)
    {
        return ValueVerdict::refused;
    }

    const auto& deprecatedValues = option.restriction()->deprecatedValues;
    const auto deprecated = deprecatedValues.find(*match);
    if (deprecated != deprecatedValues.end())
    {
        warnOfDeprecation(option, deprecated->first, deprecated->second);
        value = deprecated->second;
        verdict = ValueVerdict::changed;
    }
    return verdict;
}

std::wstring rejectionMessage(ValueVerdict verdict, const OptionDescription& option,
                              std::wstring_view text)
{
    assert(isRejected(verdict));
    switch (verdict)
    {
    case ValueVerdict::unreadable:
        return conversionMessage(option, text);
    case ValueVerdict::ambiguous:
        return ambiguityMessage(option);
    default:
        return refusalMessage(option, text);
    }
}

} // namespace kexa_3_3
