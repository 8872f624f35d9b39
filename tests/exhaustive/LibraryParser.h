// Parses with the library and with the naive implementation, and compares the outcomes.
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

// Finds the position that the next converted value gets, by converting a value itself.
class PositionProbe
{
public:
    PositionProbe();

    // Returns the position of the value that it converts. The next value gets the position after
    // it.
    std::int32_t takePosition();

private:
    ParserPointer m_parser;
};

class RuleHandler;

// One parse: its arguments, how they are passed, and what to query afterwards.
struct ParseCall
{
    Arguments arguments;
    bool asCommandLine = false; // joined to a text with one argument in each line
    bool storing = true;        // false: with a null result
    QueryRanges ranges = QueryRanges::wholeRange;
};

// A parser of the library and a naive parser with equal declarations, flags and handlers. Both are
// used for many parses.
class Comparison
{
public:
    Comparison(const Declarations& declarations, std::int32_t flags,
               const std::vector<HandlerRule>& handlers);
    ~Comparison();
    Comparison(const Comparison&) = delete;
    Comparison& operator=(const Comparison&) = delete;

    // Parses with both and returns whether the outcomes are equal. Afterwards expected() is the
    // outcome of the naive parser, and actual() that of the library.
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
    std::vector<RuleHandler>
        m_handlers; // contiguous: handlers are called in the order of their addresses
    std::vector<Event> m_events;
    PositionProbe m_probe;
    std::int32_t m_nextPosition;
    Outcome m_expected;
    Outcome m_actual;
};

} // namespace naive

#endif
