// Declarations and arguments, against the naive implementation and against each other.
#include "DeclaredLines.h"
#include "Fuzzing.h"
#include "LibraryParser.h"
#include "NaiveConversion.h"

using naive::Comparison;
using naive::NameAnswers;
using naive::Outcome;
using naive::ParseCall;

namespace
{

// Parses with both, and looks at what can be told of any parse.
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
                              "the library answers as the naive implementation does");
    }
}

// getLastValue answers the last value that the walk gives.
void checkLastValues(const Outcome& outcome)
{
    for (const NameAnswers& name : outcome.names)
    {
        naive::ValueAnswer last;
        last.code = 1;
        for (const naive::ValueAnswer& value : name.values)
        {
            if (value.code == 0)
            {
                last = value;
            }
            else if (&value != &name.values.front())
            {
                break; // a refusal ends the walk, except at its very beginning
            }
        }
        fuzzing::require(last.code == name.last.code && (last.code != 0 || last == name.last),
                         "getLastValue gives the last value of the walk");
    }
}

bool begins(const std::wstring& text, const std::wstring& beginning)
{
    return text.compare(0, beginning.size(), beginning) == 0;
}

// Everything that an option can be called: its names and, of a boolean one, their negations.
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

// What a parse found, without the positions and the messages that quote the argument.
std::wstring contentsOf(const Outcome& outcome)
{
    std::wstring contents = std::to_wstring(outcome.code) + L'\n';
    for (const NameAnswers& name : outcome.names)
    {
        contents += name.name;
        for (const naive::ValueAnswer& value : name.values)
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

// Whether an argument can spell the text out behind its hyphens.
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
                          "a unique abbreviation gives what the full text gives");
}

// Where exactly one candidate begins with a typed name, the result is that of the full name.
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

// The same for the values that an option of texts allows or replaces; it replaces none where it
// allows everything.
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
    call.questions = naive::Questions::severalRanges;
    checkAgreement(comparison, call);
    checkLastValues(comparison.actual());
    call.questions = naive::Questions::wholeRange;
    call.asCommandLine = true;
    checkAgreement(comparison, call);
    checkLastValues(comparison.actual());
    call.asCommandLine = false;
    call.storing = false;
    checkAgreement(comparison, call);

    const naive::Registry registry(declared.declarations, declared.flags);
    // Many parses: not for every input.
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
