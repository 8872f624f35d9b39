#include "ResultDescription.h"

#include <sstream>

#include "Host.h"

namespace faults
{

using namespace kexa_3_3;
using toolbox::ReadValue;

namespace
{

std::wstring positionText(std::int32_t position, std::int32_t first)
{
    return position == no_position ? L"none" : std::to_wstring(position - first);
}

} // namespace

std::wstring describe(IParseResult& result, const Names& names, std::int32_t firstPosition)
{
    std::wostringstream out;
    for (const wchar_t* const name : names)
    {
        out << name << L": present " << result.isPresent(name, 0, no_position) << L"; values";
        for (const ReadValue& value : toolbox::readValues(result, name))
        {
            out << L" '" << value.text << L"' kind " << value.kind << L" at "
                << positionText(value.position, firstPosition);
        }
        out << L"; positions";
        result.isPresent(name, 0, no_position);
        for (std::int32_t position = result.getNextPosition(); position != no_position;
             position = result.getNextPosition())
        {
            out << L' ' << positionText(position, firstPosition);
        }
        const Value last = getLastValue(&result, name, 0, no_position);
        const wchar_t* const text = last.as<const wchar_t*>();
        out << L"; last " << last.status << L" '" << (text == nullptr ? L"" : text) << L"'\n";
    }
    out << L"left over:";
    for (const std::wstring& argument : toolbox::readUnparsed(result))
    {
        out << L" '" << argument << L"'";
    }
    out << L'\n';
    return out.str();
}

Contents readContents(IParseResult& result, const Names& names)
{
    Contents contents;
    for (const wchar_t* const name : names)
    {
        std::vector<std::wstring>& texts = contents[name];
        for (const ReadValue& value : toolbox::readValues(result, name))
        {
            if (value.position != no_position)
            {
                texts.push_back(value.text);
            }
        }
    }
    contents[std::wstring()] = toolbox::readUnparsed(result);
    return contents;
}

Contents operator+(Contents first, const Contents& second)
{
    for (const auto& [name, texts] : second)
    {
        std::vector<std::wstring>& sum = first[name];
        sum.insert(sum.end(), texts.begin(), texts.end());
    }
    return first;
}

} // namespace faults
