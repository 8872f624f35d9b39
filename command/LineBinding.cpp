// The values of a line and of the environment, given to the parser.
#include "LineBinding.h"

#include <algorithm>
#include <deque>
#include <memory>
#include <optional>

#include "Inline.h"
#include "kexa/command/detail/numbers.h"
#include "kexa/option.h"
#include "Messages.h"
#include "platform/Environment.h"
#include "text/Encoding.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE const Given* LineBinding::firstOf(const Declaration& declaration) const
{
    for (const Given& given : m_scan.givens())
    {
        if (given.declaration == &declaration)
        {
            return &given;
        }
    }
    return nullptr;
}

KEXA_COMMAND_INLINE bool LineBinding::refuse(const std::string& message,
                                             const Declaration* declaration,
                                             const std::string& hint)
{
    const Given* given = declaration == nullptr ? nullptr : firstOf(*declaration);
    setError(m_outcome, kexa_3_3::result_invalid_arguments, widen(message), declaration,
             given == nullptr ? Place() : given->place, m_files);
    m_outcome.error.hint = hint;
    return false;
}

KEXA_COMMAND_INLINE kexa_3_3::result_t
LineBinding::runParser(const std::vector<const wchar_t*>& arguments, Binder& binder,
                       bool keepsResult)
{
    kexa_3_3::IParser& parser = m_state.parser();
    kexa_3_3::IParseResult* made = nullptr;
    if (keepsResult)
    {
        parser.createParseResult(&made);
    }
    std::unique_ptr<kexa_3_3::IParseResult, Releaser> result(made);
    parser.addEventHandler(&binder);
    const kexa_3_3::result_t code =
        parser.parse(static_cast<std::int32_t>(arguments.size()), arguments.data(), made);
    parser.removeEventHandler(&binder);
    if (code != kexa_3_3::result_success)
    {
        m_state.countFailure();
    }
    binder.rethrow();
    if (keepsResult)
    {
        m_outcome.result = std::move(result);
    }
    return code;
}

KEXA_COMMAND_INLINE bool LineBinding::parseGiven()
{
    const std::vector<Given>& givens = m_scan.givens();
    const Fault& fault = m_scan.fault();
    m_outcome.values.reserve(m_outcome.values.size() + givens.size());
    std::vector<const wchar_t*> arguments = {L""};
    arguments.reserve(givens.size() + fault.raw.size() + 2);
    if (m_scan.isTraced())
    {
        arguments.push_back(L"kexaoption=kexalogenable=1");
    }
    for (const Given& given : givens)
    {
        arguments.push_back(given.argument().c_str());
        if (given.declaration != nullptr)
        {
            m_sources[given.declaration->index] = Source::given;
        }
    }
    for (const std::wstring& raw : fault.raw)
    {
        arguments.push_back(raw.c_str());
    }
    Binder binder(m_state, givens, m_isBound, Source::given, m_object, m_outcome);
    const kexa_3_3::result_t code = runParser(arguments, binder, m_state.isShared());
    const std::wstring message =
        code == 0 ? std::wstring() : std::wstring(m_state.parser().getErrorMessage());
    if (code != 0)
    {
        const std::size_t faulty = binder.begun() - (isValueMessage(message) ? 1 : 0);
        if (faulty < givens.size() && givens[faulty].declaration == nullptr)
        {
            setErrorBeneath(m_outcome, code, message, givens, faulty, m_files);
            return false;
        }
    }
    if (code != 0 && isValueMessage(message) && binder.begun() > 0)
    {
        const Given& given = givens[binder.begun() - 1];
        setValueError(m_outcome, code, message, given, binder.reason(), m_files);
        return false;
    }
    if (fault.isFound)
    {
        setFault(m_outcome, code, message, fault, m_files);
        return false;
    }
    if (code != 0)
    {
        setError(m_outcome, code, message, nullptr, Place(), m_files);
        return false;
    }
    return true;
}

KEXA_COMMAND_INLINE bool LineBinding::parseEnvironment()
{
    std::vector<Given> givens;
    std::deque<std::wstring> texts;
    for (const Declaration* declaration : m_state.declarations())
    {
        if (declaration->environment.empty() || m_sources[declaration->index] != Source::defaulted)
        {
            continue;
        }
        const std::optional<std::string> value = environmentVariable(declaration->environment);
        if (!value || value->empty())
        {
            continue;
        }
        const std::wstring& wide = texts.emplace_back(widen(*value));
        const std::wstring& name = m_state.rawName(*declaration);
        std::wstring raw = name + L"=" + wide;
        std::string reason;
        if (declaration->isFlag())
        {
            const vexkit2::variant_t flag = convertText(kexa_3_3::value_type_boolean, wide, reason);
            if (flag.kind() == vexkit2::kind_boolean)
            {
                raw = flag.get<bool>() ? name : L"--no-" + name.substr(2);
            }
        }
        m_sources[declaration->index] = Source::environment;
        givens.push_back({declaration, std::move(raw), &wide, Place(), false});
    }
    if (givens.empty())
    {
        return true;
    }
    std::vector<const wchar_t*> arguments = {L""};
    for (const Given& given : givens)
    {
        arguments.push_back(given.argument().c_str());
    }
    Binder binder(m_state, givens, m_isBound, Source::environment, m_object, m_outcome);
    const kexa_3_3::result_t code = runParser(arguments, binder, false);
    if (code == 0)
    {
        return true;
    }
    // Of a boolean with another value the parser does not tell that it has come to it.
    const std::wstring message = m_state.parser().getErrorMessage();
    const std::size_t begun = binder.begun() - (isValueMessage(message) ? 1 : 0);
    setValueError(m_outcome, code, message, givens[std::min(begun, givens.size() - 1)],
                  binder.reason(), m_files);
    const std::string& variable =
        givens[std::min(begun, givens.size() - 1)].declaration->environment;
    m_outcome.error.environment = variable;
    m_outcome.error.message += " (environment variable '" + variable + "')";
    m_outcome.error.wideMessage = widen(m_outcome.error.message);
    return false;
}

} // namespace detail
} // namespace v1
} // namespace kexa
