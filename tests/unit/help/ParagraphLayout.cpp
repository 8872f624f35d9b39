// Tests of the layout of paragraphs, mainly against a naive reference implementation.
#include "help/ParagraphLayout.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "TextPrinting.h"

namespace
{

using kexa_3_3::appendParagraph;
using toolbox::toUtf8;

const std::wstring out_of_range = L"out of range";

// Returns the text that appendParagraph() appends, or `out_of_range` if it throws. Text that is in
// the output before must stay unchanged.
std::wstring layOut(const std::wstring& lead, const std::wstring& text, std::size_t indent,
                    std::size_t lineWidth)
{
    std::wstring out = L"before";
    try
    {
        appendParagraph(out, lead, text, indent, lineWidth);
    }
    catch (const std::out_of_range&)
    {
        return out_of_range;
    }
    EXPECT_EQ(out.substr(0, 6), L"before");
    return out.substr(6);
}

// Removes the next piece from the text and returns it. room: the most characters that it may have.
std::wstring takeChunk(std::wstring& text, std::size_t room)
{
    std::size_t length = std::min(text.find(L'\n'), room);
    std::wstring chunk = text.substr(0, length);
    length = chunk.size();
    if (text.size() > length && text[length] != L' ' && chunk.at(length - 1) != L' ' &&
        text[length] != L'\n')
    {
        const std::size_t blank = text.rfind(L' ', length);
        chunk = blank == std::wstring::npos ? text : text.substr(0, blank);
    }
    chunk = chunk.substr(0, std::min(chunk.size(), room));
    text.erase(0, chunk.size());
    return chunk;
}

// The reference implementation of appendParagraph().
std::wstring layOutByReference(const std::wstring& lead, std::wstring text, std::size_t indent,
                               std::size_t lineWidth)
{
    std::wstring out;
    if (text.empty())
    {
        return out;
    }
    if (lineWidth <= indent)
    {
        return out_of_range;
    }
    const std::size_t width = lineWidth - indent;
    const std::size_t lastColumn = indent + width - 1;
    std::wstring line = lead;
    for (std::size_t steps = 0; !text.empty(); ++steps)
    {
        if (steps > 1000)
        {
            return out_of_range; // an endless loop
        }
        if (text[0] == L' ' || text[0] == L'\n')
        {
            text.erase(0, 1);
            if (!text.empty())
            {
                continue;
            }
        }
        std::size_t room = width - 1;
        if (line.size() >= indent)
        {
            if (width - 1 <= line.size() - indent + 1)
            {
                out += line + L"\n";
                line.clear();
                continue;
            }
            room = lastColumn - line.size() - 1;
            line += L' ';
        }
        else
        {
            line.append(indent - line.size(), L' ');
        }
        try
        {
            line += takeChunk(text, room);
        }
        catch (const std::out_of_range&)
        {
            return out_of_range;
        }
        out += line + L"\n";
        line.clear();
    }
    return out;
}

// Returns every text of at most `longest` characters over the alphabet.
std::vector<std::wstring> allTexts(const std::wstring& alphabet, std::size_t longest)
{
    std::vector<std::wstring> texts = {L""};
    for (std::size_t first = 0, length = 1; length <= longest; ++length)
    {
        const std::size_t end = texts.size();
        for (; first < end; ++first)
        {
            for (const wchar_t character : alphabet)
            {
                texts.push_back(texts[first] + character);
            }
        }
    }
    return texts;
}

// Compares the layout with the reference for every combination of the arguments.
void expectReferenceLayout(const std::vector<std::wstring>& leads,
                           const std::vector<std::wstring>& texts, std::size_t widestIndent,
                           std::size_t widestLine)
{
    for (std::size_t indent = 0; indent <= widestIndent; ++indent)
    {
        for (std::size_t lineWidth = 0; lineWidth <= widestLine; ++lineWidth)
        {
            for (const std::wstring& lead : leads)
            {
                for (const std::wstring& text : texts)
                {
                    ASSERT_EQ(layOut(lead, text, indent, lineWidth),
                              layOutByReference(lead, text, indent, lineWidth))
                        << '"' << toUtf8(lead) << "\", \"" << toUtf8(text) << "\", " << indent
                        << ", " << lineWidth;
                }
            }
        }
    }
}

TEST(ParagraphLayout, EveryShortTextMatchesTheReference)
{
    expectReferenceLayout({L"", L"-"}, allTexts(L"a \n", 5), 2, 6);
}

TEST(ParagraphLayout, EveryShortLeadMatchesTheReference)
{
    expectReferenceLayout(allTexts(L"- \n", 3),
                          {L"", L"a", L" ", L"\n", L"a b", L"abcdef gh", L"a\n\nb "}, 3, 8);
}

TEST(ParagraphLayout, LongTextMatchesTheReference)
{
    const std::wstring text = L"The quick brown fox,\n  jumps over  the lazy dog. \n\nSupercali "
                              L"fragilisticexpialidocious ";
    expectReferenceLayout({L"", L"-name", L"-a-longer-name=<string>"}, {text}, 12, 40);
}

TEST(ParagraphLayout, EmptyTextAppendsNothing)
{
    EXPECT_EQ(layOut(L"lead", L"", 4, 10), L"");
    EXPECT_EQ(layOut(L"lead", L"", 4, 0), L"");
}

TEST(ParagraphLayout, SurrogatePairIsNotSplit)
{
    const bool utf16 = sizeof(wchar_t) == 2;
    EXPECT_EQ(layOut(L"", L"aa\U0001F600\U0001F601b", 1, 5),
              utf16 ? L" aa\n \U0001F600\n \U0001F601b\n" : L" aa\U0001F600\n \U0001F601b\n");
    // A line with room for one unit must split the pair.
    if (utf16)
    {
        EXPECT_EQ(layOut(L"", L"\U0001F600", 1, 3),
                  std::wstring(L" ") + wchar_t(0xD83D) + L"\n " + wchar_t(0xDE00) + L"\n");
    }
}

} // namespace
