// Collaborators of the recognition classes in tests: registry, event handler, result collector.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "kexa/event_handler.h"
#include "kexa/option.h"

#include "options/RegisteredOptionStorage.h"
#include "recognition/IArgumentParser.h"
#include "result/IResultCollector.h"
#include "support/memory/Garbage.h"
#include "support/memory/SharedTexts.h"

#include "GivenArguments.h"
#include "HeapOnly.h"
#include "TextPrinting.h"

namespace unit
{

using Texts = std::vector<std::wstring>;

// Records each stored occurrence as "name [position text=value, ...]", or as "name [position]" if
// it has no values.
class Collector final : public kexa_3_3::IResultCollector
{
public:
    kexa_3_3::result_t storeOption(const kexa_3_3::OptionDescription& option,
                                   kexa_3_3::OptionResult& record) override;
    kexa_3_3::result_t storeValue(const kexa_3_3::OptionDescription& option,
                                  kexa_3_3::ValueEntry& value) override;
    kexa_3_3::SharedTexts& texts() noexcept override { return m_texts; }

    Texts stored;

private:
    kexa_3_3::SharedTexts m_texts;
};

// Records events as "option NAME", "value NAME TEXT NUMBER", "unknown ARGUMENT".
class Handler final : public kexa_3_3::EventHandler
{
public:
    bool onOptionParsed(const wchar_t* name) override;
    bool onValueParsed(const wchar_t* name, const kexa_3_3::ValueRecord* value) override;
    bool onUnknownArgument(const wchar_t* argument) override;

    Texts events;
    // Called for every value; its result is returned to the parser.
    std::function<bool(const kexa_3_3::ValueRecord&)> judge;
};

// A registry of options for the parser under test. The sequence counter starts at 0 in each test.
class RecognitionTest : public testing::Test
{
protected:
    RecognitionTest();

    kexa_3_3::OptionDescription& add(const wchar_t* names,
                                     std::int32_t valueType = kexa_3_3::value_type_string);

    // The results of recognizing and parsing an argument vector.
    struct Outcome
    {
        int recognized = 0;
        int code = -1; // that a parse ends with; set when recognized is 0
        std::int64_t optionIndex = -2;
        std::wstring message;
        Texts rest; // the arguments not removed

        friend bool operator==(const Outcome&, const Outcome&) = default;
    };
    Outcome run(kexa_3_3::IArgumentParser& parser, const Texts& arguments);

    kexa_3_3::Garbage pool{unit::heap_only};
    kexa_3_3::RegisteredOptionStorage options{pool, L','};
    Handler handler;
    Collector collector;
};

} // namespace unit
