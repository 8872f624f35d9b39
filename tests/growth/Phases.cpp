// Parses command lines of growing size, each between two calls of growth_boundary(). Prints one
// line for each: its style, the number of options and the number of arguments. Each line stands for
// two phases: the preparation and the parse.
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "SizedCommandLines.h"

extern "C" void growth_boundary();

namespace
{

struct Kind
{
    const char* name;
    Style style;
};

constexpr Kind kinds[] = {
    {"full-names", Style::fullNames},         {"abbreviations", Style::abbreviations},
    {"next-arguments", Style::nextArguments}, {"positional", Style::positional},
    {"left-over", Style::leftOver},           {"unknown", Style::unknown},
    {"list-pieces", Style::listPieces},       {"allowed-values", Style::allowedValues}};

bool runPhase(const Kind& kind, std::size_t options, std::size_t arguments)
{
    const CommandLine line(kind.style, options, arguments);
    static_cast<void>(line.parse()); // prepares what is created once
    std::size_t values = 0;
    growth_boundary();
    {
        const ResultPointer result = line.parse();
        values = line.countValues(*result);
    }
    growth_boundary();
    std::printf("%s %zu %zu\n", kind.name, options, arguments);
    return values == line.expectedValues();
}

} // namespace

int main()
{
    constexpr std::size_t few = 32;
    constexpr std::size_t many = 1024;
    constexpr std::size_t smallest = 256;
    bool right = true;
    try
    {
        for (const Kind& kind : kinds)
        {
            for (const std::size_t arguments : {smallest, 2 * smallest, 4 * smallest})
            {
                right = runPhase(kind, few, arguments) && right;
            }
            right = runPhase(kind, many, 4 * smallest) && right;
        }
    }
    catch (const std::exception& error)
    {
        std::printf("%s\n", error.what());
        return EXIT_FAILURE;
    }
    return right ? EXIT_SUCCESS : EXIT_FAILURE;
}
