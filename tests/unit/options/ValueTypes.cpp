// The names of value types, and which types have a conversion at all.
#include <string>

#include "options/OptionDescription.h"
#include "options/ValueConversion.h"
#include "options/ValueType.h"
#include "support/memory/Garbage.h"

#include "HeapOnly.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;

const OptionGroup no_group;

TEST(ValueTypes, SevenTypesHaveAName)
{
    for (std::int32_t type = -1; type <= 20; ++type)
    {
        std::wstring expected;
        switch (type)
        {
        case 0:
            expected = L"undefined";
            break;
        case 6:
            expected = L"integer";
            break;
        case 7:
            expected = L"unsigned integer";
            break;
        case 8:
            expected = L"64 bit integer";
            break;
        case 9:
            expected = L"unsigned 64 bit or hex";
            break;
        case 11:
            expected = L"double";
            break;
        case 13:
            expected = L"string";
            break;
        default:
            break;
        }
        EXPECT_EQ(std::wstring(typeName(type)), expected) << type;
        Garbage pool{unit::heap_only};
        OptionDescription option(no_group, false, pool);
        option.valueType = type;
        EXPECT_EQ(std::wstring(typeName(option)), expected) << type;
    }
}

TEST(ValueTypes, ValuesOfSevenTypesHaveTheKindOfTheirType)
{
    for (std::int32_t type = -1; type <= 20; ++type)
    {
        const bool converts = !typeName(type).empty();
        EXPECT_EQ(convertValue(type, L"1").kind(), converts ? type : 17) << type;
    }
    EXPECT_EQ(convertValue(2147483647, L"1").kind(), 17);
}

} // namespace
