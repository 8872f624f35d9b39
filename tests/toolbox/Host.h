// A host of the library: owners of its objects, parses, and functions that read a result.
#ifndef KEXA_TESTS_TOOLBOX_HOST_H
#define KEXA_TESTS_TOOLBOX_HOST_H

#include <cstdint>
#include <initializer_list>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <kexa/kexa.h>

#include "ConsoleCapture.h"
#include "RecordingHandler.h"
#include "TemporaryFolder.h"
#include "TextPrinting.h"

namespace toolbox
{

// Deletes an object of the library by its release operation.
struct Release
{
    template <class T>
    void operator()(T* object) const
    {
        object->release();
    }
};

using ParserOwner = std::unique_ptr<kexa_3_3::IParser, Release>;
using ResultOwner = std::unique_ptr<kexa_3_3::IParseResult, Release>;

// Returns a new parser, or a new result. Throws std::runtime_error if the library returns none.
ParserOwner createParser(int flags = 0);
ResultOwner createResult(kexa_3_3::IParser& parser);

// Parses the arguments after a program name. A null entry is passed on as it is.
kexa_3_3::result_t parse(kexa_3_3::IParser& parser, std::initializer_list<const wchar_t*> arguments,
                         kexa_3_3::IParseResult* result);
kexa_3_3::result_t parse(kexa_3_3::IParser& parser, const std::vector<const wchar_t*>& arguments,
                         kexa_3_3::IParseResult* result);

// A value that a query returned. Null data becomes an empty text.
struct ReadValue
{
    std::wstring text;
    std::int32_t kind;
    std::int32_t position;

    friend bool operator==(const ReadValue&, const ReadValue&) = default;
};

void PrintTo(const ReadValue& value, std::ostream* out);

// All values of an option, or their texts, read with getFirstValue and getNextValue.
std::vector<ReadValue> readValues(kexa_3_3::IParseResult& result, const wchar_t* name,
                                  std::int32_t from = 0, std::int32_t to = kexa_3_3::no_position);
std::vector<std::wstring> readTexts(kexa_3_3::IParseResult& result, const wchar_t* name);

// All left-over arguments, read with getFirstUnparsed and getNextUnparsed.
std::vector<std::wstring> readUnparsed(kexa_3_3::IParseResult& result);

// The position that the next value of this process gets. Parses one value to find it, so every call
// takes a position itself.
std::int32_t nextPosition();

// A parser and one result of it.
class Host
{
public:
    explicit Host(int flags = 0) : m_parser(createParser(flags)), m_result(createResult(*m_parser))
    {
    }

    kexa_3_3::IParser& parser() { return *m_parser; }
    kexa_3_3::IParseResult& result() { return *m_result; }

    // Throw std::runtime_error if the parser refuses the names.
    kexa_3_3::IOption& addOption(const wchar_t* names,
                                 std::int32_t valueType = kexa_3_3::value_type_string);
    kexa_3_3::IOption& addSwitch(const wchar_t* names,
                                 std::int32_t valueType = kexa_3_3::value_type_boolean);

    // A string option that takes the positional arguments.
    kexa_3_3::IOption& addPositional(const wchar_t* names);

    kexa_3_3::result_t parse(std::initializer_list<const wchar_t*> arguments)
    {
        return toolbox::parse(*m_parser, arguments, m_result.get());
    }
    kexa_3_3::result_t parseLines(const wchar_t* commandLine)
    {
        return m_parser->parseCommandLine(commandLine, m_result.get());
    }

    // Replaces the result by a new, empty one.
    void renewResult() { m_result = createResult(*m_parser); }

    std::wstring message() { return m_parser->getErrorMessage(); }
    bool isPresent(const wchar_t* name)
    {
        return m_result->isPresent(name, 0, kexa_3_3::no_position) == 1;
    }
    std::vector<ReadValue> values(const wchar_t* name) { return readValues(*m_result, name); }
    std::vector<std::wstring> texts(const wchar_t* name) { return readTexts(*m_result, name); }
    std::vector<std::wstring> unparsed() { return readUnparsed(*m_result); }

private:
    ParserOwner m_parser;
    ResultOwner m_result;
};

} // namespace toolbox

#endif
