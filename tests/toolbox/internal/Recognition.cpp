#include "Recognition.h"

#include "options/ValueText.h"
#include "recognition/ValueStoring.h"

namespace unit
{

using namespace kexa_3_3;

result_t Collector::storeOption(const OptionDescription& option, OptionResult& record)
{
    std::wstring text = std::wstring(option.primaryName()) + L" [";
    if (record.values.empty())
    {
        for (const std::int32_t position : record.positions)
        {
            text += std::to_wstring(position);
        }
    }
    for (std::size_t index = 0; index < record.values.size(); ++index)
    {
        const ValueEntry& entry = record.values[index];
        EXPECT_EQ(record.positions.at(index), entry.position);
        text += (index == 0 ? L"" : L", ") + std::to_wstring(entry.position) + L" " +
                std::wstring(entry.text) + L"=" + valueText(entry.value);
    }
    EXPECT_EQ(record.defaultText, L"");
    stored.push_back(text + L"]");
    return result_success;
}

result_t Collector::storeValue(const OptionDescription& option, ValueEntry& value)
{
    OptionResult record;
    record.positions.push_back(value.position);
    record.values.push_back(value);
    return storeOption(option, record);
}

bool Handler::onOptionParsed(const wchar_t* name)
{
    events.push_back(std::wstring(L"option ") + name);
    return false; // ignored by the library
}

bool Handler::onValueParsed(const wchar_t* name, const ValueRecord* value)
{
    EXPECT_EQ(std::wstring(value->optionName), name);
    events.push_back(std::wstring(L"value ") + name + L" " + valueText(value->value) + L" " +
                     std::to_wstring(value->sequenceNumber));
    return judge ? judge(*value) : true;
}

bool Handler::onUnknownArgument(const wchar_t* argument)
{
    events.push_back(std::wstring(L"unknown ") + argument);
    return true;
}

RecognitionTest::RecognitionTest()
{
    setNextSequenceNumber(0);
}

OptionDescription& RecognitionTest::add(const wchar_t* names, std::int32_t valueType)
{
    IOption* const option = options.registerValueOption(names, nullptr, L"", valueType, L"").option;
    return dynamic_cast<OptionDescription&>(*option);
}

RecognitionTest::Outcome RecognitionTest::run(IArgumentParser& parser, const Texts& arguments)
{
    Outcome outcome;
    GivenArguments given(arguments);
    ArgumentQueue queue(given);
    outcome.recognized = parser.recognize(queue, options, outcome.message);
    EXPECT_EQ(outcome.message, L"");
    EXPECT_EQ(given.given(), 1U);
    EXPECT_EQ(queue.front(), arguments.front());
    if (outcome.recognized == IArgumentParser::claimed)
    {
        outcome.code = resultOf(
            parser.parse(queue, &collector, options, outcome.optionIndex, outcome.message));
    }
    outcome.rest = takeAll(queue);
    return outcome;
}

} // namespace unit
