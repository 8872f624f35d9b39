#include "recognition/ValueStoring.h"

#include <limits>
#include <utility>

#include "kexa/event_handler.h"

#include "options/OptionDescription.h"
#include "options/ValueCheck.h"
#include "options/ValueText.h"
#include "recognition/IArgumentParser.h"
#include "result/IResultCollector.h"
#include "support/Garbage.h"
#include "support/Text.h"
#include "support/Trace.h"

namespace kexa_3_3
{

namespace
{

constexpr int stored = 0;
constexpr int refused = 1;
constexpr int invalid = 2;

// One for the whole process: positions rise from parse to parse, whichever parser gives them.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
std::int32_t sequence_counter = 0;

std::int32_t takeSequenceNumber() noexcept
{
    const std::int32_t number = sequence_counter;
    // 2147483647 marks "no position", so the numbers end before it.
    sequence_counter = number == std::numeric_limits<std::int32_t>::max() - 1 ? 0 : number + 1;
    return number;
}

std::wstring noValueMessage(std::wstring_view value, const OptionDescription& option)
{
    return concatenate(
        {L"No value parsed in argument '", value, L"' for option '", option.primaryName(), L"'"});
}

std::wstring validationMessage(std::wstring_view argument, std::wstring_view reason)
{
    return concatenate({L"Value validation problem in argument '", argument, L"': ", reason});
}

std::wstring refusalMessage(std::wstring_view value, const OptionDescription& option,
                            std::wstring_view argument)
{
    return concatenate({L"Value '", value, L"' is not valid for option '", option.primaryName(),
                        L"' in argument '", argument, L"'"});
}

// The text of a value that is not the one written. A string value holds it already.
std::wstring_view finalText(const OptionDescription& option, const vexkit2::variant_t& value)
{
    return value.kind() == vexkit2::kind_wide_text ? std::wstring_view(value.get<const wchar_t*>())
                                                   : option.owner->internText(valueText(value));
}

} // namespace

std::int32_t nextSequenceNumber() noexcept
{
    return sequence_counter;
}

void setNextSequenceNumber(std::int32_t number) noexcept
{
    sequence_counter = number;
}

int ValueStoring::store(std::wstring_view value, std::wstring& error,
                        const OptionDescription& option, std::wstring_view argument,
                        IResultCollector* collector)
{
    m_occurrence.positions.clear();
    m_occurrence.values.clear();
    if (value.empty())
    {
        m_occurrence.positions.push_back(nextSequenceNumber());
    }
    else
    {
        const int code = addPieces(value, error, option, argument);
        if (code != stored)
        {
            return code;
        }
    }
    if (collector != nullptr)
    {
        static_cast<void>(collector->storeOption(option, m_occurrence));
    }
    traceLine(m_parser.name(), L": stored option to result container.");
    return stored;
}

int ValueStoring::addPieces(std::wstring_view value, std::wstring& error,
                            const OptionDescription& option, std::wstring_view argument)
{
    traceLine(m_parser.name(), L": adding values to result container:");
    if (option.separator == 0)
    {
        traceLine(m_parser.name(), L": not using tokenizer");
        return addValue(value, {value, false}, error, option, argument);
    }
    const wchar_t separator = option.separator; // a handler may change the option meanwhile
    traceLine(m_parser.name(), L": using tokenizer on char: '", separator, L"'");
    int code = stored;
    bool any = false;
    forEachPiece(value, separator,
                 [&](std::wstring_view piece)
                 {
                     any = true;
                     if (code == stored)
                     {
                         traceLine(m_parser.name(), L": value is: '", piece, L"'");
                         code = addValue(piece, {value, true}, error, option, argument);
                     }
                 });
    if (!any)
    {
        error = noValueMessage(value, option);
        traceLine(m_parser.name(), L": ", error);
        return invalid;
    }
    return code;
}

int ValueStoring::addValue(std::wstring_view piece, const Whole& whole, std::wstring& error,
                           const OptionDescription& option, std::wstring_view argument)
{
    ValueRecord record = {option.primaryName().data(), vexkit2::variant_t(), 0};
    std::wstring reason;
    const ValueVerdict verdict = checkValue(option, piece, record.value, reason);
    if (verdict == ValueVerdict::rejected)
    {
        error = validationMessage(argument, reason);
        traceLine(m_parser.name(), L": ", error);
        return invalid;
    }
    record.sequenceNumber = takeSequenceNumber();
    const bool accepted = m_parser.owner().onValueParsed(record.optionName, &record);
    if (whole.tokenized)
    {
        traceLine(m_parser.name(), L": sent event on value parsed, option: '", record.optionName,
                  L"', value: '", piece, L"'");
    }
    if (!accepted)
    {
        error = refusalMessage(whole.value, option, argument);
        traceLine(m_parser.name(), error, L" One of the handler signaled the value is not valid.");
        return refused;
    }
    const std::wstring_view text =
        verdict == ValueVerdict::changed ? finalText(option, record.value) : piece;
    m_occurrence.positions.push_back(record.sequenceNumber);
    m_occurrence.values.push_back({text, std::move(record.value), record.sequenceNumber});
    return stored;
}

} // namespace kexa_3_3
