// Command lines of any size, with parsers for them.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <kexa/kexa.h>

struct Release
{
    template <class Interface>
    void operator()(Interface* object) const
    {
        object->release();
    }
};
using ParserPointer = std::unique_ptr<kexa_3_3::IParser, Release>;
using ResultPointer = std::unique_ptr<kexa_3_3::IParseResult, Release>;

// For example "option-00012-name" for 12.
std::wstring optionName(std::size_t number);
std::wstring optionAbbreviation(std::size_t number); // a unique prefix of the name

// Returns a parser with `count` options: booleans, integers and strings in turn.
ParserPointer declareOptions(std::size_t count);

ResultPointer makeResult(kexa_3_3::IParser& parser);

// The kind of arguments in a command line.
enum class Style
{
    fullNames,     // --option-00012-name=value
    abbreviations, // --option-00012=value
    nextArguments, // --option-00012-name value (two arguments)
    positional,    // value
    leftOver,      // value, after "--"
    unknown,       // --other-12=value, dropped
    listPieces,    // one argument with a list of values
    allowedValues  // --choice=full-or-abbreviated value
};

// A command line of one style, with a parser for it.
class CommandLine
{
public:
    // options: number of declared options, or allowed values. arguments: number of arguments.
    CommandLine(Style style, std::size_t options, std::size_t arguments);

    // Parses into a new result. Throws std::runtime_error if the parse fails.
    ResultPointer parse() const;

    // Returns the number of values and left-over arguments in a result.
    std::size_t countValues(kexa_3_3::IParseResult& result) const;

    // The number that countValues() must return.
    std::size_t expectedValues() const noexcept { return m_expectedValues; }

private:
    void addNamed(std::size_t options, std::size_t arguments, Style style);
    void addPlain(std::size_t arguments);
    void addList(std::size_t pieces);
    void addAllowed(std::size_t values, std::size_t arguments);

    ParserPointer m_parser;
    std::vector<std::wstring> m_names; // of the options to read
    std::vector<std::wstring> m_arguments;
    std::vector<const wchar_t*> m_vector;
    std::size_t m_expectedValues = 0;
};
