// What most hosts write once for the interfaces of the library: ownership, and a loop over values.
#ifndef KEXA_EXAMPLES_HOST_H
#define KEXA_EXAMPLES_HOST_H

#include <memory>
#include <new>
#include <vector>

#include <kexa/kexa.h>

namespace example
{

// Objects that the library creates are destroyed by release().
struct Release
{
    template <class T>
    void operator()(T* owned) const noexcept
    {
        owned->release();
    }
};

using ParserPointer = std::unique_ptr<kexa_3_3::IParser, Release>;
using ResultPointer = std::unique_ptr<kexa_3_3::IParseResult, Release>;

inline ParserPointer makeParser(int flags)
{
    kexa_3_3::IParser* parser = nullptr;
    kexa_3_3::createParser(&parser, flags);
    return parser != nullptr ? ParserPointer(parser) : throw std::bad_alloc();
}

inline ResultPointer makeResult(kexa_3_3::IParser& parser)
{
    kexa_3_3::IParseResult* result = nullptr;
    parser.createParseResult(&result);
    return result != nullptr ? ResultPointer(result) : throw std::bad_alloc();
}

// Returns whether the option was given or has a default.
inline bool isPresent(kexa_3_3::IParseResult& result, const wchar_t* name)
{
    return result.isPresent(name, 0, kexa_3_3::no_position) != 0;
}

// Returns all values of an option in the order of the command line, or its default if it was not
// given. If no occurrence has a value, each occurrence adds an empty value.
inline std::vector<kexa_3_3::Value> valuesOf(kexa_3_3::IParseResult& result, const wchar_t* name)
{
    std::vector<kexa_3_3::Value> values;
    kexa_3_3::Value value;
    for (auto code = result.getFirstValue(&value, name, 0, kexa_3_3::no_position);
         code == kexa_3_3::result_success; code = result.getNextValue(&value, name))
    {
        values.push_back(value);
    }
    return values;
}

inline kexa_3_3::Value lastValue(kexa_3_3::IParseResult& result, const wchar_t* name)
{
    return kexa_3_3::getLastValue(&result, name, 0, kexa_3_3::no_position);
}

} // namespace example

#endif
