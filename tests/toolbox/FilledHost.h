// A parse result that holds many text values.
#ifndef KEXA_TESTS_TOOLBOX_FILLED_HOST_H
#define KEXA_TESTS_TOOLBOX_FILLED_HOST_H

#include <string>
#include <vector>

#include "Host.h"

namespace toolbox
{

// Texts of different lengths, from one character to a few hundred.
inline std::wstring textOf(std::size_t number)
{
    return std::to_wstring(number) + std::wstring(number % 97 == 0 ? 300 : number % 13, L'x');
}

// A host whose result holds `count` values of the option "name", each from an argument of its own.
class FilledHost : public Host
{
public:
    explicit FilledHost(std::size_t count, const wchar_t* prefix = L"")
    {
        addOption(L"name").setSeparator(L'\0');
        std::vector<std::wstring> texts;
        for (std::size_t number = 0; number < count; ++number)
        {
            texts.push_back(L"--name=" + (prefix + textOf(number)));
        }
        std::vector<const wchar_t*> arguments;
        for (const std::wstring& text : texts)
        {
            arguments.push_back(text.c_str());
        }
        EXPECT_EQ(toolbox::parse(parser(), arguments, &result()), 0);
    }
};

// The text of a wide-character variant, read by its length.
inline std::wstring wholeText(const vexkit2::variant_t& text)
{
    EXPECT_EQ(text.kind(), 13);
    const std::size_t units = text.byte_length() / sizeof(wchar_t);
    return units == 0 ? L"no terminator" : std::wstring(text.get<const wchar_t*>(), units - 1);
}

// Copies of all values of "name".
inline std::vector<vexkit2::variant_t> copyValues(kexa_3_3::IParseResult& result)
{
    std::vector<vexkit2::variant_t> copies;
    kexa_3_3::Value value;
    for (int code = result.getFirstValue(&value, L"name", 0, kexa_3_3::no_position); code == 0;
         code = result.getNextValue(&value, L"name"))
    {
        copies.push_back(value.value);
    }
    return copies;
}

} // namespace toolbox

#endif
