#include "TraceLines.h"

namespace toolbox
{

Lines linesOf(const std::string& text)
{
    Lines lines;
    std::size_t start = 0;
    while (start < text.size())
    {
        const std::size_t end = text.find('\n', start);
        if (end == std::string::npos)
        {
            lines.push_back(text.substr(start) + "<no line end>");
            break;
        }
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

Lines joined(std::initializer_list<Lines> parts)
{
    Lines all;
    for (const Lines& part : parts)
    {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

Lines traceOf(Host& host, std::initializer_list<const wchar_t*> arguments, int code)
{
    std::vector<const wchar_t*> all{trace_keyword};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return linesOf(
        captureOutput([&] { EXPECT_EQ(parse(host.parser(), all, &host.result()), code); }));
}

Lines linesOfIgnored(const std::string& argument)
{
    return {"PositionalOptionsParser: recognizing argument '" + argument + "'",
            "AbbreviationParser: recognizing argument '" + argument + "'", "ignoring " + argument};
}

} // namespace toolbox
