// A second, deliberately plain implementation of parsing: it walks every name for every argument,
// erases arguments from the front of a vector and copies what it keeps. It shares nothing with the
// library but the public variant, and predicts what the library must answer.
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

// What one parse leads to, before anything is asked of the result.
struct Parsed
{
    std::int32_t code = 0;
    std::wstring message; // empty where code is 0
    Result result;
    std::vector<Event> events;
    std::int32_t nextNumber = 0; // the number that the next converted value gets
};

class Parser
{
public:
    Parser(const Declarations& declarations, std::int32_t flags);

    const Registry& registry() const { return m_registry; }

    // Parses as with an argument vector; `arguments` does not hold the program's name.
    //
    // firstNumber: the number that the first converted value gets.
    // storing:     false parses with a null result.
    Parsed parse(const Arguments& arguments, const std::vector<HandlerRule>& handlers,
                 std::int32_t firstNumber, bool storing = true) const;

    // The same for a text with one argument in each line.
    Parsed parseCommandLine(const std::wstring& commandLine,
                            const std::vector<HandlerRule>& handlers, std::int32_t firstNumber,
                            bool storing = true) const;

private:
    void parseInto(Parsed& parsed, const Arguments& arguments,
                   const std::vector<HandlerRule>& handlers, bool storing) const;

    Registry m_registry;
    std::int32_t m_flags;
};

// The arguments that a text with one argument in each line holds.
Arguments splitLines(const std::wstring& text);

} // namespace naive

#endif
