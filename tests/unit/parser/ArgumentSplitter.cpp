// One argument from each line.
#include "parser/ArgumentSplitter.h"

#include <sstream>
#include <string>
#include <vector>

#include "TextPrinting.h"

namespace
{

using kexa_3_3::splitArguments;
using toolbox::toUtf8;

using Texts = std::vector<std::wstring>;

Texts split(std::wstring_view text)
{
    const kexa_3_3::Arguments arguments = splitArguments(text);
    return Texts(arguments.begin(), arguments.end());
}

TEST(ArgumentSplitter, LinesBecomeArguments)
{
    const struct
    {
        std::wstring text;
        Texts arguments;
    } rows[] = {{L"", {}},
                {L"\n", {}},
                {L"a", {L"a"}},
                {L"a\n", {L"a"}},
                {L"a\nb", {L"a", L"b"}},
                {L"a\r\nb\r\n", {L"a", L"b"}},
                {L"\n\n a\n \n\t\n b \n\n", {L"a", L"b "}},
                {L"  --name value  ", {L"--name value  "}},
                {L"\t\v\f\r --name", {L"--name"}},
                {L"a\r\r\n", {L"a"}},
                {L"a \r\n", {L"a "}},
                {L"a\rb\n", {L"a\rb"}},
                {L"\r", {}},
                {L"a\n\r", {L"a"}},
                {L"\"a b\" 'c'\\", {L"\"a b\" 'c'\\"}},
                {L"\u00A0a", {L"\u00A0a"}},
                {L"\uFEFFa", {L"\uFEFFa"}},
                {L"\u2028a\u2028b", {L"\u2028a\u2028b"}},
                {std::wstring(L"a\0b\n\0", 5), {std::wstring(L"a\0b", 3), std::wstring(1, L'\0')}}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(split(row.text), row.arguments) << toUtf8(row.text);
    }
}

TEST(ArgumentSplitter, CommentsGiveNothing)
{
    const struct
    {
        const wchar_t* text;
        Texts arguments;
    } rows[] = {{L";", {}},
                {L"#", {}},
                {L"; a\n# b\n", {}},
                {L" \t; a\nb", {L"b"}},
                {L"#a\r\nb\r\n;c", {L"b"}},
                {L"a;b\nc # d", {L"a;b", L"c # d"}},
                {L"-;\n-#", {L"-;", L"-#"}},
                {L"//a", {L"//a"}}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(split(row.text), row.arguments) << toUtf8(row.text);
    }
}

TEST(ArgumentSplitter, ArgumentsAreViewsIntoTheText)
{
    const std::wstring text = L" a\n b";
    const kexa_3_3::Arguments arguments = splitArguments(text);
    ASSERT_EQ(arguments.size(), 2U);
    EXPECT_EQ(arguments[0].data(), text.data() + 1);
    EXPECT_EQ(arguments[1].data(), text.data() + 4);
}

// The same by a stream, line for line.
Texts splitByStream(const std::wstring& text)
{
    Texts arguments;
    std::wistringstream stream(text);
    std::wstring line;
    while (std::getline(stream, line))
    {
        line.erase(0, line.find_first_not_of(L" \t\n\v\f\r"));
        if (!line.empty() && (line[0] == L';' || line[0] == L'#'))
        {
            continue;
        }
        line.erase(line.find_last_not_of(L"\r\n") + 1);
        if (!line.empty())
        {
            arguments.push_back(line);
        }
    }
    return arguments;
}

TEST(ArgumentSplitter, EveryShortTextIsSplitAsAStreamReadsIt)
{
    const std::wstring alphabet = L"a \n\r;#";
    for (std::size_t length = 0; length <= 5; ++length)
    {
        std::size_t count = 1;
        for (std::size_t position = 0; position < length; ++position)
        {
            count *= alphabet.size();
        }
        for (std::size_t number = 0; number < count; ++number)
        {
            std::wstring text;
            for (std::size_t rest = number, position = 0; position < length; ++position)
            {
                text.push_back(alphabet[rest % alphabet.size()]);
                rest /= alphabet.size();
            }
            ASSERT_EQ(split(text), splitByStream(text)) << "number " << number;
        }
    }
}

} // namespace
