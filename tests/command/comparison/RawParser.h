// The parser that a command is built over, as a host of the binary interface uses it: what the
// layer's results are compared with.
#ifndef KEXA_TESTS_COMMAND_LAYER_RAW_PARSER_H
#define KEXA_TESTS_COMMAND_LAYER_RAW_PARSER_H

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "kexa/kexa.h"

namespace toolbox
{

class RawParser
{
public:
    // A parser with the flags that commands have.
    RawParser();

    kexa_3_3::IParser& parser() { return *m_parser; }

    // Declares what takes the positional arguments, as a command does: without a separator.
    void addPositional(const wchar_t* name);

    // Parses arguments in UTF-8, without the program's name.
    kexa_3_3::result_t parse(const std::vector<std::string>& arguments);

    // The following are about the last parse.

    std::string message() const;
    // The values of an option as "[text]" each.
    std::string values(const std::string& name) const;
    // The last value of an option; empty where there is none.
    std::string lastValue(const std::string& name) const;
    bool isPresent(const std::string& name) const;

private:
    struct Release
    {
        template <class Object>
        void operator()(Object* object) const
        {
            object->release();
        }
    };
    std::vector<std::string> valuesOf(const std::string& name) const;

    std::unique_ptr<kexa_3_3::IParser, Release> m_parser;
    std::unique_ptr<kexa_3_3::IParseResult, Release> m_result;
};

} // namespace toolbox

#endif
