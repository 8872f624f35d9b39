/// @file
/// Result codes of the exported functions and of the parse and query operations.
#ifndef KEXA_RESULT_H
#define KEXA_RESULT_H

#include <cstdint>

namespace kexa_3_3
{

/// How an operation ended.
enum result_t : std::int32_t
{
    /// Done.
    result_success = 0,

    /// A query: there is no value, or no further one. A parse: an event handler refused a value, or
    /// the result holds an option that the parser does not know.
    result_nothing = 1,

    /// A parse: the arguments are wrong. IParser::getErrorMessage returns the reason.
    result_invalid_arguments = 2,

    /// A standard exception ended the operation, in most cases because memory ran out.
    result_standard_exception = 3,

    /// An exception not derived from std::exception, thrown by an event handler, ended the parse.
    result_unknown_exception = 4,

    /// An option file could not be read. IParser::getErrorMessage returns its name and the reason.
    result_unreadable_option_file = 6
};

} // namespace kexa_3_3

#endif
