#include "RawParser.h"

#include "kexa/command.h"

using namespace kexa_3_3;

namespace toolbox
{

RawParser::RawParser()
{
    IParser* parser = nullptr;
    createParser(&parser, flag_unknown_is_error | flag_any_positional_after_marker |
                              flag_no_hyphen_positional | flag_no_value_lists);
    m_parser.reset(parser);
}

void RawParser::addPositional(const wchar_t* name)
{
    IOption& option = *m_parser->addOption(name, L"", value_type_string, L"").option;
    option.setMarked();
    option.setSeparator(0);
}

result_t RawParser::parse(const std::vector<std::string>& arguments)
{
    std::vector<std::wstring> texts = {L"program"};
    for (const std::string& argument : arguments)
    {
        texts.push_back(kexa::detail::wideText(argument));
    }
    std::vector<const wchar_t*> argv;
    for (const std::wstring& text : texts)
    {
        argv.push_back(text.c_str());
    }
    IParseResult* result = nullptr;
    m_parser->createParseResult(&result);
    m_result.reset(result);
    return m_parser->parse(static_cast<std::int32_t>(argv.size()), argv.data(), result);
}

std::string RawParser::message() const
{
    return kexa::detail::narrowText(m_parser->getErrorMessage());
}

std::vector<std::string> RawParser::valuesOf(const std::string& name) const
{
    std::vector<std::string> values;
    Value value;
    for (result_t code =
             m_result->getFirstValue(&value, kexa::detail::wideText(name).c_str(), 0, no_position);
         code == result_success; code = m_result->getNextValue(&value, L""))
    {
        values.push_back(kexa::detail::textOfValue(value.value));
    }
    return values;
}

std::string RawParser::values(const std::string& name) const
{
    std::string text;
    for (const std::string& value : valuesOf(name))
    {
        text += "[" + value + "]";
    }
    return text;
}

std::string RawParser::lastValue(const std::string& name) const
{
    const std::vector<std::string> values = valuesOf(name);
    return values.empty() ? std::string() : values.back();
}

bool RawParser::isPresent(const std::string& name) const
{
    return m_result->isPresent(kexa::detail::wideText(name).c_str(), 0, no_position) == 1;
}

} // namespace toolbox
