#include "filesum/CheckFile.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <optional>

#include "filesum/Names.h"

namespace filesum
{

namespace
{

// Returns the text before the separator, and removes both from the front. Takes the whole text if
// it has no separator.
std::string_view takeUntil(std::string_view& text, char separator)
{
    const std::size_t end = text.find(separator);
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return part;
}

template <class Number>
bool parseNumber(std::string_view text, int base, Number& number)
{
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number, base);
    return error == std::errc() && stopped == end;
}

std::string parseSums(std::string_view text, std::vector<Checksum>& sums)
{
    while (!text.empty())
    {
        std::string_view digits = takeUntil(text, ',');
        const std::string_view name = takeUntil(digits, '=');
        const std::optional<Algorithm> algorithm = algorithmNamed(name);
        std::uint32_t value = 0;
        if (!algorithm)
        {
            return "unknown algorithm " + quotedExcerpt(name);
        }
        if (digits.size() != 8 || !parseNumber(digits, 16, value))
        {
            return quotedExcerpt(digits) + " is no checksum of eight hexadecimal digits";
        }
        sums.push_back({*algorithm, value});
    }
    return sums.empty() ? "no checksum" : "";
}

} // namespace

std::string formatCheckLine(const CheckLine& line)
{
    std::string text;
    for (const Checksum& sum : line.sums)
    {
        std::array<char, 9> digits = {};
        std::snprintf(digits.data(), digits.size(), "%08lx", static_cast<unsigned long>(sum.value));
        text += text.empty() ? "" : ",";
        text += std::string(nameOf(sum.algorithm)) + "=" + digits.data();
    }
    return text + " " + std::to_string(line.size) + " " + escapedName(line.name);
}

std::string parseCheckLine(std::string_view text, CheckLine& line)
{
    line = CheckLine();
    const std::string problem = parseSums(takeUntil(text, ' '), line.sums);
    if (!problem.empty())
    {
        return problem;
    }
    const std::string_view size = takeUntil(text, ' ');
    if (!parseNumber(size, 10, line.size))
    {
        return quotedExcerpt(size) + " is no size";
    }
    const std::optional<std::string> name = unescapedName(text);
    if (!name)
    {
        return "a backslash is not followed by another one, 'n' or 'r'";
    }
    if (name->empty())
    {
        return "no file name";
    }
    line.name = *name;
    return "";
}

} // namespace filesum
