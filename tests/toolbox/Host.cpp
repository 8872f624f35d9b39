#include "Host.h"

#include <ostream>
#include <stdexcept>

namespace toolbox
{

using namespace kexa_3_3;

namespace
{

IOption& accepted(const Registration& registration)
{
    if (registration.option == nullptr)
    {
        throw std::runtime_error("the declaration was not accepted");
    }
    return *registration.option;
}

std::wstring textOf(const Value& value)
{
    const wchar_t* text = value.as<const wchar_t*>();
    return text == nullptr ? std::wstring() : std::wstring(text);
}

} // namespace

ParserOwner createParser(int flags)
{
    IParser* parser = nullptr;
    if (kexa_3_3::createParser(&parser, flags) != result_success || parser == nullptr)
    {
        throw std::runtime_error("no parser");
    }
    return ParserOwner(parser);
}

ResultOwner createResult(IParser& parser)
{
    IParseResult* result = nullptr;
    if (parser.createParseResult(&result) != result_success || result == nullptr)
    {
        throw std::runtime_error("no result");
    }
    return ResultOwner(result);
}

result_t parse(IParser& parser, const std::vector<const wchar_t*>& arguments, IParseResult* result)
{
    std::vector<const wchar_t*> vector{L"program"};
    vector.insert(vector.end(), arguments.begin(), arguments.end());
    return parser.parse(static_cast<std::int32_t>(vector.size()), vector.data(), result);
}

result_t parse(IParser& parser, std::initializer_list<const wchar_t*> arguments,
               IParseResult* result)
{
    return parse(parser, std::vector<const wchar_t*>(arguments), result);
}

void PrintTo(const ReadValue& value, std::ostream* out)
{
    *out << "{\"" << toUtf8(value.text) << "\", kind " << value.kind << ", position "
         << value.position << "}";
}

std::vector<ReadValue> readValues(IParseResult& result, const wchar_t* name, std::int32_t from,
                                  std::int32_t to)
{
    std::vector<ReadValue> values;
    Value value;
    for (result_t code = result.getFirstValue(&value, name, from, to); code == result_success;
         code = result.getNextValue(&value, name))
    {
        values.push_back({textOf(value), value.value.kind(), value.position});
    }
    return values;
}

std::vector<std::wstring> readTexts(IParseResult& result, const wchar_t* name)
{
    std::vector<std::wstring> texts;
    for (const ReadValue& value : readValues(result, name))
    {
        texts.push_back(value.text);
    }
    return texts;
}

std::vector<std::wstring> readUnparsed(IParseResult& result)
{
    std::vector<std::wstring> arguments;
    const wchar_t* argument = nullptr;
    for (result_t code = result.getFirstUnparsed(&argument); code == result_success;
         code = result.getNextUnparsed(&argument))
    {
        arguments.emplace_back(argument);
    }
    return arguments;
}

std::int32_t nextPosition()
{
    Host host;
    host.addOption(L"throw-away");
    host.parse({L"--throw-away=x"});
    const std::int32_t position = host.values(L"throw-away").at(0).position;
    return position == no_position - 1 ? 0 : position + 1;
}

IOption& Host::addOption(const wchar_t* names, std::int32_t valueType)
{
    return accepted(m_parser->addOption(names, L"", valueType, L""));
}

IOption& Host::addSwitch(const wchar_t* names, std::int32_t valueType)
{
    return accepted(m_parser->addSwitch(names, L"", valueType, L""));
}

IOption& Host::addPositional(const wchar_t* names)
{
    return addOption(names).setMarked();
}

} // namespace toolbox
