// Declarations and arguments, against the naive implementation and against each other.
#include "DeclaredLines.h"
#include "Fuzzing.h"
#include "LibraryParser.h"

using naive::Comparison;
using naive::NameAnswers;
using naive::Outcome;
using naive::ParseCall;

namespace
{

void checkAgreement(Comparison& comparison, const ParseCall& call)
{
    if (!comparison.agree(call))
    {
        fuzzing::requireEqual(naive::describe(comparison.actual()),
                              naive::describe(comparison.expected()),
                              "the library answers as the naive implementation does");
    }
    const Outcome& actual = comparison.actual();
    fuzzing::require(actual.code >= 0 && actual.code <= 2, "no other code without option files");
    fuzzing::require(actual.code == 0 || !actual.message.empty(), "a failed parse has a message");
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

// Where exactly one candidate begins with a typed name, the result is that of the full name.
void checkAbbreviations(Comparison& comparison, const naive::Registry& registry,
                        const std::wstring& value)
{
    const std::vector<std::wstring> candidates = candidatesOf(registry);
    for (const std::wstring& full : candidates)
    {
        for (std::size_t length = 1; length < full.size(); ++length)
        {
            const std::wstring typed = full.substr(0, length);
            std::size_t matches = 0;
            bool plain = typed.find(L'=') == std::wstring::npos;
            for (const std::wstring& candidate : candidates)
            {
                matches += begins(candidate, typed) ? 1U : 0U;
            }
            for (const wchar_t character : full)
            {
                // Names that no argument can spell out are left aside.
                plain = plain && character > L' ' && character < L'\x7F' && character != L'=';
            }
            if (matches != 1 || !plain || full.front() == L'-')
            {
                continue;
            }
            ParseCall call;
            call.arguments = {L"--" + typed + value};
            checkAgreement(comparison, call);
            const std::wstring abbreviated = contentsOf(comparison.actual());
            call.arguments = {L"--" + full + value};
            checkAgreement(comparison, call);
            fuzzing::requireEqual(abbreviated, contentsOf(comparison.actual()),
                                  "a unique abbreviation gives what the full name gives");
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
    if (size % 4 == 0)
    {
        checkAbbreviations(comparison, registry, L"");
        checkAbbreviations(comparison, registry, L"=1");
    }
    return 0;
}
