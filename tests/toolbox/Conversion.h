// Converts a text to a value type, as a parse does for an option of that type.
#ifndef KEXA_TESTS_TOOLBOX_CONVERSION_H
#define KEXA_TESTS_TOOLBOX_CONVERSION_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Host.h"

namespace toolbox
{

struct Converted
{
    kexa_3_3::result_t code;
    std::wstring message;     // error message of the parse
    vexkit2::variant_t value; // kind 17 (null) if nothing was stored
    bool stored;              // whether the result holds the option
};

// Parses "--out=TEXT" for an option "out" of the type, without a separator.
Converted convert(std::int32_t valueType, const std::wstring& text);

// Parses TEXT as a positional argument of the option "out". Types that take no value after "=" can
// be tested only this way.
Converted convertPositional(std::int32_t valueType, const std::wstring& text);

// The message for a text that does not convert.
// typeName: display name of the type. argument: the whole argument with the text.
std::wstring refusal(const std::wstring& typeName, const std::wstring& text,
                     const std::wstring& argument);

// A text and its value, or no value if it does not convert.
template <class T>
struct ConversionRow
{
    std::wstring text;
    std::optional<T> expected;
};

template <class T>
void expectConversions(std::int32_t valueType, const std::wstring& typeName,
                       const std::vector<ConversionRow<T>>& rows)
{
    for (const ConversionRow<T>& row : rows)
    {
        SCOPED_TRACE("text '" + toUtf8(row.text) + "'");
        const Converted converted = convert(valueType, row.text);
        if (row.expected.has_value())
        {
            EXPECT_EQ(converted.code, 0);
            EXPECT_EQ(converted.message, L"");
            EXPECT_EQ(converted.value.kind(), valueType);
            EXPECT_TRUE(converted.value.can_get<T>() && converted.value.get<T>() == *row.expected);
        }
        else
        {
            EXPECT_EQ(converted.code, 2);
            EXPECT_EQ(converted.message, refusal(typeName, row.text, L"--out=" + row.text));
            EXPECT_FALSE(converted.stored);
        }
    }
}

} // namespace toolbox

#endif
