// Fuzzes declarations and arguments: compares the library with the naive implementation, and unique
// abbreviations with the full texts.
#include "DeclaredLines.h"
#include "Fuzzing.h"
#include "LibraryParser.h"
#include "NaiveConversion.h"

using naive::Comparison;
using naive::Outcome;
using naive::ParseCall;
using naive::QueriedName;

namespace
{

// Parses with both and requires equal outcomes, and what must be true for every parse.
void checkAgreement(Comparison& comparison, const ParseCall& call)
{
    const bool agreed = comparison.agree(call);
    const Outcome& actual = comparison.actual();
    const bool refused = actual.code == 1 && !actual.events.empty() &&
                         actual.events.back().kind == naive::Event::Kind::valueParsed;
    fuzzing::require(actual.code == 0 || actual.code == 2 || refused,
                     "the code is documented for a parse without option files");
    fuzzing::require(actual.code == 0 || !actual.message.empty(), "a failed parse has a message");
    if (!agreed)
    {
        fuzzing::requireEqual(naive::describe(actual), naive::describe(comparison.expected()),
                              "the library and the naive implementation have equal outcomes");
    }
}

// Requires that getLastValue() returns the last value of the walk.
void checkLastValues(const Outcome& outcome)
{
    for (const QueriedName& name : outcome.names)
    {
        naive::QueriedValue last;
        last.code = 1;
        for (const naive::QueriedValue& value : name.values)
        {
            if (value.code == 0)
            {
                last = value;
            }
            else if (&value != &name.values.front())
            {
                break; // a failure ends the walk, unless it is the one of getFirstValue()
            }
        }
        fuzzing::require(last.code == name.last.code && (last.code != 0 || last == name.last),
                         "getLastValue returns the last value of the walk");
    }
}

bool begins(const std::wstring& text, const std::wstring& beginning)
{
    return text.compare(0, beginning.size(), beginning) == 0;
}

// Returns all names of all options, and the "no-" forms of those of boolean options.
std::vector<std::wstring> candidatesOf(const naive::Registry& registry)
{
    std::vector<std::wstring> candidates;
    for (const naive::Option& option : registry.options())
    {
        for (const std::wstring& name : option.names)
        {
            candidates.push_back(name);
            if (option.valueType == kexa_3_3::value_type_boolean)
            {
                candidates.push_back(L"no-" + name);
            }
        }
    }
    return candidates;
}

// Formats the outcome without positions, which differ in each parse, and without messages, which
// quote the argument.
std::wstring contentsOf(const Outcome& outcome)
{
    std::wstring contents = std::to_wstring(outcome.code) + L'\n';
    for (const QueriedName& name : outcome.names)
    {
        contents += name.name;
        for (const naive::QueriedValue& value : name.values)
        {
            contents += L" '" + value.text + L"'";
        }
        contents += L'\n';
    }
    for (const std::wstring& argument : outcome.unparsed)
    {
        contents += argument + L'\n';
    }
    return contents;
}

// Returns whether the text can be written behind the hyphens of an argument.
bool isPlain(const std::wstring& name)
{
    for (const wchar_t character : name)
    {
        if (character <= L' ' || character >= L'\x7F' || character == L'=')
        {
            return false;
        }
    }
    return !name.empty() && name.front() != L'-';
}

bool isUnique(const std::wstring& beginning, const std::vector<std::wstring>& candidates)
{
    std::size_t matches = 0;
    for (const std::wstring& candidate : candidates)
    {
        matches += begins(candidate, beginning) ? 1U : 0U;
    }
    return matches == 1;
}

void checkSame(Comparison& comparison, const std::wstring& abbreviated, const std::wstring& full)
{
    ParseCall call;
    call.arguments = {abbreviated};
    checkAgreement(comparison, call);
    const std::wstring contents = contentsOf(comparison.actual());
    call.arguments = {full};
    checkAgreement(comparison, call);
    fuzzing::requireEqual(contents, contentsOf(comparison.actual()),
                          "a unique abbreviation has the outcome of the full text");
}

// Requires that each unique abbreviation of a name has the outcome of the full name.
void checkNames(Comparison& comparison, const naive::Registry& registry, const std::wstring& value)
{
    const std::vector<std::wstring> candidates = candidatesOf(registry);
    for (const std::wstring& full : candidates)
    {
        for (std::size_t length = 1; isPlain(full) && length < full.size(); ++length)
        {
            const std::wstring typed = full.substr(0, length);
            if (isUnique(typed, candidates))
            {
                checkSame(comparison, L"--" + typed + value, L"--" + full + value);
            }
        }
    }
}

// Requires that each unique abbreviation of an allowed or deprecated value has the outcome of the
// full value. Without allowed values deprecated ones are not replaced.
void checkValues(Comparison& comparison, const naive::Option& option)
{
    if (option.allowedValues.empty())
    {
        return;
    }
    std::vector<std::wstring> candidates;
    for (const vexkit2::variant_t& value : option.allowedValues)
    {
        candidates.push_back(naive::textOfValue(value));
    }
    for (const auto& [oldValue, replacement] : option.deprecatedValues)
    {
        candidates.push_back(naive::textOfValue(oldValue));
    }
    const std::wstring name = L"--" + option.primaryName() + L"=";
    for (const std::wstring& full : candidates)
    {
        for (std::size_t length = 1; length < full.size(); ++length)
        {
            const std::wstring typed = full.substr(0, length);
            if (full.find(option.separator) == std::wstring::npos && isUnique(typed, candidates))
            {
                checkSame(comparison, name + typed, name + full);
            }
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzzing::DeclaredLines declared = fuzzing::readDeclarations(fuzzing::linesOf(data, size));
    Comparison comparison(declared.declarations, declared.flags, declared.handlers);
    ParseCall call;
    call.arguments = declared.arguments;
    call.ranges = naive::QueryRanges::severalRanges;
    checkAgreement(comparison, call);
    checkLastValues(comparison.actual());
    call.ranges = naive::QueryRanges::wholeRange;
    call.asCommandLine = true;
    checkAgreement(comparison, call);
    checkLastValues(comparison.actual());
    call.asCommandLine = false;
    call.storing = false;
    checkAgreement(comparison, call);

    const naive::Registry registry(declared.declarations, declared.flags);
    // The checks of abbreviations parse many times, so each runs for a quarter of the inputs.
    if (size % 4 == 0)
    {
        checkNames(comparison, registry, L"");
        checkNames(comparison, registry, L"=1");
    }
    for (const naive::Option& option : registry.options())
    {
        if (size % 4 == 1 && option.valueType == kexa_3_3::value_type_string &&
            isPlain(option.primaryName()))
        {
            checkValues(comparison, option);
        }
    }
    return 0;
}
