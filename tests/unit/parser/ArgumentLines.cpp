// Splitting a text into lines, each of which is an argument.
#include "parser/ArgumentLines.h"

#include <functional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "support/text/Utf8.h"

#include "GivenArguments.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::ArgumentQueue;
using kexa_3_3::ArgumentSource;
using kexa_3_3::Utf8Lines;
using kexa_3_3::wideFromUtf8;
using kexa_3_3::WideLines;
using toolbox::toUtf8;

using Texts = std::vector<std::wstring>;

Texts allOf(ArgumentSource& lines)
{
    Texts texts;
    std::wstring_view argument;
    while (lines.next(argument))
    {
        texts.emplace_back(argument);
    }
    EXPECT_FALSE(lines.next(argument)); // also at the end of the text, any number of times
    return texts;
}

Texts linesOf(std::wstring_view text)
{
    WideLines lines(text);
    return allOf(lines);
}

Texts linesOf(std::string_view bytes)
{
    Utf8Lines lines(bytes);
    return allOf(lines);
}

TEST(ArgumentLines, LinesBecomeArguments)
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
        EXPECT_EQ(linesOf(row.text), row.arguments) << toUtf8(row.text);
        EXPECT_EQ(linesOf(toUtf8(row.text)), row.arguments) << toUtf8(row.text);
    }
}

TEST(ArgumentLines, CommentsAreSkipped)
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
        EXPECT_EQ(linesOf(row.text), row.arguments) << toUtf8(row.text);
        EXPECT_EQ(linesOf(toUtf8(row.text)), row.arguments) << toUtf8(row.text);
    }
}

TEST(WideLines, ArgumentsAreViewsIntoTheText)
{
    const std::wstring text = L" a\n b";
    WideLines lines(text);
    std::wstring_view argument;
    ASSERT_TRUE(lines.next(argument));
    EXPECT_EQ(argument.data(), text.data() + 1);
    ASSERT_TRUE(lines.next(argument));
    EXPECT_EQ(argument.data(), text.data() + 4);
}

// A naive implementation that reads the lines with std::getline.
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

// Calls the test with every text of up to `longest` letters of the alphabet.
template <class Text>
void forEveryText(const std::vector<Text>& alphabet, std::size_t longest,
                  const std::function<void(const Text&)>& test)
{
    std::size_t count = 1;
    for (std::size_t length = 0; length <= longest; ++length)
    {
        for (std::size_t number = 0; number < count; ++number)
        {
            Text text;
            for (std::size_t rest = number, position = 0; position < length; ++position)
            {
                text += alphabet[rest % alphabet.size()];
                rest /= alphabet.size();
            }
            test(text);
        }
        count *= alphabet.size();
    }
}

TEST(WideLines, EveryShortTextIsSplitAsAStreamReadsIt)
{
    forEveryText<std::wstring>({L"a", L" ", L"\n", L"\r", L";", L"#"}, 5,
                               [](const std::wstring& text)
                               { EXPECT_EQ(linesOf(text), splitByStream(text)) << toUtf8(text); });
}

// The alphabet holds a character of two bytes, its first byte alone, a byte that begins no
// sequence, and the no-break space, whose second byte alone is a space in Latin-1.
TEST(Utf8Lines, EveryShortTextGivesTheLinesOfTheDecodedText)
{
    forEveryText<std::string>({"\n", "\r", " ", ";", "#", "\xC3\xA9", "\xC3", "\xFF", "\xC2\xA0"},
                              5,
                              [](const std::string& bytes)
                              {
                                  const std::wstring decoded = wideFromUtf8(bytes);
                                  EXPECT_EQ(linesOf(bytes), linesOf(decoded)) << toUtf8(decoded);
                              });
}

TEST(Utf8Lines, PreviousLineStaysValid)
{
    Utf8Lines lines("first\nthe second, which is longer than any room there was\nx\n\nlast");
    std::wstring_view first;
    std::wstring_view second;
    ASSERT_TRUE(lines.next(first));
    ASSERT_TRUE(lines.next(second));
    EXPECT_EQ(first, L"first");
    EXPECT_EQ(second, L"the second, which is longer than any room there was");
    ASSERT_TRUE(lines.next(first));
    EXPECT_EQ(second, L"the second, which is longer than any room there was");
    EXPECT_EQ(first, L"x");
    ASSERT_TRUE(lines.next(second));
    EXPECT_EQ(first, L"x");
    EXPECT_EQ(second, L"last");
    std::wstring_view none;
    EXPECT_FALSE(lines.next(none)); // the two texts stay valid at the end
    EXPECT_EQ(first, L"x");
    EXPECT_EQ(second, L"last");
}

TEST(Utf8Lines, QueueHoldsTwoLinesAtOnce)
{
    std::string bytes;
    Texts expected;
    for (std::size_t length = 1; length < 200; length += 7)
    {
        bytes += std::string(length, 'a') + "\n\xC3\xA9\n";
        expected.emplace_back(length, L'a');
        expected.emplace_back(L"\u00E9");
    }
    Utf8Lines lines(bytes);
    ArgumentQueue queue(lines);
    for (std::size_t index = 0; index < expected.size(); ++index)
    {
        ASSERT_FALSE(queue.empty());
        ASSERT_EQ(queue.hasSecond(), index + 1 < expected.size());
        EXPECT_EQ(queue.front(), expected[index]);
        if (queue.hasSecond())
        {
            EXPECT_EQ(queue.second(), expected[index + 1]);
        }
        queue.removeFront();
    }
    EXPECT_TRUE(queue.empty());
}

} // namespace
