#include "Messages.h"

#include <algorithm>

#include "Characters.h"
#include "Hints.h"
#include "Inline.h"
#include "text/Encoding.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_LOCAL bool startsWith(std::wstring_view text, std::wstring_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

KEXA_COMMAND_INLINE bool isValueMessage(const std::wstring& message)
{
    return startsWith(message, L"Value ") || startsWith(message, L"No value parsed");
}

// Puts the argument that the user typed in the place of the one that the parser got.
KEXA_COMMAND_LOCAL void quoteAsTyped(std::wstring& message, const std::wstring& raw,
                                     const std::wstring& typed)
{
    for (const wchar_t* lead : {L" argument: '", L" argument '"})
    {
        const std::wstring quoted = lead + raw + L"'";
        const std::size_t position = message.find(quoted);
        if (position != std::wstring::npos)
        {
            message.replace(position, quoted.size(), lead + typed + L"'");
            break;
        }
    }
}

KEXA_COMMAND_LOCAL void removeMarks(std::wstring& message)
{
    message.erase(std::remove(message.begin(), message.end(), mark), message.end());
}

KEXA_COMMAND_INLINE void setError(Outcome& outcome, int code, std::wstring message,
                                  const Declaration* declaration, const Place& place,
                                  const std::vector<std::string>& files)
{
    outcome.status = Status::error;
    Error& error = outcome.error;
    error.code = code;
    error.message = narrow(message);
    error.wideMessage = std::move(message);
    error.option = declaration == nullptr ? std::string() : declaration->names.front();
    error.index = place.index;
    error.file = place.file == 0 ? std::string() : files[place.file - 1];
    error.line = place.line;
}

// Returns what stands in a message between two texts.
KEXA_COMMAND_LOCAL std::string between(const std::wstring& message, std::wstring_view before,
                                       std::wstring_view behind)
{
    const std::size_t begin = message.find(before);
    const std::size_t end = message.rfind(behind);
    if (begin == std::wstring::npos || end == std::wstring::npos || begin + before.size() > end)
    {
        return std::string();
    }
    return narrow(
        std::wstring_view(message).substr(begin + before.size(), end - begin - before.size()));
}

// Whether the text is an integer, which a number's type may be too small for.
KEXA_COMMAND_LOCAL bool isInteger(std::string_view text)
{
    const std::size_t sign = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    return text.size() > sign &&
           text.find_first_not_of("0123456789", sign) == std::string_view::npos;
}

KEXA_COMMAND_LOCAL std::string hintOfRefusal(const std::wstring& message, const Given& given,
                                             const std::string& reason)
{
    const Declaration& declaration = *given.declaration;
    if (!reason.empty())
    {
        const bool isLimit = reason.find("less than ") != std::string::npos ||
                             reason.find("greater than ") != std::string::npos;
        return isLimit ? hintOfLimits(declaration) : std::string();
    }
    const std::string value = between(message, L"' can not parse '", L"' value, requires a type '");
    if (isInteger(value))
    {
        return hintOfLimits(declaration);
    }
    return hintOfValues(allowedTexts(declaration),
                        between(message, L"' does not allow value '", L"'. Possible values"));
}

KEXA_COMMAND_INLINE void setValueError(Outcome& outcome, int code, std::wstring message,
                                       const Given& given, const std::string& reason,
                                       const std::vector<std::string>& files)
{
    quoteAsTyped(message, given.argument(), *given.typed);
    removeMarks(message);
    if (!reason.empty())
    {
        message += L": " + widen(reason);
    }
    std::string hint = hintOfRefusal(message, given, reason);
    setError(outcome, code, std::move(message), given.declaration, given.place, files);
    outcome.error.hint = std::move(hint);
}

KEXA_COMMAND_INLINE void setErrorBeneath(Outcome& outcome, int code, std::wstring message,
                                         const std::vector<Given>& givens, std::size_t index,
                                         const std::vector<std::string>& files)
{
    // An option without its value looks at the argument behind it.
    if (index + 1 < givens.size())
    {
        quoteAsTyped(message, givens[index + 1].argument(), *givens[index + 1].typed);
    }
    removeMarks(message);
    setError(outcome, code, std::move(message), nullptr, givens[index].place, files);
}

KEXA_COMMAND_INLINE void setFault(Outcome& outcome, int code, std::wstring message,
                                  const Fault& fault, const std::vector<std::string>& files)
{
    if (!fault.message.empty())
    {
        message = widen(fault.message);
        code = fault.code;
    }
    else if (code == 0)
    {
        // The parser knows an option that the program has declared at it, and the layer does not.
        message = L"Unknown option: " + fault.typed;
        code = fault.code;
    }
    else if (!fault.raw.empty())
    {
        quoteAsTyped(message, fault.raw.front(), fault.typed);
    }
    removeMarks(message);
    setError(outcome, code, std::move(message), fault.declaration, fault.place, files);
    outcome.error.hint = fault.hint;
}

KEXA_COMMAND_INLINE std::string hintOfActions(const State& state)
{
    std::string list;
    for (const Declaration* declaration : state.declarations())
    {
        const bool isVerb = declaration->kind == Kind::subcommand;
        if ((isVerb || declaration->kind == Kind::action) && !declaration->hidden)
        {
            const bool isBare = isVerb || state.definition().verbs;
            list += (list.empty() ? "give one of '" : ", '") +
                    (isBare ? declaration->names.front() : spelled(*declaration)) + "'";
        }
    }
    return list;
}

} // namespace detail
} // namespace v1
} // namespace kexa
