// A second implementation of parsing, which predicts the results of the library. It is deliberately
// naive: it compares every argument with every name, erases arguments from the front of a vector
// and copies everything that it keeps. It shares only the public variant with the library.
#ifndef NAIVE_PARSER_H
#define NAIVE_PARSER_H

#include <cstdint>
#include <string>
#include <vector>

#include "NaiveDeclarations.h"
#include "NaiveRegistry.h"
#include "NaiveResult.h"
#include "NaiveRun.h"

namespace naive
{

// The outcome of one parse, before the result is queried.
struct Parsed
{
    std::int32_t code = 0;
    std::wstring message; // empty if the code is 0
    Result result;
    std::vector<Event> events;
    std::int32_t nextPosition = 0; // of the next converted value
};

class Parser
{
public:
    Parser(const Declarations& declarations, std::int32_t flags);

    const Registry& registry() const { return m_registry; }

    // Parses like IParser::parse().
    //
    // arguments:   without the name of the program.
    // firstPosition: the position of the first converted value.
    // storing:     false: parses with a null result.
    Parsed parse(const Arguments& arguments, const std::vector<HandlerRule>& handlers,
                 std::int32_t firstPosition, bool storing = true) const;

    // Parses like IParser::parseCommandLine(): a text with one argument in each line.
    Parsed parseCommandLine(const std::wstring& commandLine,
                            const std::vector<HandlerRule>& handlers, std::int32_t firstPosition,
                            bool storing = true) const;

private:
    void parseInto(Parsed& parsed, const Arguments& arguments,
                   const std::vector<HandlerRule>& handlers, bool storing) const;

    Registry m_registry;
    std::int32_t m_flags;
};

// Returns the arguments of a text with one argument in each line.
Arguments splitLines(const std::wstring& text);

} // namespace naive

#endif
