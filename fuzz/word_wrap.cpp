// Fuzzes word wrap: lines keep the width, no word is lost, and the layout is that of a naive
// reference.
//
// The first three bytes of an input are the indentation, the line width and the length of the lead.
#include <algorithm>
#include <stdexcept>
#include <string>

#include "Fuzzing.h"
#include "kexa/word_wrapped_text.h"
#include "NaiveUtf8.h"

namespace
{

struct Paragraph
{
    std::wstring lead;
    std::wstring text;
    std::size_t indent = 0;
    std::size_t lineWidth = 0;
};

bool isHighSurrogate(wchar_t character)
{
    return character >= 0xD800 && character <= 0xDBFF;
}

// Returns how many characters of the text go on a line with room for `room` characters.
std::size_t takeChunk(const std::wstring& text, std::size_t room)
{
    std::size_t length = std::min({text.size(), text.find(L'\n'), room});
    if (length < text.size() && text[length] != L' ' && text[length] != L'\n')
    {
        if (length == 0)
        {
            throw std::out_of_range("no room");
        }
        if (text[length - 1] != L' ')
        {
            const std::size_t blank = text.rfind(L' ', length);
            length = blank == std::wstring::npos ? text.size() : blank;
        }
    }
    if (length > room)
    {
        length = room;
        const bool pair = sizeof(wchar_t) == 2 && length > 1 && length < text.size() &&
                          isHighSurrogate(text[length - 1]);
        length -= pair ? 1 : 0;
    }
    return length;
}

// The reference: builds each line separately and erases its text from the front.
std::wstring layOut(const Paragraph& paragraph)
{
    const std::size_t indent = paragraph.indent;
    std::wstring out;
    std::wstring line = paragraph.lead;
    std::wstring text = paragraph.text;
    if (!text.empty() && paragraph.lineWidth <= indent)
    {
        throw std::out_of_range("no room");
    }
    const std::size_t width = paragraph.lineWidth - indent;
    while (!text.empty())
    {
        if (text.front() == L' ' || text.front() == L'\n')
        {
            text.erase(0, 1);
            if (!text.empty())
            {
                continue;
            }
        }
        std::size_t room = width - 1;
        if (line.size() < indent)
        {
            line.resize(indent, L' ');
        }
        else if (width - 1 > line.size() - indent + 1)
        {
            room = indent + width - 1 - line.size() - 1;
            line += L' ';
        }
        else
        {
            if (line.empty() && !text.empty())
            {
                throw std::out_of_range("no room");
            }
            out += line + L'\n';
            line.clear();
            continue;
        }
        const std::size_t length = takeChunk(text, room);
        out += line + text.substr(0, length) + L'\n';
        text.erase(0, length);
        line.clear();
    }
    return out;
}

std::wstring withoutBlanks(std::wstring text)
{
    text.erase(std::remove_if(text.begin(), text.end(),
                              [](wchar_t character)
                              { return character == L' ' || character == L'\n'; }),
               text.end());
    return text;
}

void checkLines(const Paragraph& paragraph, std::wstring text)
{
    bool first = true;
    while (!text.empty())
    {
        const std::wstring line = fuzzing::takeUpTo(text, L'\n');
        const bool isLead = first && line == paragraph.lead;
        fuzzing::require(isLead || line.size() < paragraph.lineWidth, "a line keeps the width");
        first = false;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 3)
    {
        return 0;
    }
    std::string bytes(data + 3, data + size);
    std::replace(bytes.begin(), bytes.end(), '\0', '?');
    std::wstring text = naive::decodeUtf8(bytes);
    Paragraph paragraph;
    paragraph.indent = data[0] % 64;
    paragraph.lineWidth = data[1] % 128;
    paragraph.lead = text.substr(0, data[2]);
    paragraph.text = text.substr(paragraph.lead.size());
    // A line feed in the lead would add lines, which checkLines() would take for wrapped ones.
    std::replace(paragraph.lead.begin(), paragraph.lead.end(), L'\n', L' ');

    std::wstring actual;
    bool thrown = false;
    try
    {
        actual = kexa_3_3::WordWrappedText(paragraph.lead.c_str(), paragraph.text.c_str(),
                                           paragraph.indent, paragraph.lineWidth)
                     .getText();
    }
    catch (const std::out_of_range&)
    {
        thrown = true;
    }
    try
    {
        const std::wstring expected = layOut(paragraph);
        fuzzing::require(!thrown, "out_of_range is thrown only if no character fits");
        fuzzing::requireEqual(actual, expected, "the layout is that of the reference");
        checkLines(paragraph, actual);
        fuzzing::requireEqual(withoutBlanks(actual),
                              paragraph.text.empty()
                                  ? std::wstring()
                                  : withoutBlanks(paragraph.lead + paragraph.text),
                              "no word is lost");
    }
    catch (const std::out_of_range&)
    {
        fuzzing::require(thrown, "out_of_range is thrown if no character fits");
    }
    return 0;
}
