#include "recognition/ValueStoring.h"

#include <atomic>
#include <cassert>
#include <utility>

#include "kexa/event_handler.h"

#include "options/OptionDescription.h"
#include "options/ValueCheck.h"
#include "options/ValueConversion.h"
#include "options/ValueText.h"
#include "recognition/IArgumentParser.h"
#include "recognition/Runs.h"
#include "result/ParseResult.h"
#include "support/memory/Garbage.h"
#include "support/memory/SharedTexts.h"
#include "support/platform/Trace.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

// One counter for the whole process: positions rise from parse to parse, whichever parser assigns
// them. It does not wrap where the numbers start again at 0. Relaxed, as a number guards no other
// memory; the numbers of one thread rise nevertheless.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
std::atomic<std::uint64_t> sequence_counter{0};

std::int32_t sequenceNumber(std::uint64_t count) noexcept
{
    constexpr std::uint64_t numbers = no_position; // the mark for "no position" is not one of them
    return static_cast<std::int32_t>(count % numbers);
}

std::int32_t takeSequenceNumber() noexcept
{
    return sequenceNumber(sequence_counter.fetch_add(1, std::memory_order_relaxed));
}

std::wstring noValueMessage(std::wstring_view value, const OptionDescription& option)
{
    return concatenate(
        {L"No value parsed in argument '", value, L"' for option '", option.primaryName(), L"'"});
}

// Returns the text of a value that differs from the one written. A string value contains it.
std::wstring_view finalText(const OptionDescription& option, const vexkit2::variant_t& value)
{
    return value.kind() == vexkit2::kind_wide_text ? std::wstring_view(value.get<const wchar_t*>())
                                                   : option.owner->internText(valueText(value));
}

template <class Collector>
SharedTexts* textsOf(Collector* collector) noexcept
{
    return collector == nullptr ? nullptr : &collector->texts();
}

template <class Collector>
void storeWithoutValue(const GivenValue& given, Collector* collector)
{
    OptionResult record;
    record.positions.push_back(nextSequenceNumber());
    if (collector != nullptr)
    {
        static_cast<void>(collector->storeOption(given.option, record));
    }
}

} // namespace

std::int32_t nextSequenceNumber() noexcept
{
    return sequenceNumber(sequence_counter.load(std::memory_order_relaxed));
}

void setNextSequenceNumber(std::int32_t number) noexcept
{
    assert(number >= 0 && number < no_position);
    sequence_counter.store(static_cast<std::uint64_t>(number), std::memory_order_relaxed);
}

ParseStatus ValueStoring::store(const GivenValue& given, IResultCollector* collector,
                                std::wstring& error)
{
    return storeIn<AnyRun>(given, collector, error);
}

template <class Run, class... Pieces>
void ValueStoring::trace(Pieces... pieces) const
{
    m_parser.trace<Run>(pieces...);
}

template <class Run>
ParseStatus ValueStoring::storeIn(const GivenValue& given, typename Run::Collector* collector,
                                  std::wstring& error)
{
    ParseStatus status = ParseStatus::parsed;
    if (given.value.empty())
    {
        storeWithoutValue(given, collector);
    }
    else
    {
        status = storeValue<Run>(given, collector, error);
    }
    if (status == ParseStatus::parsed)
    {
        trace<Run>(L": stored option to result container.");
    }
    return status;
}

template <class Run>
ParseStatus ValueStoring::storeValue(const GivenValue& given, typename Run::Collector* collector,
                                     std::wstring& error)
{
    const wchar_t separator = given.option.separator; // which handlers may change later
    trace<Run>(L": adding values to result container:");
    if (separator != 0)
    {
        trace<Run>(L": using tokenizer on char: '", separator, L"'");
        if (containsCharacter(given.value, separator))
        {
            return storePieces<Run>(given, separator, collector, error);
        }
        trace<Run>(L": value is: '", given.value, L"'");
    }
    else
    {
        trace<Run>(L": not using tokenizer");
    }
    SharedTexts* const texts = textsOf(collector);
    ValueEntry entry = {given.value, convertValue(given.option.valueType, given.value, texts)};
    if (const ParseStatus status = accept<Run>(given, separator != 0, texts, entry, error);
        status != ParseStatus::parsed)
    {
        return status;
    }
    if (collector != nullptr)
    {
        static_cast<void>(collector->storeValue(given.option, entry));
    }
    return ParseStatus::parsed;
}

template <class Run>
ParseStatus ValueStoring::storePieces(const GivenValue& given, wchar_t separator,
                                      typename Run::Collector* collector, std::wstring& error)
{
    SharedTexts* const texts = textsOf(collector);
    OptionResult record;
    ParseStatus status = ParseStatus::parsed;
    forEachPiece(given.value, separator,
                 [&](std::wstring_view piece)
                 {
                     if (status == ParseStatus::parsed)
                     {
                         trace<Run>(L": value is: '", piece, L"'");
                         // Memory first: nothing may throw after a failure has set a message.
                         record.positions.push_back(no_position);
                         ValueEntry& entry = record.values.emplace_back();
                         entry.value = convertValue(given.option.valueType, piece, texts);
                         entry.text = piece;
                         status = accept<Run>(given, true, texts, entry, error);
                         record.positions.back() = entry.position;
                     }
                 });
    if (record.values.empty())
    {
        error = noValueMessage(given.value, given.option);
        trace<Run>(L": ", viewOf(error));
        return ParseStatus::invalid;
    }
    if (status == ParseStatus::parsed && collector != nullptr)
    {
        static_cast<void>(collector->storeOption(given.option, record));
    }
    return status;
}

// Checks a converted piece of the value, numbers it and offers it to the event handlers.
//
// entry: the piece as it was written, and its converted value. Receives what to store: the
//        position, and the final value if the check completed or replaced it. If a handler throws,
//        the value is lost.
template <class Run>
inline ParseStatus ValueStoring::accept(const GivenValue& given, [[maybe_unused]] bool isCut,
                                        SharedTexts* texts, ValueEntry& entry, std::wstring& error)
{
    const ValueVerdict verdict = checkValue(given.option, entry.text, entry.value, texts);
    if (isRejected(verdict)) [[unlikely]]
    {
        return reject(verdict, entry.text, given, error);
    }
    entry.position = takeSequenceNumber();
    if constexpr (Run::mayBeWatched)
    {
        const bool accepted = m_parser.owner() == nullptr || offer(given.option, entry);
        if (isCut && traceIsOn()) [[unlikely]]
        {
            traceOffer(given, entry.text);
        }
        if (!accepted) [[unlikely]]
        {
            return refuse(given, error);
        }
    }
    if (verdict != ValueVerdict::accepted) [[unlikely]]
    {
        entry.text = finalText(given.option, entry.value);
    }
    return ParseStatus::parsed;
}

// Offers a value to the event handlers. Returns whether they accept it.
//
// Precondition: a handler is registered.
bool ValueStoring::offer(const OptionDescription& option, ValueEntry& entry) const
{
    ValueRecord record = {option.primaryName().data(), std::move(entry.value), entry.position};
    const bool accepted = m_parser.owner()->onValueParsed(record.optionName, &record);
    entry.value.swap(record.value);
    return accepted;
}

void ValueStoring::traceOffer(const GivenValue& given, std::wstring_view piece) const
{
    trace<AnyRun>(L": sent event on value parsed, option: '", given.option.primaryName(),
                  L"', value: '", piece, L"'");
}

// Reports that the option does not accept a piece of the value.
ParseStatus ValueStoring::reject(ValueVerdict verdict, std::wstring_view piece,
                                 const GivenValue& given, std::wstring& error) const
{
    error = concatenate({L"Value validation problem in argument '", given.argument, L"': ",
                         rejectionMessage(verdict, given.option, piece)});
    trace<AnyRun>(L": ", viewOf(error));
    return ParseStatus::invalid;
}

// Reports that a handler refused a value.
ParseStatus ValueStoring::refuse(const GivenValue& given, std::wstring& error) const
{
    error = concatenate({L"Value '", given.value, L"' is not valid for option '",
                         given.option.primaryName(), L"' in argument '", given.argument, L"'"});
    trace<AnyRun>(viewOf(error), L" One of the handler signaled the value is not valid.");
    return ParseStatus::refused;
}

template ParseStatus ValueStoring::storeIn<AnyRun>(const GivenValue&, IResultCollector*,
                                                   std::wstring&);
template ParseStatus ValueStoring::storeIn<WatchedRun<ParseResult>>(const GivenValue&, ParseResult*,
                                                                    std::wstring&);
template ParseStatus ValueStoring::storeIn<UsualRun>(const GivenValue&, ParseResult*,
                                                     std::wstring&);

} // namespace kexa_3_3
