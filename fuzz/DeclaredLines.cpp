#include "DeclaredLines.h"

#include <cwchar>

#include "Fuzzing.h"
#include "kexa/option.h"

namespace fuzzing
{

namespace
{

// Limits that keep a run short. They are large enough for options and arguments to affect each
// other.
constexpr std::size_t most_options = 10;
constexpr std::size_t most_steps = 16;
constexpr std::size_t most_arguments = 12;

std::string narrow(const std::wstring& text)
{
    std::string bytes;
    for (const wchar_t character : text)
    {
        bytes.push_back(static_cast<char>(character));
    }
    return bytes;
}

void declare(naive::Declarations& declarations, wchar_t form, std::wstring text)
{
    if (text.empty() || declarations.options.size() == most_options)
    {
        return;
    }
    const std::int32_t type = valueTypeOf(text.front());
    text.erase(0, 1);
    if (form == L'K')
    {
        const std::wstring names = takeUpTo(text, L'|');
        declarations.addOptionWithKeywords(names, text, type);
    }
    else if (form == L'S')
    {
        declarations.addSwitch(text, type);
    }
    else
    {
        declarations.addOption(text, type);
    }
}

void addStep(naive::Declaration& declaration, wchar_t step, std::wstring text)
{
    switch (step)
    {
    case L'N':
        declaration.addName(text);
        break;
    case L'A':
        declaration.addAllowedValue(valueOf(text));
        break;
    case L'D':
    {
        const std::wstring oldValue = takeUpTo(text, L'|');
        declaration.addDeprecatedValue(valueOf(oldValue), valueOf(text));
        break;
    }
    case L'V':
        declaration.setDefaultValue(valueOf(text));
        break;
    case L'P':
        declaration.setSeparator(text.empty() ? L'\0' : text.front());
        break;
    case L'M':
        declaration.setMarked();
        break;
    default:
        declaration.addKeywords(text);
    }
}

void addCompatible(naive::Declarations& declarations, std::wstring text)
{
    std::set<std::wstring> actions;
    while (!text.empty())
    {
        actions.insert(takeUpTo(text, L','));
    }
    declarations.compatibleActions.push_back(actions);
}

void addHandler(std::vector<naive::HandlerRule>& handlers, std::wstring text)
{
    naive::HandlerRule rule;
    rule.refusedValues.insert(takeUpTo(text, L'|'));
    rule.takenArguments.insert(text);
    handlers.push_back(rule);
}

void readLine(DeclaredLines& declared, const std::wstring& line)
{
    const wchar_t first = line.empty() ? L' ' : line.front();
    const std::wstring rest = line.empty() ? line : line.substr(1);
    const auto isOneOf = [first](const wchar_t* characters)
    {
        return std::wcschr(characters, first) != nullptr;
    };
    naive::Declarations& declarations = declared.declarations;
    if (isOneOf(L"OKS"))
    {
        declare(declarations, first, rest);
    }
    else if (isOneOf(L"NADVPMW") && !declarations.options.empty() &&
             declarations.options.back().steps.size() < most_steps)
    {
        addStep(declarations.options.back(), first, rest);
    }
    else if (first == L'C' && declarations.compatibleActions.size() < 4)
    {
        addCompatible(declarations, rest);
    }
    else if (first == L'H' && declared.handlers.size() < 3)
    {
        addHandler(declared.handlers, rest);
    }
    else if (first == L'F' && !rest.empty())
    {
        declared.flags = static_cast<std::int32_t>(static_cast<unsigned>(rest.front()) - '0') * 2;
    }
}

} // namespace

std::int32_t valueTypeOf(wchar_t character)
{
    switch (character)
    {
    case L'b':
        return kexa_3_3::value_type_boolean;
    case L'i':
        return kexa_3_3::value_type_integer;
    case L'u':
        return kexa_3_3::value_type_unsigned;
    case L'l':
        return kexa_3_3::value_type_integer64;
    case L'x':
        return kexa_3_3::value_type_unsigned64;
    case L'd':
        return kexa_3_3::value_type_double;
    case L's':
        return kexa_3_3::value_type_string;
    case L'n':
        return kexa_3_3::value_type_none;
    default:
        return static_cast<std::int32_t>(character);
    }
}

vexkit2::variant_t valueOf(const std::wstring& text)
{
    using vexkit2::variant_t;
    const std::wstring rest = text.empty() ? text : text.substr(1);
    const wchar_t* const digits = rest.c_str();
    switch (text.empty() ? L' ' : text.front())
    {
    case L's':
        return variant_t(rest);
    case L'n':
        return variant_t(narrow(rest));
    case L'i':
        return variant_t(static_cast<std::int32_t>(std::wcstoll(digits, nullptr, 10)));
    case L'l':
    {
        const std::int64_t number = std::wcstoll(digits, nullptr, 10);
        return variant_t(number);
    }
    case L'u':
    {
        const std::uint64_t number = std::wcstoull(digits, nullptr, 10);
        return variant_t(number);
    }
    case L'd':
        return variant_t(std::wcstod(digits, nullptr));
    case L'b':
        return variant_t(rest == L"1");
    case L'o':
        return variant_t::blob(digits, rest.size());
    default:
        return variant_t();
    }
}

DeclaredLines readDeclarations(const std::vector<std::wstring>& lines)
{
    DeclaredLines declared;
    bool declaring = true;
    for (const std::wstring& line : lines)
    {
        if (!declaring)
        {
            if (declared.arguments.size() < most_arguments)
            {
                declared.arguments.push_back(line);
            }
        }
        else if (line == L".")
        {
            declaring = false;
        }
        else
        {
            readLine(declared, line);
        }
    }
    return declared;
}

} // namespace fuzzing
