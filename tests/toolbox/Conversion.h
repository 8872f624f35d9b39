// One text converted to a value type, as an option of that type takes it from the command line.
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
    std::wstring message;     // of the parse
    vexkit2::variant_t value; // null where nothing was stored
    bool stored;              // whether the result knows the option
};

// Gives "--out=TEXT" to an option "out" of the type, whose values are not cut.
Converted convert(std::int32_t valueType, const std::wstring& text);

// Gives TEXT as a positional argument to an option "out" of the type. This is how a text reaches
// types that take none behind "=".
Converted convertPositional(std::int32_t valueType, const std::wstring& text);

// The message of a text that does not convert.
// typeName: the display name of the type. argument: the whole argument that holds the text.
std::wstring refusal(const std::wstring& typeName, const std::wstring& text,
                     const std::wstring& argument);

// A text and the value that it gives, none where it does not convert.
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
