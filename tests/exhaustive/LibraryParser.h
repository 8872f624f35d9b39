// The library under the same questions as the naive implementation, and the two side by side.
#ifndef NAIVE_LIBRARY_PARSER_H
#define NAIVE_LIBRARY_PARSER_H

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "kexa/parser.h"
#include "NaiveParser.h"
#include "Outcome.h"

namespace naive
{

struct Releaser
{
    template <class Released>
    void operator()(Released* object) const
    {
        object->release();
    }
};

using ParserPointer = std::unique_ptr<kexa_3_3::IParser, Releaser>;

// Learns which number the next converted value gets, at the cost of one number.
class NumberProbe
{
public:
    NumberProbe();
    std::int32_t takeNumber();

private:
    ParserPointer m_parser;
};

class RuleHandler;

// How a parse is asked for.
struct ParseCall
{
    Arguments arguments;
    bool asCommandLine = false; // joined to a text with one argument in each line
    bool storing = true;        // false: with a null result
    Questions questions = Questions::wholeRange;
};

// A parser of the library and the naive one with the same declarations, flags and handlers, kept
// over many parses.
class Comparison
{
public:
    Comparison(const Declarations& declarations, std::int32_t flags,
               const std::vector<HandlerRule>& handlers);
    ~Comparison();
    Comparison(const Comparison&) = delete;
    Comparison& operator=(const Comparison&) = delete;

    // Parses with both. Whether they agree; either way expected() and actual() tell what each did.
    bool agree(const ParseCall& call);

    const Outcome& expected() const { return m_expected; }
    const Outcome& actual() const { return m_actual; }

private:
    Outcome predict(const ParseCall& call);
    Outcome observe(const ParseCall& call);

    std::vector<HandlerRule> m_rules;
    Parser m_naive;
    std::vector<std::wstring> m_names;
    ParserPointer m_parser;
    std::vector<RuleHandler> m_handlers; // contiguous, so in the order of their addresses
    std::vector<Event> m_events;
    NumberProbe m_probe;
    std::int32_t m_nextNumber;
    Outcome m_expected;
    Outcome m_actual;
};

} // namespace naive

#endif
