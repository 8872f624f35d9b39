// Recognises arguments that are values of the positional option.
#pragma once

#include <cstdint>
#include <string>

#include "recognition/IArgumentParser.h"
#include "recognition/ValueStoring.h"

namespace kexa_3_3
{

// All values go to the first positional option in table order.
class PositionalOptionsParser final : public IArgumentParser
{
public:
    PositionalOptionsParser(EventHandler* owner, Garbage& settings, std::uint32_t flags);

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

    [[nodiscard]] std::int32_t priority() const noexcept override { return -100; }

private:
    template <class Run>
    [[nodiscard]] ParseStatus storeAndRemove(const GivenValue& given,
                                             typename Run::Collector* collector,
                                             ArgumentQueue& arguments, std::wstring& error);

    ValueStoring m_storing;
};

} // namespace kexa_3_3
