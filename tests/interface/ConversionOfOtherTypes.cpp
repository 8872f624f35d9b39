// Strings, booleans and types without a conversion; the message of a value that does not convert.
#include <string>

#include "Conversion.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;

TEST(ConversionOfOtherTypes, StringTakesAnyTextUnchanged)
{
    for (const std::wstring& text :
         {std::wstring(L"abc"), std::wstring(L" "), std::wstring(L"  a b  "), std::wstring(L"=x="),
          std::wstring(L"-5"), std::wstring(L"a,b"), std::wstring(L"\t\n"),
          std::wstring(L"\u00E9\u2014\U0001F600"), std::wstring(100000, L'x')})
    {
        const Converted converted = convert(value_type_string, text);
        EXPECT_EQ(converted.code, 0) << toUtf8(text);
        EXPECT_EQ(converted.value.kind(), 13) << toUtf8(text);
        EXPECT_STREQ(converted.value.get<const wchar_t*>(), text.c_str());
    }
}

TEST(ConversionOfOtherTypes, BooleanTakesFourTexts)
{
    const struct
    {
        const wchar_t* text;
        bool expected;
    } rows[] = {{L"1", true}, {L"true", true}, {L"0", false}, {L"false", false}};
    for (const auto& row : rows)
    {
        const Converted converted = convertPositional(value_type_boolean, row.text);
        EXPECT_EQ(converted.code, 0) << toUtf8(row.text);
        ASSERT_EQ(converted.value.kind(), 0) << toUtf8(row.text);
        EXPECT_EQ(converted.value.get<bool>(), row.expected) << toUtf8(row.text);
    }
}

TEST(ConversionOfOtherTypes, BooleanRefusesAnyOtherText)
{
    for (const std::wstring text : {L"True", L"TRUE", L"False", L"yes", L"no", L"on", L"2", L"00",
                                    L"01", L"-1", L" 1", L"1 ", L"tru", L"truee", L"\uFF11"})
    {
        const Converted converted = convertPositional(value_type_boolean, text);
        EXPECT_EQ(converted.code, 2) << toUtf8(text);
        EXPECT_EQ(converted.message, refusal(L"undefined", text, text)) << toUtf8(text);
        EXPECT_FALSE(converted.stored) << toUtf8(text);
    }
}

TEST(ConversionOfOtherTypes, OtherTypeNumbersConvertNothing)
{
    for (const std::int32_t type : {-1, 1, 5, 10, 12, 14, 15, 16, 17, 18, 99})
    {
        const Converted converted = convertPositional(type, L"1");
        EXPECT_EQ(converted.code, 2) << type;
        EXPECT_EQ(converted.message, refusal(L"", L"1", L"1")) << type;
        EXPECT_FALSE(converted.stored) << type;
    }
}

TEST(ConversionOfOtherTypes, RefusalNamesTheDisplayNameOfTheType)
{
    const struct
    {
        std::int32_t type;
        const wchar_t* message;
    } rows[] = {
        {value_type_boolean,
         L"Value validation problem in argument 'abc': Option 'out' can not parse 'abc' value, "
         L"requires a type 'undefined' here."},
        {value_type_integer,
         L"Value validation problem in argument 'abc': Option 'out' can not parse 'abc' value, "
         L"requires a type 'integer' here."},
        {value_type_unsigned,
         L"Value validation problem in argument 'abc': Option 'out' can not parse 'abc' value, "
         L"requires a type 'unsigned integer' here."},
        {value_type_integer64,
         L"Value validation problem in argument 'abc': Option 'out' can not parse 'abc' value, "
         L"requires a type '64 bit integer' here."},
        {value_type_unsigned64,
         L"Value validation problem in argument 'abc': Option 'out' can not parse 'abc' value, "
         L"requires a type 'unsigned 64 bit or hex' here."},
        {value_type_double,
         L"Value validation problem in argument 'abc': Option 'out' can not parse 'abc' value, "
         L"requires a type 'double' here."},
        {value_type_none,
         L"Value validation problem in argument 'abc': Option 'out' can not parse 'abc' value, "
         L"requires a type '' here."},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(convertPositional(row.type, L"abc").message, row.message) << row.type;
    }
}

TEST(ConversionOfOtherTypes, RefusalNamesThePrimaryNameAndTheWholeArgument)
{
    Host host;
    host.addOption(L"count,c", value_type_integer);
    EXPECT_EQ(host.parse({L"-c=abc"}), 2);
    EXPECT_EQ(host.message(), L"Value validation problem in argument '-c=abc': Option 'count' can "
                              L"not parse 'abc' value, requires a type 'integer' here.");
    EXPECT_EQ(host.parse({L"\u2014count", L"12x"}), 2);
    EXPECT_EQ(host.message(), L"Value validation problem in argument '\u2014count': Option 'count' "
                              L"can not parse '12x' value, requires a type 'integer' here.");
}

} // namespace
