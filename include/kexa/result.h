// Result codes of the exported functions and of the parse and query operations.
#ifndef KEXA_RESULT_H
#define KEXA_RESULT_H

#include <cstdint>

namespace kexa_3_3
{

enum result_t : std::int32_t
{
    // Done.
    result_success = 0,

    // Queries: there is nothing (more) to return. A parse: an event handler refused a value, or the
    // result holds an option that the parser does not know.
    result_nothing = 1,

    // A parse: the arguments are wrong; `IParser::getErrorMessage` says how.
    result_invalid_arguments = 2,

    // A standard exception (running out of memory, mostly) ended the operation.
    result_standard_exception = 3,

    // An exception not derived from std::exception, thrown by an event handler, ended the parse.
    result_unknown_exception = 4,

    // An option file could not be read; `IParser::getErrorMessage` names it and says why.
    result_unreadable_option_file = 6
};

} // namespace kexa_3_3

#endif
