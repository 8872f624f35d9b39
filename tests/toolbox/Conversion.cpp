#include "Conversion.h"

namespace toolbox
{

namespace
{

Converted parseOne(Host& host, const std::wstring& argument)
{
    Converted converted;
    converted.code = host.parse({argument.c_str()});
    converted.message = host.message();
    converted.stored = host.isPresent(L"out");
    kexa_3_3::Value value;
    host.result().getFirstValue(&value, L"out", 0, kexa_3_3::no_position);
    converted.value = value.value;
    return converted;
}

} // namespace

Converted convert(std::int32_t valueType, const std::wstring& text)
{
    Host host;
    host.addOption(L"out", valueType).setSeparator(0);
    return parseOne(host, L"--out=" + text);
}

Converted convertPositional(std::int32_t valueType, const std::wstring& text)
{
    Host host;
    host.addOption(L"out", valueType).setSeparator(0).setMarked();
    return parseOne(host, text);
}

std::wstring refusal(const std::wstring& typeName, const std::wstring& text,
                     const std::wstring& argument)
{
    return L"Value validation problem in argument '" + argument +
           L"': Option 'out' can not parse '" + text + L"' value, requires a type '" + typeName +
           L"' here.";
}

} // namespace toolbox
