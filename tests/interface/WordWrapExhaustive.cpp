// Compares the layout with a naive step-by-step implementation, for all small inputs.
#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace toolbox;

// The variables of the loop.
struct State
{
    std::wstring out;
    std::wstring line;
    std::wstring text;

    void endLine()
    {
        out += line + L"\n";
        line.clear();
    }
};

std::wstring takeChunk(const std::wstring& text, std::size_t room)
{
    const std::size_t lineFeed = text.find(L'\n');
    std::wstring chunk = text.substr(0, std::min(lineFeed, room));
    const std::size_t length = chunk.size();
    if (text.size() > length && text.at(length) != L' ')
    {
        const wchar_t last = chunk.at(length - 1); // throws where there is no room
        if (last != L' ' && text.at(length) != L'\n')
        {
            const std::size_t blank = text.rfind(L' ', length);
            chunk = blank == std::wstring::npos ? text : text.substr(0, blank);
        }
    }
    return chunk.substr(0, room);
}

std::wstring naive(const std::wstring& lead, const std::wstring& text, long indent, long lineWidth)
{
    State state = {L"", lead, text};
    const long width = lineWidth - indent;
    const long lastColumn = indent + width - 1;
    if (!text.empty() && width <= 0)
    {
        throw std::out_of_range("no column");
    }
    while (!state.text.empty())
    {
        // A pass that removes nothing from the text, with an empty line, would repeat for ever.
        const std::size_t textBefore = state.text.size();
        const std::size_t lineBefore = state.line.size();
        if (state.text[0] == L' ' || state.text[0] == L'\n')
        {
            state.text.erase(0, 1);
            if (!state.text.empty())
            {
                continue;
            }
        }
        const long length = static_cast<long>(state.line.size());
        long room = width - 1;
        if (length >= indent)
        {
            if (width - 1 > length - indent + 1)
            {
                room = lastColumn - length - 1;
                state.line += L' ';
            }
            else
            {
                state.endLine();
                if (state.text.empty())
                {
                    break;
                }
                if (state.text.size() == textBefore && lineBefore == 0)
                {
                    throw std::out_of_range("no progress");
                }
                continue;
            }
        }
        else
        {
            state.line.append(static_cast<std::size_t>(indent - length), L' ');
        }
        const std::wstring chunk = takeChunk(state.text, static_cast<std::size_t>(room));
        state.line += chunk;
        state.text.erase(0, chunk.size());
        state.endLine();
    }
    return state.out;
}

// The text, or none for std::out_of_range.
template <class Layout>
std::optional<std::wstring> outcome(Layout layout)
{
    try
    {
        return layout();
    }
    catch (const std::out_of_range&)
    {
        return std::nullopt;
    }
}

std::string show(const std::optional<std::wstring>& text)
{
    return text.has_value() ? "'" + toUtf8(*text) + "'" : "out of range";
}

// All texts over the alphabet, from the empty one to those of the longest length.
std::vector<std::wstring> textsUpTo(std::size_t longest, const std::wstring& alphabet)
{
    std::vector<std::wstring> texts{L""};
    std::size_t begin = 0;
    for (std::size_t length = 1; length <= longest; ++length)
    {
        const std::size_t end = texts.size();
        for (; begin < end; ++begin)
        {
            for (const wchar_t character : alphabet)
            {
                texts.push_back(texts[begin] + character);
            }
        }
    }
    return texts;
}

// Compares every combination and returns their number.
std::size_t compareAll(const std::vector<std::wstring>& leads,
                       const std::vector<std::wstring>& texts, long widest)
{
    std::size_t count = 0;
    for (const std::wstring& lead : leads)
    {
        for (const std::wstring& text : texts)
        {
            for (long indent = 0; indent <= 4; ++indent)
            {
                for (long width = 0; width <= widest; ++width, ++count)
                {
                    const auto expected = outcome([&] { return naive(lead, text, indent, width); });
                    const auto actual = outcome(
                        [&]
                        {
                            return std::wstring(
                                kexa_3_3::WordWrappedText(lead.c_str(), text.c_str(),
                                                          static_cast<std::size_t>(indent),
                                                          static_cast<std::size_t>(width))
                                    .getText());
                        });
                    if (actual != expected)
                    {
                        ADD_FAILURE() << "lead '" << toUtf8(lead) << "', text '" << toUtf8(text)
                                      << "', indent " << indent << ", width " << width << ": "
                                      << show(actual) << " instead of " << show(expected);
                        return count;
                    }
                }
            }
        }
    }
    return count;
}

TEST(WordWrapExhaustive, AllShortTextsAreLaidOutStepByStep)
{
    EXPECT_EQ(compareAll({L"", L"-xyz"}, textsUpTo(6, L"a \n"), 8), std::size_t{2 * 1093 * 5 * 9});
    EXPECT_EQ(compareAll({L"-", L"-x", L"-xyzuv", L"-xyzuvw"}, textsUpTo(4, L"a \n"), 8),
              std::size_t{4 * 121 * 5 * 9});
}

TEST(WordWrapExhaustive, AllShortLeadsAreLaidOutStepByStep)
{
    EXPECT_EQ(compareAll(textsUpTo(6, L"l "), {L"a", L" ", L"ab\ncd ", L"abcdefghij"}, 8),
              std::size_t{127 * 4 * 5 * 9});
    EXPECT_EQ(compareAll(textsUpTo(4, L"l \n"), {L"a b"}, 8), std::size_t{121 * 5 * 9});
}

TEST(WordWrapExhaustive, LongerTextsOfWordsAreLaidOutStepByStep)
{
    const std::vector<std::wstring> words = {L"a", L"bb", L"ccc", L"ddddd", L" ", L"\n", L" \n"};
    std::vector<std::wstring> texts;
    for (std::size_t first = 0; first < words.size(); ++first)
    {
        for (const std::wstring& second : words)
        {
            for (const std::wstring& third : words)
            {
                texts.push_back(words[first] + L" " + second + L" " + third + L" " + words[first]);
            }
        }
    }
    EXPECT_EQ(compareAll({L"", L"-lead", L"-a longer lead"}, texts, 16),
              std::size_t{3 * 343 * 5 * 17});
}

} // namespace
