// Named options, recognised by full name or unambiguous beginning.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "recognition/BestMatch.h"
#include "recognition/IArgumentParser.h"
#include "recognition/OptionArgument.h"
#include "recognition/ValueStoring.h"

namespace kexa_3_3
{

class OptionDescription;

class AbbreviationParser final : public IArgumentParser
{
public:
    AbbreviationParser(EventHandler* owner, Garbage& settings, std::uint32_t flags);

    int recognize(const ArgumentQueue& arguments, const RegisteredOptionStorage& options,
                  std::wstring& message) override;
    ParseStatus parse(ArgumentQueue& arguments, IResultCollector* collector,
                      const RegisteredOptionStorage& options, std::int64_t& optionIndex,
                      std::wstring& error) override;

    // recognize and parse in a run of one kind (Runs.h), without virtual calls.
    template <class Run>
    int recognizeIn(const ArgumentQueue& arguments, const RegisteredOptionStorage& options,
                    std::wstring& message);
    template <class Run>
    ParseStatus parseIn(ArgumentQueue& arguments, typename Run::Collector* collector,
                        const RegisteredOptionStorage& options, std::int64_t& optionIndex,
                        std::wstring& error);

    [[nodiscard]] std::int32_t priority() const noexcept override { return -10; }

private:
    [[nodiscard]] std::wstring_view typedName() const noexcept { return m_split.name.text(); }
    [[nodiscard]] bool findMatch(std::wstring_view argument, const OptionIndex& index);

    // Return whether the option has the value that it needs; otherwise `error` receives the
    // message.
    //
    // takesNext: receives whether the value is the next argument, which is then removed too.
    template <class Run>
    [[nodiscard]] bool takeValue(GivenValue& given, bool& takesNext, ArgumentQueue& arguments,
                                 std::wstring& error) const;
    template <class Run>
    [[nodiscard]] bool takeNextArgument(GivenValue& given, ArgumentQueue& arguments,
                                        std::wstring& error) const;
    template <class Run>
    [[nodiscard]] ParseStatus storeAndRemove(const GivenValue& given,
                                             typename Run::Collector* collector, bool takesNext,
                                             ArgumentQueue& arguments, std::wstring& error);
    template <class Run>
    void remove(ArgumentQueue& arguments) const;
    [[nodiscard]] std::wstring superfluousValue(const GivenValue& given) const;
    [[nodiscard]] std::wstring valueMissing(const GivenValue& given) const;

    WhiteSpace m_whiteSpace;
    ValueStoring m_storing;

    // Of the argument claimed last.
    OptionArgument m_split;
    BestMatch m_match;
    std::wstring m_candidateList; // if the name is ambiguous
};

} // namespace kexa_3_3
