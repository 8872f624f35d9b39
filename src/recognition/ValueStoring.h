// The last step of parsing an argument: its value is split, converted, offered to the event
// handlers and stored.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "recognition/ParseStatus.h"
#include "result/OptionResult.h"

namespace kexa_3_3
{

class IArgumentParser;
class IResultCollector;
class OptionDescription;
class SharedTexts;
enum class ValueVerdict : std::uint8_t;

// Returns the number that the next converted value will get. One counter for the whole process
// numbers the values of all parsers: the numbers rise in each thread, and none is given twice
// before they start again at 0, after 2147483646.
[[nodiscard]] std::int32_t nextSequenceNumber() noexcept;

// Makes the counter continue from a number, so that tests can reach the last ones. Precondition:
// the number is not negative and less than no_position.
void setNextSequenceNumber(std::int32_t number) noexcept;

// One occurrence of an option in an argument.
struct GivenValue
{
    const OptionDescription& option;
    std::wstring_view value;    // empty for an occurrence without values
    std::wstring_view argument; // the argument that is parsed, as messages name it
};

// Stores the occurrences that one argument parser finds.
class ValueStoring
{
public:
    explicit ValueStoring(const IArgumentParser& parser) noexcept : m_parser(parser) {}

    // collector: receives the values; may be null.
    // error:     receives the message of a failure.
    // Returns `invalid` when the value does not convert or is not allowed, `refused` when a handler
    // refused it. Nothing of the occurrence is stored then.
    [[nodiscard]] ParseStatus store(const GivenValue& given, IResultCollector* collector,
                                    std::wstring& error);

    // As store, in a run of one kind (Runs.h).
    template <class Run>
    [[nodiscard]] ParseStatus storeIn(const GivenValue& given, typename Run::Collector* collector,
                                      std::wstring& error);

private:
    template <class Run, class... Pieces>
    void trace(Pieces... pieces) const;
    template <class Run>
    [[nodiscard]] ParseStatus storeValue(const GivenValue& given,
                                         typename Run::Collector* collector, std::wstring& error);
    template <class Run>
    [[nodiscard]] ParseStatus storePieces(const GivenValue& given, wchar_t separator,
                                          typename Run::Collector* collector, std::wstring& error);
    template <class Run>
    [[nodiscard]] ParseStatus accept(const GivenValue& given, bool isCut, SharedTexts* texts,
                                     ValueEntry& entry, std::wstring& error);
    [[nodiscard]] ParseStatus reject(ValueVerdict verdict, std::wstring_view piece,
                                     const GivenValue& given, std::wstring& error) const;
    [[nodiscard]] bool offer(const OptionDescription& option, ValueEntry& entry) const;
    void traceOffer(const GivenValue& given, std::wstring_view piece) const;
    [[nodiscard]] ParseStatus refuse(const GivenValue& given, std::wstring& error) const;

    const IArgumentParser& m_parser;
};

} // namespace kexa_3_3
