#include "recognition/ValueStoring.h"

#include <limits>
#include <ostream>

#include "kexa/event_handler.h"

#include "options/OptionDescription.h"
#include "options/ValueCheck.h"
#include "options/ValueText.h"
#include "recognition/IArgumentParser.h"
#include "result/IResultCollector.h"
#include "support/Garbage.h"
#include "support/SharedTexts.h"
#include "support/Text.h"

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

// Looked up only when it is written.
struct PrimaryName
{
    const OptionDescription* option;
    friend std::wostream& operator<<(std::wostream& out, PrimaryName name)
    {
        return out << name.option->primaryName();
    }
};

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

int ValueStoring::store(const GivenValue& given, std::wstring& error)
{
    const int code = given.value.empty() ? storeWithoutValue(given) : storeValue(given, error);
    if (code == stored)
    {
        m_parser.trace(L": stored option to result container.");
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

int ValueStoring::storeValue(const GivenValue& given, std::wstring& error)
{
    const wchar_t separator = given.option.separator; // which handlers may change later
    m_parser.trace(L": adding values to result container:");
    if (separator != 0)
    {
        m_parser.trace(L": using tokenizer on char: '", separator, L"'");
        if (given.value.find(separator) != std::wstring_view::npos)
        {
            return storePieces(given, separator, error);
        }
        m_parser.trace(L": value is: '", given.value, L"'");
    }
    else
    {
        m_parser.trace(L": not using tokenizer");
    }
    ValueEntry entry;
    const int code = accept(given.value, given, separator != 0, entry, error);
    if (code == stored && given.collector != nullptr)
    {
        static_cast<void>(given.collector->storeValue(given.option, entry));
    }
    return code;
}

int ValueStoring::storePieces(const GivenValue& given, wchar_t separator, std::wstring& error)
{
    OptionResult record;
    int code = stored;
    forEachPiece(given.value, separator,
                 [&](std::wstring_view piece)
                 {
                     if (code == stored)
                     {
                         m_parser.trace(L": value is: '", piece, L"'");
                         // Room first: behind a failure with a message nothing may throw.
                         record.positions.push_back(no_position);
                         ValueEntry& entry = record.values.emplace_back();
                         code = accept(piece, given, true, entry, error);
                         record.positions.back() = entry.position;
                     }
                 });
    if (record.values.empty())
    {
        error = noValueMessage(given.value, given.option);
        m_parser.trace(L": ", viewOf(error));
        return invalid;
    }
    if (code == stored && given.collector != nullptr)
    {
        static_cast<void>(given.collector->storeOption(given.option, record));
    }
    return code;
}

// Converts a piece of the value, numbers it and offers it to the event handlers.
int ValueStoring::accept(std::wstring_view piece, const GivenValue& given, bool isCut,
                         ValueEntry& entry, std::wstring& error)
{
    SharedTexts* const texts = given.collector == nullptr ? nullptr : &given.collector->texts();
    const ValueVerdict verdict = checkValue(given.option, piece, entry.value, texts);
    if (isRejected(verdict)) [[unlikely]]
    {
        return reject(verdict, piece, given, error);
    }
    entry.position = takeSequenceNumber();
    const bool accepted = m_parser.owner() == nullptr || offer(given.option, entry);
    if (isCut)
    {
        m_parser.trace(L": sent event on value parsed, option: '", PrimaryName{&given.option},
                       L"', value: '", piece, L"'");
    }
    if (!accepted) [[unlikely]]
    {
        return refuse(given, error);
    }
    entry.text = verdict == ValueVerdict::accepted ? piece : finalText(given.option, entry.value);
    return stored;
}

// Says that a piece of the value is none for the option.
int ValueStoring::reject(ValueVerdict verdict, std::wstring_view piece, const GivenValue& given,
                         std::wstring& error) const
{
    error = concatenate({L"Value validation problem in argument '", given.argument, L"': ",
                         rejectionMessage(verdict, given.option, piece)});
    m_parser.trace(L": ", viewOf(error));
    return invalid;
}

// Says that a handler refused a value.
int ValueStoring::refuse(const GivenValue& given, std::wstring& error) const
{
    error = concatenate({L"Value '", given.value, L"' is not valid for option '",
                         given.option.primaryName(), L"' in argument '", given.argument, L"'"});
    m_parser.trace(viewOf(error), L" One of the handler signaled the value is not valid.");
    return refused;
}

// Lets the event handlers, which there must be, see a value. Answers whether they accept it.
bool ValueStoring::offer(const OptionDescription& option, ValueEntry& entry) const
{
    ValueRecord record = {option.primaryName().data(), vexkit2::variant_t(), entry.position};
    record.value.swap(entry.value);
    const bool accepted = m_parser.owner()->onValueParsed(record.optionName, &record);
    record.value.swap(entry.value);
    return accepted;
}

} // namespace kexa_3_3
