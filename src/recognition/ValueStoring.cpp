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
    const Occurrence occurrence = {option, value, argument, option.separator, collector};
    const int code = value.empty() ? storeWithoutValue(occurrence) : storeValues(occurrence, error);
    if (code == stored)
    {
        traceLine(m_parser.name(), L": stored option to result container.");
    }
    return code;
}

int ValueStoring::storeWithoutValue(const Occurrence& occurrence)
{
    OptionResult record;
    record.positions.push_back(nextSequenceNumber());
    if (occurrence.collector != nullptr)
    {
        static_cast<void>(occurrence.collector->storeOption(occurrence.option, record));
    }
    return stored;
}

int ValueStoring::storeValues(const Occurrence& occurrence, std::wstring& error)
{
    traceLine(m_parser.name(), L": adding values to result container:");
    if (occurrence.isCut())
    {
        traceLine(m_parser.name(), L": using tokenizer on char: '", occurrence.separator, L"'");
        if (occurrence.value.find(occurrence.separator) != std::wstring_view::npos)
        {
            return storePieces(occurrence, error);
        }
        traceLine(m_parser.name(), L": value is: '", occurrence.value, L"'");
    }
    else
    {
        traceLine(m_parser.name(), L": not using tokenizer");
    }
    ValueEntry entry;
    const int code = accept(occurrence.value, occurrence, entry, error);
    if (code == stored && occurrence.collector != nullptr)
    {
        static_cast<void>(occurrence.collector->storeValue(occurrence.option, entry));
    }
    return code;
}

int ValueStoring::storePieces(const Occurrence& occurrence, std::wstring& error)
{
    OptionResult record;
    int code = stored;
    forEachPiece(occurrence.value, occurrence.separator,
                 [&](std::wstring_view piece)
                 {
                     if (code == stored)
                     {
                         traceLine(m_parser.name(), L": value is: '", piece, L"'");
                         // Room first: behind a failure with a message nothing may throw.
                         record.positions.push_back(no_position);
                         ValueEntry& entry = record.values.emplace_back();
                         code = accept(piece, occurrence, entry, error);
                         record.positions.back() = entry.position;
                     }
                 });
    if (record.values.empty())
    {
        error = noValueMessage(occurrence.value, occurrence.option);
        traceLine(m_parser.name(), L": ", error);
        return invalid;
    }
    if (code == stored && occurrence.collector != nullptr)
    {
        static_cast<void>(occurrence.collector->storeOption(occurrence.option, record));
    }
    return code;
}

// Converts a piece of the value, numbers it and offers it to the event handlers.
int ValueStoring::accept(std::wstring_view piece, const Occurrence& occurrence, ValueEntry& entry,
                         std::wstring& error)
{
    const OptionDescription& option = occurrence.option;
    ValueRecord record = {option.primaryName().data(), vexkit2::variant_t(), 0};
    std::wstring reason;
    SharedTexts* const texts =
        occurrence.collector == nullptr ? nullptr : &occurrence.collector->texts();
    const ValueVerdict verdict = checkValue(option, piece, record.value, reason, texts);
    if (verdict == ValueVerdict::rejected)
    {
        error = validationMessage(occurrence.argument, reason);
        traceLine(m_parser.name(), L": ", error);
        return invalid;
    }
    record.sequenceNumber = takeSequenceNumber();
    const bool accepted = m_parser.owner().onValueParsed(record.optionName, &record);
    if (occurrence.isCut())
    {
        traceLine(m_parser.name(), L": sent event on value parsed, option: '", record.optionName,
                  L"', value: '", piece, L"'");
    }
    if (!accepted)
    {
        error = refusalMessage(occurrence.value, option, occurrence.argument);
        traceLine(m_parser.name(), error, L" One of the handler signaled the value is not valid.");
        return refused;
    }
    entry.text = verdict == ValueVerdict::changed ? finalText(option, record.value) : piece;
    entry.value = std::move(record.value);
    entry.position = record.sequenceNumber;
    return stored;
}

} // namespace kexa_3_3
