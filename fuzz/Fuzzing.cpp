#include "Fuzzing.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "NaiveUtf8.h"

namespace fuzzing
{

namespace
{

std::string escaped(const std::wstring& text)
{
    std::string out;
    for (const wchar_t character : text)
    {
        const auto code = static_cast<unsigned>(character);
        if (code == '\n' || (code >= 0x20 && code < 0x7F))
        {
            out.push_back(static_cast<char>(code));
            continue;
        }
        char buffer[16];
        std::snprintf(buffer, sizeof(buffer), "\\x%X;", code);
        out += buffer;
    }
    return out;
}

} // namespace

void require(bool condition, const char* rule)
{
    if (!condition)
    {
        std::fprintf(stderr, "Rule broken: %s\n", rule);
        std::abort();
    }
}

void requireEqual(const std::wstring& actual, const std::wstring& expected, const char* rule)
{
    if (actual != expected)
    {
        std::fprintf(stderr, "actual:\n%s\nexpected:\n%s\n", escaped(actual).c_str(),
                     escaped(expected).c_str());
        require(false, rule);
    }
}

std::vector<std::wstring> linesOf(const std::uint8_t* data, std::size_t size)
{
    std::string bytes(data, data + size);
    std::replace(bytes.begin(), bytes.end(), '\0', '?');
    std::wstring text = naive::decodeUtf8(bytes);
    std::vector<std::wstring> lines;
    while (!text.empty())
    {
        lines.push_back(takeUpTo(text, L'\n'));
    }
    return lines;
}

std::wstring takeUpTo(std::wstring& text, wchar_t separator)
{
    const std::size_t end = std::min(text.find(separator), text.size());
    std::wstring taken = text.substr(0, end);
    text.erase(0, std::min(end + 1, text.size()));
    return taken;
}

} // namespace fuzzing
