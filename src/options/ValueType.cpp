#include "options/ValueType.h"

#include "kexa/option.h"

#include "options/OptionDescription.h"

namespace kexa_3_3
{

std::wstring_view typeName(const OptionDescription& option) noexcept
{
    return typeName(option.valueType);
}

std::wstring_view typeName(std::int32_t valueType) noexcept
{
    switch (valueType)
    {
    case value_type_boolean:
        return L"undefined";
    case value_type_integer:
        return L"integer";
    case value_type_unsigned:
        return L"unsigned integer";
    case value_type_integer64:
        return L"64 bit integer";
    case value_type_unsigned64:
        return L"unsigned 64 bit or hex";
    case value_type_double:
        return L"double";
    case value_type_string:
        return L"string";
    default:
        return {};
    }
}

} // namespace kexa_3_3
