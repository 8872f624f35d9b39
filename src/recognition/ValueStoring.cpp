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
#include "support/SharedTexts.h"
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
    const GivenValue given = {option, value, argument, option.separator, collector};
    const int code = value.empty() ? storeWithoutValue(given) : storeValues(given, error);
    if (code == stored)
    {
        traceLine(m_parser.name(), L": stored option to result container.");
    }
    return code;
}

int ValueStoring::storeWithoutValue(const GivenValue& given)
{
    OptionResult record;
    record.positions.push_back(nextSequenceNumber());
    if (given.collector != nullptr)
    {
        static_cast<void>(given.collector->storeOption(given.option, record));
    }
    return stored;
}

int ValueStoring::storeValues(const GivenValue& given, std::wstring& error)
{
    traceLine(m_parser.name(), L": adding values to result container:");
    if (given.isCut())
    {
        traceLine(m_parser.name(), L": using tokenizer on char: '", given.separator, L"'");
        if (given.value.find(given.separator) != std::wstring_view::npos)
        {
            return storePieces(given, error);
        }
        traceLine(m_parser.name(), L": value is: '", given.value, L"'");
    }
    else
    {
        traceLine(m_parser.name(), L": not using tokenizer");
    }
    ValueEntry entry;
    const int code = accept(given.value, given, entry, error);
    if (code == stored && given.collector != nullptr)
    {
        static_cast<void>(given.collector->storeValue(given.option, entry));
    }
    return code;
}

int ValueStoring::storePieces(const GivenValue& given, std::wstring& error)
{
    OptionResult record;
    int code = stored;
    forEachPiece(given.value, given.separator,
                 [&](std::wstring_view piece)
                 {
                     if (code == stored)
                     {
                         traceLine(m_parser.name(), L": value is: '", piece, L"'");
                         // Room first: behind a failure with a message nothing may throw.
                         record.positions.push_back(no_position);
                         ValueEntry& entry = record.values.emplace_back();
                         code = accept(piece, given, entry, error);
                         record.positions.back() = entry.position;
                     }
                 });
    if (record.values.empty())
    {
        error = noValueMessage(given.value, given.option);
        traceLine(m_parser.name(), L": ", error);
        return invalid;
    }
    if (code == stored && given.collector != nullptr)
    {
        static_cast<void>(given.collector->storeOption(given.option, record));
    }
    return code;
}

// Converts a piece of the value, numbers it and offers it to the event handlers.
int ValueStoring::accept(std::wstring_view piece, const GivenValue& given, ValueEntry& entry,
                         std::wstring& error)
{
    const OptionDescription& option = given.option;
    ValueRecord record = {option.primaryName().data(), vexkit2::variant_t(), 0};
    std::wstring reason;
    SharedTexts* const texts = given.collector == nullptr ? nullptr : &given.collector->texts();
    const ValueVerdict verdict = checkValue(option, piece, record.value, reason, texts);
    if (verdict == ValueVerdict::rejected)
    {
        error = validationMessage(given.argument, reason);
        traceLine(m_parser.name(), L": ", error);
        return invalid;
    }
    record.sequenceNumber = takeSequenceNumber();
    const bool accepted = m_parser.owner().onValueParsed(record.optionName, &record);
    if (given.isCut())
    {
        traceLine(m_parser.name(), L": sent event on value parsed, option: '", record.optionName,
                  L"', value: '", piece, L"'");
    }
    if (!accepted)
    {
        error = refusalMessage(given.value, option, given.argument);
        traceLine(m_parser.name(), error, L" One of the handler signaled the value is not valid.");
        return refused;
    }
    entry.text = verdict == ValueVerdict::changed ? finalText(option, record.value) : piece;
    entry.value = std::move(record.value);
    entry.position = record.sequenceNumber;
    return stored;
}

} // namespace kexa_3_3
